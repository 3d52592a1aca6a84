#include "Contract.h"

#include "Hotkey.h"
#include "Shared.h"

#include <algorithm>

const QList<Contract::StoreKey> &Contract::storeKeys()
{
    static const QList<StoreKey> keys = [] {
        QList<StoreKey> list = {
#define STORE_KEY(identifier, name, value, writer, meaning)                                                            \
    StoreKey{QStringLiteral(name), value, QStringLiteral(writer), QStringLiteral(meaning)},
            CORVANE_STORE_KEYS(STORE_KEY)
#undef STORE_KEY
        };
        for (const Hotkey hotkey : Hotkeys::allCases) {
            list.append({Shared::Key::hotkeyDisabled(hotkey), false, QStringLiteral("application"),
                         QStringLiteral("The shortcut %1 is switched off.").arg(Hotkeys::shownAs(hotkey))});
        }
        return list;
    }();
    return keys;
}

const QList<Contract::CommandEntry> &Contract::commands()
{
    static const QList<CommandEntry> list = {
#define COMMAND(identifier, name, carriesValue, announcesSettings, meaning)                                            \
    CommandEntry{QStringLiteral(name), carriesValue, announcesSettings, QStringLiteral(meaning)},
        CORVANE_COMMANDS(COMMAND)
#undef COMMAND
    };
    return list;
}

bool Contract::announcesSettings(const QString &command)
{
    return std::any_of(commands().cbegin(), commands().cend(),
                       [&](const CommandEntry &entry) { return entry.name == command && entry.announcesSettings; });
}

QVariant Contract::defaultValue(const QString &key)
{
    for (const StoreKey &entry : storeKeys()) {
        if (entry.name == key)
            return entry.defaultValue;
    }
    return {};
}
