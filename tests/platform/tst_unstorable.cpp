#include "DBusNotificationCenter.h"
#include "DconfUserDefaults.h"
#include "OutsideStore.h"
#include "PortalAppearance.h"
#include "PrivateSession.h"
#include "TestProgram.h"

#include <QFile>
#include <QSignalSpy>

using namespace std::chrono_literals;

namespace {

/// Makes a session without a bus, for the reason that the environment names.
struct MissingBus {
    MissingBus()
    {
        const QByteArray name = qgetenv("CORVANE_TROUBLE");
        if (name == "dead_bus")
            qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
        if (name == "meaningless_bus")
            qputenv("DBUS_SESSION_BUS_ADDRESS", "no address at all");
        if (name == "bus_to_be_started")
            qputenv("DBUS_SESSION_BUS_ADDRESS", "autolaunch:");
    }
};

void writeFile(const QString &name, const QByteArray &content)
{
    QFile file(name);
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(content);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

}

class UnstorableTest : public QObject {
    Q_OBJECT
private slots:
    void cleanup();

    void aValueIsKeptInMemoryAndAnnounced();
    void aValueInMemoryCanBeRemoved();
    void nobodyElseSeesIt();
    void aNotificationIsLostInSilence();
    void theAppearanceIsThatOfThePalette();
};

// To start a bus of their own, the libraries would run the program that stands in PATH for this.
void UnstorableTest::cleanup()
{
    QVERIFY2(!QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/started")), "a bus was started");
}

void UnstorableTest::aValueIsKeptInMemoryAndAnnounced()
{
    DconfUserDefaults defaults(suiteName);
    QSignalSpy spy(&defaults, &UserDefaults::changed);
    QVERIFY(!defaults.value(QStringLiteral("buttonTheme")).isValid());
    defaults.setValue(QStringLiteral("buttonTheme"), QStringLiteral("a"));
    defaults.setValue(QStringLiteral("buttonTheme"), QStringLiteral("a"));
    defaults.setValue(QStringLiteral("layouts.gap"), 4.0);
    QVERIFY(!defaults.finishWrites(5s));
    QCOMPARE(defaults.trouble(), UserDefaults::Trouble::noStore);
    QCOMPARE(defaults.value(QStringLiteral("buttonTheme")), QVariant(QStringLiteral("a")));
    QCOMPARE(defaults.value(QStringLiteral("layouts.gap")), QVariant(4.0));
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.first().first(), QVariant(QStringLiteral("buttonTheme")));
}

void UnstorableTest::aValueInMemoryCanBeRemoved()
{
    DconfUserDefaults defaults(suiteName);
    defaults.setValue(QStringLiteral("key"), true);
    QVERIFY(!defaults.finishWrites(5s));
    defaults.setValue(QStringLiteral("key"), QVariant());
    QVERIFY(!defaults.value(QStringLiteral("key")).isValid());
}

void UnstorableTest::nobodyElseSeesIt()
{
    DconfUserDefaults defaults(suiteName);
    defaults.setValue(QStringLiteral("key"), true);
    QVERIFY(!DconfUserDefaults(suiteName).value(QStringLiteral("key")).isValid());
}

void UnstorableTest::aNotificationIsLostInSilence()
{
    DBusNotificationCenter center;
    const QString name = QStringLiteral("com.vexmoor.corvane.command");
    DOES_NO_HARM(center.observe(name, this, [](const QVariantMap &) {}));
    DOES_NO_HARM(center.post(name, {{QStringLiteral("command"), QStringLiteral("a")}}));
}

void UnstorableTest::theAppearanceIsThatOfThePalette()
{
    PortalAppearance appearance;
    appearance.settle();
    QCOMPARE(appearance.bestMatch(), AppearanceName::Aqua);
    QVERIFY(!appearance.shouldReduceMotion());
}

static int runUnstorable(int argc, char **argv)
{
    PrivateSession session;
    const QByteArray programs = session.dataFolder().toLocal8Bit();
    writeFile(session.dataFolder() + QStringLiteral("/dbus-launch"),
              "#!/bin/sh\ntouch \"$XDG_RUNTIME_DIR/started\"\nexit 1\n");
    qputenv("PATH", programs + ':' + qgetenv("PATH"));
    qputenv("DISPLAY", ":1");
    const MissingBus missing;
    const QGuiApplication application(argc, argv);
    return runTest<UnstorableTest>(argc, argv);
}

CORVANE_TEST_MAIN(runUnstorable)

#include "tst_unstorable.moc"
