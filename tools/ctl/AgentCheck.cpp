#include "AgentCheck.h"

#include "Shared.h"
#include "UserDefaults.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// How long an agent is looked at that should do nothing.
constexpr std::chrono::milliseconds moment = 200ms;

const QString ownConnection = QStringLiteral("corvane-check");
const QString commandEntry = QStringLiteral("command");
const QString valueEntry = QStringLiteral("value");

void store(const QString &key, const QVariant &value)
{
    Shared::store().setValue(key, value);
}

/// Takes what has come over the bus, and waits a moment for more.
void lookAround()
{
    QEventLoop loop;
    QTimer::singleShot(10ms, &loop, &QEventLoop::quit);
    loop.exec();
}

QDBusConnection connectToBus()
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, ownConnection);
}

QVariantMap command(const QString &name)
{
    return {{commandEntry, name}};
}

QVariantMap loginCommand(bool on)
{
    return {{commandEntry, Shared::Command::setLaunchAtLogin}, {valueEntry, on}};
}

}

AgentCheck::AgentCheck(QString program, QStringList arguments, std::function<bool()> restartBus,
                       std::chrono::milliseconds patience, std::chrono::milliseconds startPatience)
    : m_program(std::move(program)),
      m_arguments(std::move(arguments)),
      m_restartBus(std::move(restartBus)),
      m_patience(patience),
      m_startPatience(startPatience),
      m_bus(connectToBus())
{
}

AgentCheck::~AgentCheck()
{
    QDBusConnection::disconnectFromBus(ownConnection);
}

QList<AgentCheck::Rule> AgentCheck::run(const QStringList &only)
{
    m_rules.clear();
    checkName();
    const QList<std::pair<const char *, void (AgentCheck::*)()>> checks = {
        {"one", &AgentCheck::checkOne},           {"login", &AgentCheck::checkLogin},
        {"value", &AgentCheck::checkValue},       {"strangers", &AgentCheck::checkStrangers},
        {"settings", &AgentCheck::checkSettings}, {"layouts", &AgentCheck::checkLayouts},
        {"types", &AgentCheck::checkTypes},       {"bus", &AgentCheck::checkBus}};
    for (const auto &[name, check] : checks) {
        if (!m_rules.constFirst().faults.isEmpty())
            break;
        if (!only.isEmpty() && !only.contains(QLatin1String(name)))
            continue;
        revive();
        (this->*check)();
    }
    m_agent.reset();
    return m_rules;
}

void AgentCheck::End::operator()(QProcess *process) const
{
    constexpr int patience = 2000; // milliseconds
    process->terminate();
    if (!process->waitForFinished(patience))
        process->kill();
    process->waitForFinished(patience);
    delete process;
}

AgentCheck::Process AgentCheck::start() const
{
    Process process(new QProcess);
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardInputFile(QProcess::nullDevice());
    process->start(m_program, m_arguments);
    return process;
}

void AgentCheck::revive()
{
    if (m_agent && !hasEnded() && owner() == m_owner)
        return;
    m_agent = start();
    waitFor([this] { return !owner().isEmpty() || hasEnded(); }, m_startPatience);
    m_owner = owner();
    m_answers = !m_owner.isEmpty() && listens() && setLogin(false);
}

bool AgentCheck::hasEnded() const
{
    return m_agent->state() == QProcess::NotRunning;
}

void AgentCheck::begin(const char *name, const char *demand)
{
    m_rules.append({QString::fromLatin1(name), QString::fromLatin1(demand), {}});
}

void AgentCheck::expect(bool isTrue, const QString &fault)
{
    if (!isTrue)
        m_rules.last().faults.append(fault);
}

void AgentCheck::expectAlive(const QString &after)
{
    expect(!hasEnded() && owner() == m_owner, QStringLiteral("it has ended, or lost its name, after %1").arg(after));
}

void AgentCheck::checkName()
{
    begin("name", "holds the name com.vexmoor.corvane while it runs");
    revive();
    expect(!m_owner.isEmpty(),
           hasEnded() ? QStringLiteral("it ended before it held the name") : QStringLiteral("nobody holds the name"));
}

void AgentCheck::checkOne()
{
    begin("one", "a second one ends, and the first keeps the name");
    const Process second = start();
    expect(waitFor([&] { return second->state() == QProcess::NotRunning; }, m_patience),
           QStringLiteral("the second one runs on"));
    settle();
    expectAlive(QStringLiteral("a second one was started"));
}

