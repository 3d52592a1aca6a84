#include "PrivateSession.h"
#include "SettingsPortal.h"
#include "StartEnvironment.h"
#include "TestProgram.h"

#include <QDBusVariant>

namespace {

constexpr const char *frames = "QT_WAYLAND_DISABLE_WINDOWDECORATION";
constexpr const char *dotsPerInch = "QT_FONT_DPI";
constexpr const char *scaleFactor = "QT_SCALE_FACTOR";

}

/// What Qt is told before it connects to the display, on a desktop whose texts are half as large again.
class StartEnvironmentTest : public QObject {
    Q_OBJECT
public:
    explicit StartEnvironmentTest(PrivateSession &) : m_platform(qgetenv("QT_QPA_PLATFORM")) { }

private slots:
    void init() { qputenv("QT_QPA_PLATFORM", "wayland"); }
    void cleanup();

    void onWaylandQtIsTold_data();
    void onWaylandQtIsTold();
    void itIsForgottenAfterwards();
    void aTextSizeThatIsUsualIsNotTold();
    void whatAPersonHasSetStands();
    void aScaleThatAPersonHasSetStands();

private:
    const QByteArray m_platform;
    const SettingsPortal m_portal{QVariant::fromValue(QDBusVariant(1.5))};
};

void StartEnvironmentTest::cleanup()
{
    qputenv("QT_QPA_PLATFORM", m_platform);
    for (const char *variable : {"XDG_SESSION_TYPE", frames, dotsPerInch, scaleFactor})
        qunsetenv(variable);
}

void StartEnvironmentTest::onWaylandQtIsTold_data()
{
    QTest::addColumn<QByteArray>("platform");
    QTest::addColumn<QByteArray>("session");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("chosen") << QByteArray("wayland") << QByteArray("x11") << true;
    QTest::newRow("chosen with an option") << QByteArray("wayland-egl") << QByteArray() << true;
    QTest::newRow("the session's") << QByteArray() << QByteArray("wayland") << true;
    QTest::newRow("X inside Wayland") << QByteArray("xcb") << QByteArray("wayland") << false;
    QTest::newRow("X") << QByteArray() << QByteArray("x11") << false;
    QTest::newRow("unknown") << QByteArray() << QByteArray() << false;
}

void StartEnvironmentTest::onWaylandQtIsTold()
{
    QFETCH(QByteArray, platform);
    QFETCH(QByteArray, session);
    QFETCH(bool, isTold);
    qputenv("QT_QPA_PLATFORM", platform);
    qputenv("XDG_SESSION_TYPE", session);
    const qsizetype asked = m_portal.calls().size();
    const StartEnvironment environment;
    QCOMPARE(qgetenv(frames), QByteArray(isTold ? "1" : ""));
    QCOMPARE(qgetenv(dotsPerInch), QByteArray(isTold ? "144" : ""));
    QCOMPARE(m_portal.calls().size() > asked, isTold);
}

void StartEnvironmentTest::itIsForgottenAfterwards()
{
    {
        const StartEnvironment environment;
        QVERIFY(qEnvironmentVariableIsSet(frames) && qEnvironmentVariableIsSet(dotsPerInch));
    }
    QVERIFY(!qEnvironmentVariableIsSet(frames) && !qEnvironmentVariableIsSet(dotsPerInch));
}

void StartEnvironmentTest::aTextSizeThatIsUsualIsNotTold()
{
    // Without a bus nobody tells it.
    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const auto restored = qScopeGuard([&] { qputenv("DBUS_SESSION_BUS_ADDRESS", bus); });
    qputenv("DBUS_SESSION_BUS_ADDRESS", "autolaunch:");
    const StartEnvironment environment;
    QVERIFY(qEnvironmentVariableIsSet(frames));
    QVERIFY(!qEnvironmentVariableIsSet(dotsPerInch));
}

void StartEnvironmentTest::whatAPersonHasSetStands()
{
    qputenv(frames, "0");
    qputenv(dotsPerInch, "120");
    {
        const StartEnvironment environment;
        QCOMPARE(qgetenv(frames), QByteArray("0"));
        QCOMPARE(qgetenv(dotsPerInch), QByteArray("120"));
    }
    QCOMPARE(qgetenv(frames), QByteArray("0"));
    QCOMPARE(qgetenv(dotsPerInch), QByteArray("120"));
}

void StartEnvironmentTest::aScaleThatAPersonHasSetStands()
{
    qputenv(scaleFactor, "2");
    const StartEnvironment environment;
    QVERIFY(!qEnvironmentVariableIsSet(dotsPerInch));
}

CORVANE_TEST(StartEnvironmentTest, runInPrivateSession)

#include "tst_startenvironment.moc"
