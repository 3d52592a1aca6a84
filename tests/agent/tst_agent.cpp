#include "AutostartEntry.h"
#include "DconfUserDefaults.h"
#include "PrivateSession.h"
#include "Program.h"
#include "StoreWrites.h"
#include "TestProgram.h"

#include <QDBusMessage>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <filesystem>

namespace {

const QString agentProgram = QStringLiteral(PROGRAM_CORVANE_AGENT);
const QString enabledKey = QStringLiteral("agent.launchAtLogin");
const QString waitingKey = QStringLiteral("agent.launchAtLoginNeedsApproval");
const QString trustedKey = QStringLiteral("agent.accessibilityTrusted");

/// Posts a command as the application does.
void post(const QVariantMap &userInfo)
{
    QDBusMessage signal = QDBusMessage::createSignal("/com/vexmoor/corvane", "com.vexmoor.corvane", "command");
    signal << userInfo;
    REQUIRE(QDBusConnection::sessionBus().send(signal));
}

void post(const QString &command)
{
    post(QVariantMap{{"command", command}});
}

void setLaunchAtLogin(bool on)
{
    post(QVariantMap{{"command", "setLaunchAtLogin"}, {"value", on}});
}

/// Whether whoever holds the agent's name answers.
bool answers()
{
    const auto ping = QDBusMessage::createMethodCall("com.vexmoor.corvane", "/", "org.freedesktop.DBus.Peer", "Ping");
    return QDBusConnection::sessionBus().call(ping).type() == QDBusMessage::ReplyMessage;
}

}

/// The reference agent, in a session of its own, as the desktop and the application see it.
class AgentTest : public QObject {
    Q_OBJECT
public:
    explicit AgentTest(PrivateSession &session) : m_autostart(session.configFolder() + "/autostart") { }

private slots:
    void init();
    void cleanup();

    void aCommandIsPrintedAsOneLineOfJson_data();
    void aCommandIsPrintedAsOneLineOfJson();
    void commandsArePrintedInOrder();
    void whatIsNoCommandIsPrintedAndChangesNothing();
    void aRequestForThePermissionGrantsNothingByItself();
    void withATimeARequestGrantsThePermissionAfterIt();
    void aTimeThatIsNoneEndsTheAgent_data();
    void aTimeThatIsNoneEndsTheAgent();

    void aFreshAgentReportsThatItIsNoLoginItem();
    void registeringWritesADesktopEntry();
    void unregisteringRemovesTheDesktopEntry();
    void registeringTwiceIsRegisteringOnce();
    void anEntryWhoseFolderIsGoneIsWrittenAnew();
    void aFolderWithSpecialCharactersIsQuoted_data();
    void aFolderWithSpecialCharactersIsQuoted();

    void anEntryThatNeedsApprovalIsHidden();
    void enablingTheEntryApprovesIt_data();
    void enablingTheEntryApprovesIt();
    void approvalNeverLooksLikeNoLoginItem();
    void withdrawingApprovalNeverLooksLikeNoLoginItem();
    void anEntryOfAnEarlierRunIsReported_data();
    void anEntryOfAnEarlierRunIsReported();
    void anEntryThatIsDeletedIsNoLoginItem();

    void aSecondAgentEndsAtOnce();

private:
    /// Starts an agent and waits until it has reported its state and hears commands.
    void start(const QStringList &arguments = {}, const QString &executable = agentProgram);
    QString entryPath() const { return m_autostart + "/com.vexmoor.corvane.desktop"; }
    /// Replaces the entry at once, as a settings page does.
    void writeEntry(const QByteArray &content) const;
    bool reports(bool enabled, bool waiting) const;
    /// Posts a command that changes nothing and waits until it is printed: everything before it is done by then.
    void finish();

    const QString m_autostart;
    DconfUserDefaults m_store{"com.vexmoor.corvane"};
    std::unique_ptr<Program> m_agent;
};

#define VERIFY_REPORTS(enabled, waiting) QTRY_VERIFY(reports(enabled, waiting))

void AgentTest::init()
{
    for (const QString &key : {enabledKey, waitingKey, trustedKey})
        m_store.setValue(key, QVariant());
    QVERIFY(m_store.finishWrites(std::chrono::seconds(5)));
    QDir(m_autostart).removeRecursively();
}

void AgentTest::cleanup()
{
    if (m_agent)
        QCOMPARE(m_agent->complaints(), QStringList());
    m_agent.reset();
}

void AgentTest::start(const QStringList &arguments, const QString &executable)
{
    m_agent = std::make_unique<Program>(executable, QProcessEnvironment::systemEnvironment());
    REQUIRE(m_agent->start(QStringList{"--headless"} + arguments));
    const auto hasReported = [this] {
        return m_store.value(enabledKey).isValid() && m_store.value(waitingKey).isValid();
    };
    QVERIFY2(QTest::qWaitFor([&] { return hasReported() || !m_agent->isRunning(); }, startTime) && hasReported(),
             qPrintable(m_agent->standardError().join(u'\n')));
    // It began to listen before it reported; the bus knows once the same connection has answered.
    REQUIRE(answers());
}

