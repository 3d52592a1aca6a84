#include "AgentCheck.h"

#include "NativePlatform.h"
#include "Platform.h"
#include "PrivateSession.h"
#include "Shared.h"
#include "TestProgram.h"
#include "UserDefaults.h"

using namespace std::chrono_literals;

namespace {

/// The rules that the agent falls short of.
QStringList broken(const QList<AgentCheck::Rule> &rules)
{
    QStringList names;
    for (const AgentCheck::Rule &rule : rules) {
        if (!rule.faults.isEmpty())
            names.append(rule.name);
    }
    return names;
}

QString faults(const QList<AgentCheck::Rule> &rules)
{
    QStringList all;
    for (const AgentCheck::Rule &rule : rules)
        all += rule.faults;
    return all.join(u'\n');
}

}

/// What the trial says of agents: of the reference, and of one that is broken on purpose, one rule at a time.
class AgentCheckTest : public QObject {
    Q_OBJECT
public:
    explicit AgentCheckTest(PrivateSession &session) : m_session(session) { }

private slots:
    void initTestCase() { Platform::install(NativePlatform::make()); }
    void cleanup();

    void anAgentThatBreaksNoRulePasses();
    void anAgentThatBreaksARuleFailsOnThatOne_data();
    void anAgentThatBreaksARuleFailsOnThatOne();
    void aProgramThatEndsIsNoAgent();

private:
    AgentCheck check(const QString &program, const QStringList &arguments, std::chrono::milliseconds patience = 20s,
                     std::chrono::milliseconds startPatience = 20s)
    {
        const auto restartBus = [this] {
            m_session.stop();
            return m_session.start();
        };
        return {program, arguments, restartBus, patience, startPatience};
    }

    PrivateSession &m_session;
};

void AgentCheckTest::cleanup()
{
    for (const Contract::StoreKey &key : Contract::storeKeys())
        Shared::store().setValue(key.name, QVariant());
    QVERIFY(Shared::store().finishWrites(5s));
}

void AgentCheckTest::anAgentThatBreaksNoRulePasses()
{
    const auto rules = check(PROGRAM_BROKEN_AGENT, {}).run();
    QCOMPARE(rules.size(), 9);
    QCOMPARE(faults(rules), QString());
}

void AgentCheckTest::anAgentThatBreaksARuleFailsOnThatOne_data()
{
    QTest::addColumn<QString>("rule");
    // Short where the agent breaks it by what it does not do, as that is waited for.
    QTest::addColumn<std::chrono::milliseconds>("patience");
    QTest::newRow("name") << QString("name") << 500ms;
    for (const char *part : {"login-twice", "settings-unknown"})
        QTest::newRow(part) << QString(part) << std::chrono::milliseconds(20s);
    for (const char *rule : {"one", "login", "bus", "bus-deaf"})
        QTest::newRow(rule) << QString(rule) << std::chrono::milliseconds(1s);
    for (const char *rule : {"value", "strangers", "settings", "layouts", "types"})
        QTest::newRow(rule) << QString(rule) << std::chrono::milliseconds(20s);
}

void AgentCheckTest::anAgentThatBreaksARuleFailsOnThatOne()
{
    QFETCH(QString, rule);
    QFETCH(std::chrono::milliseconds, patience);
    const QString name = rule.section(u'-', 0, 0);
    const auto rules = check(PROGRAM_BROKEN_AGENT, {rule}, patience, rule == "name" ? patience : 20s).run({name});
    QCOMPARE(broken(rules), QStringList{name});
}

void AgentCheckTest::aProgramThatEndsIsNoAgent()
{
    const auto rules = check("/bin/true", {}).run();
    QCOMPARE(rules.size(), 1);
    QCOMPARE(faults(rules), "it ended before it held the name");
}

CORVANE_TEST(AgentCheckTest, runInPrivateSession)
#include "tst_agentcheck.moc"
