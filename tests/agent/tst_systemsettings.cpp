#include "Accessible.h"
#include "Desktop.h"
#include "OnDesktop.h"
#include "Program.h"
#include "Store.h"
#include "TopLevel.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace {

const QString trusted = QStringLiteral("agent.accessibilityTrusted");

}

/// The agent's stand-in for System Settings, seen from outside.
class SystemSettingsTest : public QObject {
    Q_OBJECT
public:
    explicit SystemSettingsTest(const Desktop &desktop) : m_desktop(desktop) { }

private slots:
    void init();
    void cleanup();

    void theWindowIsKnownByItsClass();
    void theWindowHasTheIconOfTheAgent();
    void theListIsEmptyAtFirst();
    void aListedAgentHasASwitchThatIsOff();
    void anAgentThatHasThePermissionIsListed();
    void theSwitchGivesAndWithdrawsThePermission();
    void thePermissionThatSomebodyElseGivesShows();
    void aClosedWindowComesBackAtTheNextRequest();
    void withATimeThePermissionIsGrantedBesideTheWindow();

private:
    void open(const QStringList &flags = {});
    void request() const;
    std::optional<TopLevel> window() const;
    Accessible control() const
    {
        return Accessible::application(m_agent->processId()).find(ATSPI_ROLE_CHECK_BOX, "Corvane");
    }
    bool showsEmptyList() const
    {
        return bool(Accessible::application(m_agent->processId()).find(ATSPI_ROLE_PANEL, "No applications"));
    }

    const Desktop &m_desktop;
    const Store m_store;
    std::unique_ptr<Program> m_agent;
};

void SystemSettingsTest::init()
{
    m_store.removeAll();
}

void SystemSettingsTest::cleanup()
{
    if (m_agent)
        QCOMPARE(m_agent->complaints(), QStringList());
    m_agent.reset();
}

void SystemSettingsTest::open(const QStringList &flags)
{
    m_agent = std::make_unique<Program>(QStringLiteral(PROGRAM_CORVANE_AGENT), m_desktop.environment());
    REQUIRE(m_agent->start(flags));
    // It receives commands once it has reported its state.
    QTRY_VERIFY_WITH_TIMEOUT(m_store.read("agent.launchAtLoginNeedsApproval").isValid(), startTime);
    request();
    QTRY_VERIFY_WITH_TIMEOUT(window(), startTime);
    REQUIRE(QTest::qWaitFor([this] { return control() || showsEmptyList(); }, startTime));
}

void SystemSettingsTest::request() const
{
    QDBusMessage request = QDBusMessage::createSignal("/com/vexmoor/corvane", "com.vexmoor.corvane", "command");
    request << QVariantMap{{"command", "requestAccessibility"}};
    REQUIRE(QDBusConnection::sessionBus().send(request));
}

std::optional<TopLevel> SystemSettingsTest::window() const
{
    const auto windows = TopLevel::ofProcess(m_desktop.x(), m_agent->processId());
    for (const TopLevel &window : windows) {
        if (window.isViewable())
            return window;
    }
    return std::nullopt;
}

void SystemSettingsTest::theWindowIsKnownByItsClass()
{
    open();
    QCOMPARE(window()->title(), "System Settings");
    QCOMPARE(window()->windowClass(), "com.vexmoor.corvane.systemsettings");
    QVERIFY(window()->geometry().width() > 300);
}

void SystemSettingsTest::theWindowHasTheIconOfTheAgent()
{
    open();
    QTRY_VERIFY(!window()->icon().isEmpty());
    const QImage icon = window()->icon().constLast();
    QCOMPARE(icon.pixelColor(icon.width() / 8, icon.height() / 2), QColor(0x5A, 0x5C, 0xF2));
}

void SystemSettingsTest::theListIsEmptyAtFirst()
{
    open();
    QVERIFY(showsEmptyList());
    QVERIFY(!control());
    QVERIFY(!m_store.read(trusted).isValid());
}

void SystemSettingsTest::aListedAgentHasASwitchThatIsOff()
{
    open({"--listed"});
    QVERIFY(control());
    QVERIFY(!control().has(ATSPI_STATE_CHECKED));
    QVERIFY(!showsEmptyList());
    QVERIFY(!m_store.read(trusted).isValid());
}

void SystemSettingsTest::anAgentThatHasThePermissionIsListed()
{
    m_store.write(trusted, true);
    open();
    QVERIFY(control());
    QVERIFY(control().has(ATSPI_STATE_CHECKED));
}

void SystemSettingsTest::theSwitchGivesAndWithdrawsThePermission()
{
    open({"--listed"});
    QVERIFY(control().doAction("Press"));
    QVERIFY(m_store.waitFor(trusted, true));
    QTRY_VERIFY(control().has(ATSPI_STATE_CHECKED));
    QVERIFY(control().doAction("Press"));
    QVERIFY(m_store.waitFor(trusted, false));
    QTRY_VERIFY(!control().has(ATSPI_STATE_CHECKED));
    // It stays on the list.
    QVERIFY(control());
}

void SystemSettingsTest::thePermissionThatSomebodyElseGivesShows()
{
    open({"--listed"});
    m_store.write(trusted, true);
    QTRY_VERIFY(control().has(ATSPI_STATE_CHECKED));
}

void SystemSettingsTest::aClosedWindowComesBackAtTheNextRequest()
{
    open();
    window()->close();
    QTRY_VERIFY(!window());
    QVERIFY(m_agent->isRunning());
    request();
    QTRY_VERIFY(window());
}

void SystemSettingsTest::withATimeThePermissionIsGrantedBesideTheWindow()
{
    open({"--grant-after", "0.1"});
    QVERIFY(m_store.waitFor(trusted, true));
    QTRY_VERIFY(control());
    QTRY_VERIFY(control().has(ATSPI_STATE_CHECKED));
}

CORVANE_TEST(SystemSettingsTest, runBesideDesktop)

#include "tst_systemsettings.moc"
