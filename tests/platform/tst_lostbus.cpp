#include "DBusInstances.h"
#include "DBusNotificationCenter.h"
#include "DconfUserDefaults.h"
#include "PortalAppearance.h"
#include "PrivateSession.h"
#include "SessionBus.h"
#include "SettingsPortal.h"
#include "TestProgram.h"
#include "Tool.h"

#include <QDBusConnectionInterface>
#include <QPalette>

using namespace std::chrono_literals;

class LostBusTest : public QObject {
    Q_OBJECT
public:
    explicit LostBusTest(PrivateSession &session) : m_session(session) { }

private slots:
    void theApplicationOutlivesItsBusAndUsesTheNext();
    void theNextBusKnowsTheNameAndWhoListens();
    void nobodyIsTakenForThePortalOfTheBusBefore();
    void anAnswerThatDoesNotComeIsNotWaitedForForEver();

public slots:
    void answer() { }

private:
    PrivateSession &m_session;
};

void LostBusTest::theApplicationOutlivesItsBusAndUsesTheNext()
{
    const QString key = QStringLiteral("buttonTheme");
    DconfUserDefaults defaults(QStringLiteral("com.vexmoor.corvane"));
    // Time alone is no help here.
    defaults.setRetryInterval(1h);
    PortalAppearance appearance;
    DBusNotificationCenter center;
    defaults.setValue(key, QStringLiteral("stored"));
    QVERIFY(defaults.finishWrites(5s));
    center.post(QStringLiteral("com.vexmoor.corvane.command"), {});
    appearance.settle();
    QVERIFY(center.isAvailable());
    QObject context;
    int losses = 0;
    center.whenLost(&context, [&losses] { ++losses; });

    m_session.stop();
    QTRY_VERIFY(!center.isAvailable());
    QTRY_COMPARE(losses, 1);
    QCOMPARE(defaults.value(key), QVariant(QStringLiteral("stored")));
    defaults.setValue(key, QStringLiteral("memory"));
    QVERIFY(!defaults.finishWrites(5s));
    QCOMPARE(defaults.trouble(), UserDefaults::Trouble::noStore);
    QCOMPARE(defaults.value(key), QVariant(QStringLiteral("memory")));
    center.post(QStringLiteral("com.vexmoor.corvane.command"), {});
    QCOMPARE(appearance.bestMatch(), AppearanceName::Aqua);

    QVERIFY(m_session.start());
    QTRY_COMPARE(defaults.trouble(), UserDefaults::Trouble::none);
    const QString path = QStringLiteral("/com/vexmoor/corvane/") + key;
    QCOMPARE(dconf({QStringLiteral("read"), path}), "'memory'");
    dconf({QStringLiteral("write"), path, QStringLiteral("'outside'")});
    QTRY_COMPARE(defaults.value(key), QVariant("outside"));
}

void LostBusTest::theNextBusKnowsTheNameAndWhoListens()
{
    const QString name = QStringLiteral("com.vexmoor.corvane.test");
    const ActivationToken none;
    DBusInstances instances(none);
    DBusNotificationCenter center;
    QObject context;
    int heard = 0;
    center.observe(name + QStringLiteral(".word"), &context, [&heard](const QVariantMap &) { ++heard; });
    QVERIFY(instances.claim(name));

    m_session.stop();
    QTRY_VERIFY(!SessionBus::connectionNow());
    QVERIFY(m_session.start());
    QTRY_VERIFY(SessionBus::connectionNow());
    QTRY_VERIFY(SessionBus::connectionNow()->interface()->isServiceRegistered(name));
    QDBusMessage activate =
        QDBusMessage::createMethodCall(name, QStringLiteral("/com/vexmoor/corvane/test"),
                                       QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    activate << QVariantMap();
    QDBusPendingCall call = SessionBus::connectionNow()->asyncCall(activate);
    QTRY_VERIFY(call.isFinished());
    QVERIFY2(!call.isError(), qPrintable(call.error().message()));
    center.post(name + QStringLiteral(".word"), {});
    QTRY_COMPARE(heard, 1);
}

// Whoever is asked can only answer once the waiting is over.
void LostBusTest::anAnswerThatDoesNotComeIsNotWaitedForForEver()
{
    QTRY_VERIFY(SessionBus::connectionNow());
    const QString name = QStringLiteral("silent");
    QDBusConnection silent =
        QDBusConnection::connectToBus(QString::fromLocal8Bit(qgetenv("DBUS_SESSION_BUS_ADDRESS")), name);
    const auto disconnected = qScopeGuard([&name] { QDBusConnection::disconnectFromBus(name); });
    QVERIFY(silent.registerObject(QStringLiteral("/"), this, QDBusConnection::ExportAllSlots));
    const QDBusMessage question =
        QDBusMessage::createMethodCall(silent.baseService(), QStringLiteral("/"), QString(), QStringLiteral("answer"));
    constexpr int forEver = std::numeric_limits<int>::max();
    QDBusPendingCall call = SessionBus::connectionNow()->asyncCall(question, forEver);
    SessionBus::waitFor(call, 50ms);
    QVERIFY(!call.isFinished());
    QTRY_VERIFY(call.isFinished());
    QVERIFY(!call.isError());
}

// Every bus numbers its connections from the first on.
void LostBusTest::nobodyIsTakenForThePortalOfTheBusBefore()
{
    const auto portal = std::make_unique<SettingsPortal>(QVariant::fromValue(SettingsGroups()));
    PortalAppearance appearance;
    appearance.settle();
    const QString group = QStringLiteral("org.freedesktop.appearance");
    portal->change(group, QStringLiteral("contrast"), 1U);
    QTRY_COMPARE(appearance.bestMatch(), AppearanceName::AccessibilityHighContrastAqua);
    const QString name = SettingsPortal::name();

    m_session.stop();
    QTRY_VERIFY(!SessionBus::connection());
    QVERIFY(m_session.start());
    QTRY_VERIFY(SessionBus::connectionNow());
    QStringList others;
    const auto disconnected = qScopeGuard([&] {
        for (const QString &other : std::as_const(others))
            QDBusConnection::disconnectFromBus(other);
    });
    constexpr int enough = 100;
    const auto another = [&others] {
        others.append(QStringLiteral("other %1").arg(others.size()));
        return QDBusConnection::connectToBus(QString::fromLocal8Bit(qgetenv("DBUS_SESSION_BUS_ADDRESS")),
                                             others.constLast());
    };
    QDBusConnection namesake = another();
    while (namesake.baseService() != name && others.size() < enough)
        namesake = another();
    QCOMPARE(namesake.baseService(), name);

    QDBusMessage change =
        QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                   QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
    change << group << QStringLiteral("contrast") << QVariant::fromValue(QDBusVariant(0U));
    QVERIFY(namesake.send(change));
    // The bus delivers in order, and both answers come after what it passed on.
    namesake.interface()->registeredServiceNames();
    SessionBus::connectionNow()->interface()->registeredServiceNames();
    QCoreApplication::processEvents();
    // All that has been heard counts from here on.
    QGuiApplication::setPalette(QPalette(Qt::black));
    QTRY_COMPARE(appearance.bestMatch(), AppearanceName::AccessibilityHighContrastDarkAqua);
}

CORVANE_TEST(LostBusTest, runInPrivateSession)

#include "tst_lostbus.moc"