void AgentTest::writeEntry(const QByteArray &content) const
{
    REQUIRE(QDir().mkpath(m_autostart));
    QSaveFile file(entryPath());
    REQUIRE(file.open(QFile::WriteOnly));
    file.write(content);
    REQUIRE(file.commit());
}

bool AgentTest::reports(bool enabled, bool waiting) const
{
    return m_store.value(enabledKey) == QVariant(enabled) && m_store.value(waitingKey) == QVariant(waiting);
}

void AgentTest::finish()
{
    const auto lines = m_agent->standardOutput().size();
    post("applySettings");
    REQUIRE_SOON(m_agent->standardOutput().size() > lines && m_agent->standardOutput().constLast().contains("apply"));
}

void AgentTest::aCommandIsPrintedAsOneLineOfJson_data()
{
    QTest::addColumn<QVariantMap>("userInfo");
    QTest::newRow("without a value") << QVariantMap{{"command", "applySettings"}};
    QTest::newRow("with a value") << QVariantMap{{"command", "setLaunchAtLogin"}, {"value", false}};
    QTest::newRow("with extras") << QVariantMap{{"command", "applySettings"}, {"name", "One \"two\"\nthree ⌘"}};
    QTest::newRow("unknown") << QVariantMap{{"command", "fly"}, {"value", true}};
    QTest::newRow("empty") << QVariantMap();
}

void AgentTest::aCommandIsPrintedAsOneLineOfJson()
{
    QFETCH(QVariantMap, userInfo);
    start();
    post(userInfo);
    QTRY_COMPARE(m_agent->standardOutput().size(), 1);
    const auto printed = QJsonDocument::fromJson(m_agent->standardOutput().constFirst().toUtf8());
    QVERIFY(printed.isObject());
    QCOMPARE(printed.object().toVariantMap(), userInfo);
}

void AgentTest::commandsArePrintedInOrder()
{
    start();
    // A first command that arrives shows that the agent listens; before that no order is promised.
    QStringList names{"first"};
    post(names.constLast());
    QTRY_COMPARE(m_agent->standardOutput().size(), 1);
    for (int i = 0; i < 50; ++i) {
        names.append(QString("command%1").arg(i));
        post(names.constLast());
    }
    QTRY_COMPARE(m_agent->standardOutput().size(), names.size());
    for (int i = 0; i < names.size(); ++i)
        QVERIFY2(m_agent->standardOutput().at(i).contains(QString("\"%1\"").arg(names.at(i))), qPrintable(names.at(i)));
}

void AgentTest::whatIsNoCommandIsPrintedAndChangesNothing()
{
    start();
    StoreWrites writes(m_store);
    const QList<QVariantMap> strange = {
        {},
        {{"command", "fly"}},
        {{"command", "setlaunchatlogin"}, {"value", true}},
        {{"command", "setLaunchAtLogin"}},
        {{"command", "setLaunchAtLogin"}, {"value", "true"}},
        {{"command", "setLaunchAtLogin"}, {"value", 1}},
        {{"command", "setLaunchAtLogin"}, {"value", 1.0}},
        {{"command", true}, {"value", true}},
        {{"value", true}},
    };
    for (const QVariantMap &userInfo : strange)
        post(userInfo);
    QTRY_COMPARE(m_agent->standardOutput().size(), strange.size());
    finish();
    QCOMPARE(writes.keys, QStringList());
    QVERIFY(!QFileInfo::exists(entryPath()));
}

void AgentTest::aRequestForThePermissionGrantsNothingByItself()
{
    start();
    StoreWrites writes(m_store);
    post("requestAccessibility");
    finish();
    QCOMPARE(writes.keys, QStringList());
}

void AgentTest::withATimeARequestGrantsThePermissionAfterIt()
{
    start({"--grant-after", "0.3"});
    finish();
    QVERIFY(!m_store.value(trustedKey).isValid());
    QElapsedTimer sinceRequest;
    sinceRequest.start();
    post("requestAccessibility");
    QTRY_COMPARE(m_store.value(trustedKey), QVariant(true));
    QVERIFY(sinceRequest.elapsed() >= 300);
    // Withdrawn and requested again, it is granted again.
    m_store.setValue(trustedKey, false);
    post("requestAccessibility");
    QTRY_COMPARE(m_store.value(trustedKey), QVariant(true));
}

