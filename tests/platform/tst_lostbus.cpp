#include "DBusNotificationCenter.h"
#include "DconfUserDefaults.h"
#include "PortalAppearance.h"
#include "PrivateSession.h"
#include "SessionBus.h"
#include "TestProgram.h"
#include "Tool.h"

using namespace std::chrono_literals;

class LostBusTest : public QObject {
    Q_OBJECT
public:
    explicit LostBusTest(PrivateSession &session) : m_session(session) { }

private slots:
    void theApplicationOutlivesItsBusAndUsesTheNext();

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

    m_session.stop();
    QTRY_VERIFY(!SessionBus::connection());
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

CORVANE_TEST(LostBusTest, runInPrivateSession)

#include "tst_lostbus.moc"
