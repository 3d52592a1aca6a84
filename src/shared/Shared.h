#pragma once

#include "Contract.h"
#include "Hotkey.h"

#include <QMap>
#include <QString>

#include <optional>

class UserDefaults;

/// Where this application and its agent meet: the suite both read and write, and the channel of commands.
namespace Shared {

/// The suite's name, which is also the agent's bundle identifier.
inline const QString suiteName = QStringLiteral("com.vexmoor.corvane");

namespace Command {

/// The name of the notification that carries every command.
inline const QString name = QStringLiteral("com.vexmoor.corvane.command");

#define COMMAND(identifier, text, carriesValue, announcesSettings, meaning)                                            \
    inline const QString identifier = QStringLiteral(text);
CORVANE_COMMANDS(COMMAND)
#undef COMMAND

}

namespace Key {

#define STORE_KEY(identifier, text, value, writer, meaning) inline const QString identifier = QStringLiteral(text);
CORVANE_STORE_KEYS(STORE_KEY)
#undef STORE_KEY

/// "hotkey.close.disabled" for `close`.
QString hotkeyDisabled(Hotkey hotkey);

}

/// The shared suite. Inside the agent itself, and where the suite cannot be opened, the standard user
/// defaults.
UserDefaults &store();

/// A value as the store holds it: a Boolean, a text or a finite number; invalid for anything else.
QVariant storable(const QVariant &value);

/// The stored value of a key; `fallback` where the key is absent, not finite or of another type than `fallback`.
QVariant value(const QString &key, const QVariant &fallback);

/// The same with the default of the table.
QVariant value(const QString &key);

/// Posts one command: one that announces settings as soon as what was set before it is stored, any other at once.
/// `value` present means one entry "value", absent means no entry at all. An entry of `extra` under "command" or
/// "value" replaces what stood there. Nothing is answered: the agent's reaction shows as changed "agent." keys, and
/// without an agent the command is lost.
void send(const QString &command, std::optional<bool> value = std::nullopt, const QMap<QString, QString> &extra = {});

}