void AgentCheck::checkLogin()
{
    begin("login", "does what setLaunchAtLogin asks for, and reports it");
    const QVariantMap extra = {{QStringLiteral("note"), QStringLiteral("from a newer application")}};
    if (!setLogin(true))
        expect(false, QStringLiteral("asked for, no login item is reported, nor one that waits for approval"));
    else if (!setLogin(false))
        expect(false, QStringLiteral("asked to take it away, a login item is still reported"));
    else if (!setLogin(true, extra))
        expect(false, QStringLiteral("an extra entry keeps it from doing what is asked for"));
    else
        expect(keepsLoginItem({{loginCommand(true)}}),
               QStringLiteral("asked for the same once more, it takes the login item away"));
    settle();
    expectAlive(QStringLiteral("setLaunchAtLogin"));
}

void AgentCheck::checkValue()
{
    begin("value", "takes no value for none: only a Boolean registers or unregisters it");
    const QString name = Shared::Command::setLaunchAtLogin;
    QList<QVariantList> odd = {{command(name)}};
    for (const QVariant &value : {QVariant(QStringLiteral("false")), QVariant(0), QVariant(0.0)})
        odd.append({QVariantMap{{commandEntry, name}, {valueEntry, value}}});
    expect(keepsLoginItem(odd),
           QStringLiteral("without a value, or with a text or a number for one, it unregisters itself"));
    settle();
    expectAlive(QStringLiteral("a value that is no Boolean"));
}

void AgentCheck::checkStrangers()
{
    begin("strangers", "passes over what it does not know");
    const QList<QVariantList> strangers = {
        {QVariantMap()},
        {command(QStringLiteral("fly"))},
        {command(QString())},
        {command(QStringLiteral("SETLAUNCHATLOGIN"))},
        {QVariantMap{{commandEntry, 7}}},
        {QVariantMap{{valueEntry, false}}},
        {QVariantMap{{commandEntry, QStringLiteral("fly")}, {valueEntry, false}}},
        {},
        {QStringLiteral("applySettings")},
        {7, false},
    };
    expect(keepsLoginItem(strangers), QStringLiteral("a command that nobody knows changes its login item"));
    settle();
    expectAlive(QStringLiteral("commands that nobody knows"));
}

void AgentCheck::checkSettings()
{
    begin("settings", "leaves a person's settings as they are, those that it does not understand too");
    QVariantMap chosen;
    QVariantMap strange;
    QVariantMap none;
    chosen.insert(QStringLiteral("note"), QStringLiteral("from a newer application"));
    none.insert(QStringLiteral("note"), QVariant());
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        if (key.writer != u"application")
            continue;
        none.insert(key.name, QVariant());
        if (key.defaultValue.typeId() == QMetaType::Bool) {
            chosen.insert(key.name, !key.defaultValue.toBool());
            strange.insert(key.name, QStringLiteral("neither"));
        } else if (key.defaultValue.typeId() == QMetaType::Double) {
            chosen.insert(key.name, 12.0);
            strange.insert(key.name, QStringLiteral("wide"));
        } else {
            chosen.insert(key.name, key.choices.constLast());
            strange.insert(key.name, QStringLiteral("one of a newer version"));
        }
    }
    for (const auto &[values, what] : {std::pair(chosen, "a choice"), std::pair(strange, "a value that nobody knows"),
                                       std::pair(none, "a key that is not set")}) {
        const QStringList changed = changedAfter(values);
        expect(changed.isEmpty(),
               QStringLiteral("%1 is changed: %2").arg(QLatin1String(what), changed.join(QStringLiteral(", "))));
        expectAlive(QLatin1String(what));
    }
}

void AgentCheck::checkLayouts()
{
    begin("layouts", "leaves saved layouts as they are, with fields that it does not know");
    const QString text = QStringLiteral(
        R"([{"colour":"blue","created":816923962.5,"id":"A79EFA8C-62E2-4EF0-BEDE-D88F6F452152","name":"Work\/Home",)"
        R"("windows":[{"app":"Browser","bundleID":"org.example.Browser","rect":{"h":1,"w":0.5,"x":0,"y":0},)"
        R"("title":"Start page"}]}])");
    expect(changedAfter({{Shared::Key::layoutsSaved, text}}).isEmpty(), QStringLiteral("the text is written anew"));
    expectAlive(QStringLiteral("a layout with a field that nobody knows"));
    // Such a text the agent may mend.
    changedAfter({{Shared::Key::layoutsSaved, QStringLiteral("[{\"windows\":")}});
    expectAlive(QStringLiteral("a text that holds no layouts"));
}

