#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <memory>

/// Runs an agent in the session of this process and holds it against the contract (docs/contract.md), from outside
/// only: by its name on the bus, its "agent." keys, and what it leaves alone. The session's store is used up by that.
class AgentCheck {
public:
    struct Rule {
        QString name;
        /// What the contract asks for.
        QString demand;
        /// What falls short; empty when nothing does.
        QStringList faults;
    };

    /// `patience` is how long the agent may take for a thing that it has to do, `startPatience` for its start.
    /// `restartBus` ends the bus of the session and starts another one at its address; false when it does not start.
    AgentCheck(QString program, QStringList arguments, std::function<bool()> restartBus,
               std::chrono::milliseconds patience, std::chrono::milliseconds startPatience);
    ~AgentCheck();

    /// Starts the agent, tries every rule, or only those of these names, and ends the agent. The rule "name" comes
    /// first, and without it there is no other.
    QList<Rule> run(const QStringList &only = {});

private:
    /// Asks the agent to end, and ends it when it does not.
    struct End {
        void operator()(QProcess *process) const;
    };
    using Process = std::unique_ptr<QProcess, End>;

    Process start() const;
    /// Starts it once more where a rule before has ended it.
    void revive();
    bool hasEnded() const;
    void begin(const char *name, const char *demand);
    /// Notes a fault of the rule that is being tried.
    void expect(bool isTrue, const QString &fault);
    /// Whether the agent still runs under its name; otherwise a fault of what was done to it.
    void expectAlive(const QString &after);

    void checkName();
    void checkOne();
    void checkLogin();
    void checkValue();
    void checkStrangers();
    void checkSettings();
    void checkLayouts();
    void checkTypes();
    void checkBus();

    /// Posts the command's signal; a command has one argument, a map.
    void post(const QVariantList &arguments) const;
    /// Whether it does what it is asked for, in the end: it has its name before it listens, so it is asked again.
    bool listens();
    /// Stores what would be reported with the login item registered or not. The report of what is stored already
    /// could not be told from none.
    void pretendLogin(bool on) const;
    /// Has the login item registered or not, and waits until the agent says so.
    bool setLogin(bool on, const QVariantMap &extras = {});
    /// Whether it still registers itself when signals with these arguments come right behind the command. An agent
    /// that does not do so without them either has nothing to lose: true.
    bool keepsLoginItem(const QList<QVariantList> &followers);
    bool isRegistered() const;
    /// Stores the values, an invalid one removes its key, posts "applySettings", and says which are not as they were
    /// left.
    QStringList changedAfter(const QVariantMap &values);
    QString owner() const;
    static bool waitFor(const std::function<bool()> &condition, std::chrono::milliseconds limit);
    /// Waits until the agent has done what it was asked for so far.
    void settle();

    const QString m_program;
    const QStringList m_arguments;
    const std::function<bool()> m_restartBus;
    const std::chrono::milliseconds m_patience;
    const std::chrono::milliseconds m_startPatience;
    QDBusConnection m_bus;
    Process m_agent;
    QString m_owner;
    /// Whether it has reported what it was asked for last, and after how long.
    bool m_answers = true;
    std::chrono::milliseconds m_answerTime{0};
    QList<Rule> m_rules;
};
