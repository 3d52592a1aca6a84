#include "StoreCommands.h"

#include "LayoutArchive.h"
#include "Output.h"
#include "SettingText.h"
#include "SettingValue.h"
#include "Shared.h"
#include "StoreTrouble.h"
#include "UserDefaults.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// What the application goes by: the stored value, or the default where nothing is stored that it believes.
QVariant effective(const Contract::StoreKey &key)
{
    const QVariant stored = Shared::store().value(key.name);
    return stored.isValid() && !SettingValue::fault(key, stored) ? stored : key.defaultValue;
}

QJsonObject described(const Contract::StoreKey &key)
{
    return {{QStringLiteral("key"), key.name},
            {QStringLiteral("type"), SettingValue::typeName(key.defaultValue)},
            {QStringLiteral("value"), SettingText::json(key.name, effective(key))},
            {QStringLiteral("default"), SettingText::json(key.name, key.defaultValue)},
            {QStringLiteral("choices"), QJsonArray::fromStringList(key.choices)},
            {QStringLiteral("isSet"), Shared::store().value(key.name).isValid()},
            {QStringLiteral("writer"), key.writer}};
}

int unknownKey(const Call &call, const QString &name)
{
    return Output::failure(
        call, QStringLiteral("there is no key \"%1\"; 'corvane-ctl list' shows those there are").arg(name));
}

/// Why a person cannot change the key; empty when they can.
QString refusal(const Contract::StoreKey &key)
{
    if (key.name != Shared::Key::agentLaunchAtLogin && Contract::isAgentState(key.name))
        return QStringLiteral("\"%1\" is the agent's own state").arg(key.name);
    if (!Shared::store().isWritable(key.name))
        return QStringLiteral("the administrator has locked \"%1\"").arg(key.name);
    return {};
}

}

int StoreCommands::finish(const Call &call)
{
    if (Shared::store().finishWrites(5s))
        return ExitCode::success;
    const bool isWithoutBus = Shared::store().trouble() == UserDefaults::Trouble::noStore;
    return Output::failure(call,
                           isWithoutBus ? QStringLiteral("not saved: there is no session bus") : StoreTrouble::text());
}

int StoreCommands::list(const Call &call)
{
    QJsonArray array;
    QList<QStringList> rows = {{QStringLiteral("KEY"), QStringLiteral("TYPE"), QStringLiteral("VALUE"),
                                QStringLiteral("DEFAULT"), QStringLiteral("WRITER")}};
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        array.append(described(key));
        rows.append({key.name, SettingValue::typeName(key.defaultValue), SettingText::shown(key.name, effective(key)),
                     SettingText::shown(key.name, key.defaultValue), key.writer});
    }
    if (call.json)
        Output::json(array);
    else
        Output::table(rows);
    return ExitCode::success;
}

int StoreCommands::get(const Call &call)
{
    const Contract::StoreKey *key = Contract::storeKey(call.operands.constFirst());
    if (!key)
        return unknownKey(call, call.operands.constFirst());
    const QVariant value = effective(*key);
    if (call.json)
        Output::json(described(*key));
    else if (key->name == Shared::Key::layoutsSaved)
        Output::line(value.toString().isEmpty() ? QStringLiteral("[]") : value.toString());
    else
        Output::line(SettingText::shown(key->name, value));
    return ExitCode::success;
}

int StoreCommands::set(const Call &call)
{
    const Contract::StoreKey *key = Contract::storeKey(call.operands.at(0));
    if (!key)
        return unknownKey(call, call.operands.at(0));
    if (const QString reason = refusal(*key); !reason.isEmpty())
        return Output::failure(call, reason);
    const auto value = SettingText::parsed(*key, call.operands.at(1));
    const auto fault = SettingValue::fault(*key, value.value_or(QVariant()));
    if (fault)
        return Output::failure(call, *fault);

    LayoutArchive::beforeReplacing(key->name, Shared::store());
    Shared::store().setValue(key->name, *value);
    if (key->name == Shared::Key::agentLaunchAtLogin)
        Shared::store().setValue(Shared::Key::agentLaunchAtLoginNeedsApproval, false);
    if (const int code = finish(call); code != ExitCode::success)
        return code;
    if (key->announcement == Shared::Command::setLaunchAtLogin)
        Shared::send(key->announcement, value->toBool());
    else if (!key->announcement.isEmpty())
        Shared::send(key->announcement);
    if (call.json) {
        QJsonObject done = described(*key);
        done.insert(QStringLiteral("command"),
                    key->announcement.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(key->announcement));
        Output::json(done);
    }
    return ExitCode::success;
}

int StoreCommands::reset(const Call &call)
{
    if (call.all == !call.operands.isEmpty())
        return ExitCode::usage;
    QList<const Contract::StoreKey *> keys;
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        if (call.all ? !Contract::isAgentState(key.name) : call.operands.contains(key.name))
            keys.append(&key);
    }
    for (const QString &name : call.operands) {
        if (!Contract::storeKey(name))
            return unknownKey(call, name);
        if (Contract::isAgentState(name))
            return Output::failure(call, QStringLiteral("\"%1\" is the agent's own state").arg(name));
    }
    for (const Contract::StoreKey *key : keys) {
        if (const QString reason = refusal(*key); !reason.isEmpty())
            return Output::failure(call, reason);
    }
    bool isAnnounced = false;
    QJsonArray array;
    for (const Contract::StoreKey *key : keys) {
        LayoutArchive::beforeReplacing(key->name, Shared::store());
        Shared::store().setValue(key->name, QVariant());
        isAnnounced = isAnnounced || !key->announcement.isEmpty();
        array.append(described(*key));
    }
    if (const int code = finish(call); code != ExitCode::success)
        return code;
    if (isAnnounced)
        Shared::send(Shared::Command::applySettings);
    if (call.json)
        Output::json(array);
    return ExitCode::success;
}

int StoreCommands::send(const Call &call)
{
    const auto &commands = Contract::commands();
    const QString name = call.operands.constFirst();
    const auto command = std::ranges::find(commands, name, &Contract::CommandEntry::name);
    if (command == commands.end()) {
        QStringList names;
        for (const Contract::CommandEntry &entry : commands)
            names.append(entry.name);
        return Output::failure(call,
                               QStringLiteral("there is no command \"%1\" for the agent, only %2")
                                   .arg(name, names.join(QStringLiteral(", "))));
    }
    const QString operand = call.operands.value(1);
    if (command->carriesValue != (operand == u"true" || operand == u"false")
        || command->carriesValue == operand.isEmpty())
        return Output::failure(call,
                               command->carriesValue ? QStringLiteral("%1 takes true or false").arg(name)
                                                     : QStringLiteral("%1 takes no value").arg(name));
    Shared::send(name, command->carriesValue ? std::optional(operand == u"true") : std::nullopt);
    if (call.json) {
        Output::json(QJsonObject{
            {QStringLiteral("command"), name},
            {QStringLiteral("value"), command->carriesValue ? QJsonValue(operand == u"true") : QJsonValue::Null}});
    }
    return ExitCode::success;
}