void AgentCheck::checkTypes()
{
    begin("types", "reports Booleans and nothing else in its keys");
    post({command(Shared::Command::requestAccessibility)});
    post({command(Shared::Command::checkForUpdates)});
    settle();
    expectAlive(QStringLiteral("requestAccessibility and checkForUpdates"));
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        const QVariant value = Shared::store().value(key.name);
        expect(!Contract::isAgentState(key.name) || !value.isValid() || value.typeId() == QMetaType::Bool,
               QStringLiteral("%1 is no Boolean").arg(key.name));
    }
}

void AgentCheck::checkBus()
{
    begin("bus", "claims its name and listens again when the bus ends and comes back");
    QDBusConnection::disconnectFromBus(ownConnection);
    if (!m_restartBus()) {
        expect(false, QStringLiteral("the bus did not come back"));
        return;
    }
    m_bus = connectToBus();
    waitFor([this] { return !owner().isEmpty() || hasEnded(); }, m_patience);
    m_owner = owner();
    expect(!hasEnded(), QStringLiteral("it has ended with the bus"));
    expect(!m_owner.isEmpty(), QStringLiteral("nobody holds the name"));
    if (hasEnded() || m_owner.isEmpty())
        return;
    // The store comes back with the bus as well.
    waitFor([] { return Shared::store().finishWrites(0ms); }, m_patience);
    expect(listens(), QStringLiteral("it does not do what it is asked for any more"));
}

void AgentCheck::post(const QVariantList &arguments) const
{
    const QString interface = Shared::Command::name.section(u'.', 0, -2);
    QDBusMessage signal = QDBusMessage::createSignal(u'/' + QString(interface).replace(u'.', u'/'), interface,
                                                     Shared::Command::name.section(u'.', -1));
    signal.setArguments(arguments);
    m_bus.send(signal);
}

bool AgentCheck::listens()
{
    pretendLogin(false);
    const QDeadlineTimer deadline(m_patience);
    do {
        post({loginCommand(true)});
    } while (!waitFor([this] { return isRegistered(); }, moment) && !deadline.hasExpired());
    return isRegistered();
}

void AgentCheck::pretendLogin(bool on) const
{
    store(Shared::Key::agentLaunchAtLogin, on);
    store(Shared::Key::agentLaunchAtLoginNeedsApproval, false);
    Shared::store().finishWrites(m_patience);
}

bool AgentCheck::setLogin(bool on, const QVariantMap &extras)
{
    pretendLogin(!on);
    QVariantMap userInfo = loginCommand(on);
    userInfo.insert(extras);
    QElapsedTimer timer;
    timer.start();
    post({userInfo});
    m_answers = waitFor([&] { return isRegistered() == on || hasEnded(); }, m_patience) && isRegistered() == on;
    m_answerTime = std::chrono::milliseconds(timer.elapsed());
    return m_answers;
}

bool AgentCheck::keepsLoginItem(const QList<QVariantList> &followers)
{
    if (!setLogin(true) || !setLogin(false))
        return true;
    bool hasReported = false;
    const auto ear = QObject::connect(&Shared::store(), &UserDefaults::changed,
                                      [&](const QString &key) { hasReported |= Contract::isAgentState(key); });
    post({loginCommand(true)});
    for (const QVariantList &follower : followers)
        post(follower);
    waitFor([&] { return hasReported || hasEnded(); }, m_patience);
    QObject::disconnect(ear);
    // With this report the followers are in its hands, and what it makes of them takes no longer than that took.
    waitFor([] { return false; }, moment + 10 * m_answerTime);
    return isRegistered();
}

bool AgentCheck::isRegistered() const
{
    return Shared::value(Shared::Key::agentLaunchAtLogin).toBool()
        || Shared::value(Shared::Key::agentLaunchAtLoginNeedsApproval).toBool();
}

QStringList AgentCheck::changedAfter(const QVariantMap &values)
{
    UserDefaults &settings = Shared::store();
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        settings.setValue(value.key(), value.value());
    settings.finishWrites(m_patience);
    post({command(Shared::Command::applySettings)});
    settle();
    QStringList changed;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (settings.value(value.key()) != value.value())
            changed.append(value.key());
    }
    return changed;
}

QString AgentCheck::owner() const
{
    return m_bus.interface()->serviceOwner(Contract::agentName).value();
}

bool AgentCheck::waitFor(const std::function<bool()> &condition, std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        lookAround();
    }
    return true;
}

void AgentCheck::settle()
{
    // The bus keeps the order of the commands, and an agent that of its reports: with this one, it has done what was
    // asked for before. One that does something later, in another thread for instance, has a moment more.
    if (m_answers)
        setLogin(!isRegistered());
    waitFor([] { return false; }, moment);
}
