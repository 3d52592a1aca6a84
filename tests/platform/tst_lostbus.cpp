#include "DBusNotificationCenter.h"
#include "DconfUserDefaults.h"
#include "PortalAppearance.h"
#include "PrivateSession.h"
#include "SessionBus.h"
#include "TestProgram.h"

#pragma push_macro("signals")
#undef signals
#include <gio/gio.h>
#pragma pop_macro("signals")

class LostBusTest : public QObject {
    Q_OBJECT
public:
    explicit LostBusTest(PrivateSession &session) : m_session(session) { }

private slots:
    void theApplicationOutlivesItsBus();

private:
    PrivateSession &m_session;
};

void LostBusTest::theApplicationOutlivesItsBus()
{
    const QString key = QStringLiteral("buttonTheme");
    DconfUserDefaults defaults(QStringLiteral("com.vexmoor.corvane"));
    PortalAppearance appearance;
    DBusNotificationCenter center;
    defaults.setValue(key, QStringLiteral("stored"));
    center.post(QStringLiteral("com.vexmoor.corvane.command"), {});
    appearance.settle();

    // The library's connection is told, as soon as there is one, not to end the process together with the
    // bus.
    GDBusConnection *bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    QTRY_VERIFY(!g_dbus_connection_get_exit_on_close(bus));
    g_object_unref(bus);

    m_session.stop();
    QTRY_VERIFY(!SessionBus::connection());
    QCOMPARE(defaults.value(key), QVariant(QStringLiteral("stored")));
    defaults.setValue(key, QStringLiteral("memory"));
    QCOMPARE(defaults.value(key), QVariant(QStringLiteral("memory")));
    center.post(QStringLiteral("com.vexmoor.corvane.command"), {});
    QCOMPARE(appearance.bestMatch(), AppearanceName::Aqua);
}

CORVANE_TEST(LostBusTest, runInPrivateSession)

#include "tst_lostbus.moc"