void AgentTest::aTimeThatIsNoneEndsTheAgent_data()
{
    QTest::addColumn<QString>("time");
    for (const char *time : {"soon", "-1", "", "nan", "inf", "3601"})
        QTest::newRow(*time ? time : "empty") << QString(time);
}

void AgentTest::aTimeThatIsNoneEndsTheAgent()
{
    QFETCH(QString, time);
    Program agent(agentProgram, QProcessEnvironment::systemEnvironment());
    QVERIFY(agent.start({"--headless", "--grant-after", time}));
    QVERIFY(agent.waitForExit());
    QCOMPARE(agent.exitCode(), 1);
    QCOMPARE(agent.complaints(), QStringList("--grant-after takes a number of seconds from 0 to 3600."));
}

void AgentTest::aFreshAgentReportsThatItIsNoLoginItem()
{
    start();
    QVERIFY(reports(false, false));
    QVERIFY(!QFileInfo::exists(entryPath()));
}

void AgentTest::registeringWritesADesktopEntry()
{
    start();
    setLaunchAtLogin(true);
    VERIFY_REPORTS(true, false);
    const AutostartEntry entry(entryPath());
    QVERIFY(entry.isValid());
    QCOMPARE(entry.text("Type"), "Application");
    QCOMPARE(entry.text("Name"), "Corvane");
    QVERIFY(entry.text("Exec").startsWith(u'"'));
    QCOMPARE(entry.command(), QStringList(QFileInfo(agentProgram).canonicalFilePath()));
    QCOMPARE(entry.text("TryExec"), QFileInfo(agentProgram).canonicalFilePath());
    QVERIFY(!entry.isHidden());
}

void AgentTest::unregisteringRemovesTheDesktopEntry()
{
    start();
    setLaunchAtLogin(true);
    VERIFY_REPORTS(true, false);
    setLaunchAtLogin(false);
    VERIFY_REPORTS(false, false);
    QVERIFY(!QFileInfo::exists(entryPath()));
    // The same of an entry that was never approved.
    writeEntry("[Desktop Entry]\nHidden=true\n");
    VERIFY_REPORTS(false, true);
    setLaunchAtLogin(false);
    VERIFY_REPORTS(false, false);
    QVERIFY(!QFileInfo::exists(entryPath()));
}

void AgentTest::registeringTwiceIsRegisteringOnce()
{
    start({"--needs-approval"});
    setLaunchAtLogin(true);
    VERIFY_REPORTS(false, true);
    writeEntry("[Desktop Entry]\nType=Application\nName=Mine\nExec=true\n");
    VERIFY_REPORTS(true, false);
    StoreWrites writes(m_store);
    setLaunchAtLogin(true);
    finish();
    QVERIFY(reports(true, false));
    QCOMPARE(AutostartEntry(entryPath()).text("Name"), "Mine");
    QCOMPARE(writes.keys, QStringList());
}

void AgentTest::anEntryWhoseFolderIsGoneIsWrittenAnew()
{
    start();
    QVERIFY(QDir(m_autostart).removeRecursively());
    setLaunchAtLogin(true);
    VERIFY_REPORTS(true, false);
    QVERIFY(AutostartEntry(entryPath()).isValid());
}

void AgentTest::aFolderWithSpecialCharactersIsQuoted_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("space") << "my apps";
    QTest::newRow("quote") << "the \"best\" apps";
    QTest::newRow("dollar sign") << "$HOME";
    QTest::newRow("back quote") << "`apps`";
    QTest::newRow("backslash") << "a\\b";
    QTest::newRow("percent sign") << "100%f";
    QTest::newRow("other alphabet") << QStringLiteral("приложения");
}

void AgentTest::aFolderWithSpecialCharactersIsQuoted()
{
    namespace files = std::filesystem;
    QFETCH(QString, folder);
    // Beside the agent, so that the file system is the same and a link will do.
    const QTemporaryDir around(QFileInfo(agentProgram).path() + "/../test-XXXXXX");
    QVERIFY(QDir(around.path()).mkdir(folder));
    const QString executable = QFileInfo(around.filePath(folder)).canonicalFilePath() + "/corvane-agent";
    std::error_code error;
    files::create_hard_link(files::path(agentProgram.toStdString()), files::path(executable.toStdString()), error);
    QVERIFY2(!error, error.message().c_str());
    start({}, executable);
    setLaunchAtLogin(true);
    VERIFY_REPORTS(true, false);
    const AutostartEntry entry(entryPath());
    QVERIFY(entry.isValid());
    QCOMPARE(entry.command(), QStringList(executable));
}

void AgentTest::anEntryThatNeedsApprovalIsHidden()
{
    start({"--needs-approval"});
    setLaunchAtLogin(true);
    VERIFY_REPORTS(false, true);
    const AutostartEntry entry(entryPath());
    QVERIFY(entry.isValid());
    QVERIFY(entry.isHidden());
    QCOMPARE(entry.command(), QStringList(QFileInfo(agentProgram).canonicalFilePath()));
}

void AgentTest::enablingTheEntryApprovesIt_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("line removed") << QByteArray();
    QTest::newRow("line says no") << QByteArray("Hidden=false\n");
    QTest::newRow("line says no, with space") << QByteArray("Hidden = false\n");
    QTest::newRow("enabled in so many words") << QByteArray("X-GNOME-Autostart-enabled=true\n");
}

void AgentTest::enablingTheEntryApprovesIt()
{
    QFETCH(QByteArray, line);
    start({"--needs-approval"});
    setLaunchAtLogin(true);
    VERIFY_REPORTS(false, true);
    QFile entry(entryPath());
    QVERIFY(entry.open(QFile::ReadOnly));
    const QByteArray waiting = entry.readAll();
    QByteArray enabled = waiting;
    writeEntry(enabled.replace("Hidden=true\n", line));
    VERIFY_REPORTS(true, false);
    writeEntry(waiting);
    VERIFY_REPORTS(false, true);
    // It is followed from one replacement to the next.
    writeEntry(enabled);
    VERIFY_REPORTS(true, false);
}

void AgentTest::approvalNeverLooksLikeNoLoginItem()
{
    writeEntry("[Desktop Entry]\nHidden=true\n");
    start();
    QVERIFY(reports(false, true));
    StoreWrites writes(m_store);
    writeEntry("[Desktop Entry]\n");
    QTRY_COMPARE(writes.keys.size(), 2);
    QVERIFY(reports(true, false));
    const QStringList trueFirst = {enabledKey, waitingKey};
    QCOMPARE(writes.keys, trueFirst);
}

void AgentTest::withdrawingApprovalNeverLooksLikeNoLoginItem()
{
    writeEntry("[Desktop Entry]\n");
    start();
    QVERIFY(reports(true, false));
    StoreWrites writes(m_store);
    writeEntry("[Desktop Entry]\nHidden=true\n");
    QTRY_COMPARE(writes.keys.size(), 2);
    QVERIFY(reports(false, true));
    const QStringList trueFirst = {waitingKey, enabledKey};
    QCOMPARE(writes.keys, trueFirst);
}

void AgentTest::anEntryOfAnEarlierRunIsReported_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<bool>("waiting");
    QTest::newRow("plain") << QByteArray("Name=Corvane\n") << false;
    QTest::newRow("hidden") << QByteArray("Hidden=true\n") << true;
    QTest::newRow("hidden, with space") << QByteArray("Hidden = true\n") << true;
    QTest::newRow("hidden, with more space") << QByteArray("Hidden\t=  true  \n") << true;
    QTest::newRow("hidden, in the last line") << QByteArray("Name=Corvane\nHidden=true") << true;
    QTest::newRow("not hidden") << QByteArray("Hidden=false\n") << false;
    QTest::newRow("switched off by the desktop") << QByteArray("X-GNOME-Autostart-enabled=false\n") << true;
    QTest::newRow("switched off, with space") << QByteArray("X-GNOME-Autostart-enabled = false\n") << true;
    QTest::newRow("switched on by the desktop") << QByteArray("X-GNOME-Autostart-enabled=true\n") << false;
    QTest::newRow("commented out") << QByteArray("#Hidden=true\n") << false;
    QTest::newRow("another key") << QByteArray("X-Hidden=true\nHiddenToo=true\n") << false;
    QTest::newRow("of another group") << QByteArray("[Desktop Action x]\nHidden=true\n") << false;
}

void AgentTest::anEntryOfAnEarlierRunIsReported()
{
    QFETCH(QByteArray, lines);
    QFETCH(bool, waiting);
    writeEntry("[Desktop Entry]\n" + lines);
    start();
    QVERIFY(reports(!waiting, waiting));
}

void AgentTest::anEntryThatIsDeletedIsNoLoginItem()
{
    start();
    setLaunchAtLogin(true);
    VERIFY_REPORTS(true, false);
    QVERIFY(QFile::remove(entryPath()));
    VERIFY_REPORTS(false, false);
}

void AgentTest::aSecondAgentEndsAtOnce()
{
    start();
    setLaunchAtLogin(true);
    VERIFY_REPORTS(true, false);
    Program second(agentProgram, QProcessEnvironment::systemEnvironment());
    QVERIFY(second.start({"--headless"}));
    QVERIFY(second.waitForExit());
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(second.complaints(), QStringList());
    QCOMPARE(second.standardOutput(), QStringList());
    // The first goes on.
    setLaunchAtLogin(false);
    VERIFY_REPORTS(false, false);
    QCOMPARE(m_agent->standardOutput().size(), 2);
}

CORVANE_TEST(AgentTest, runInPrivateSession)

#include "tst_agent.moc"
