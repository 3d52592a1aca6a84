#include "Contract.h"

#include "Hotkey.h"
#include "Shared.h"

#include <algorithm>

namespace {

/// The texts of the keys that offer a choice.
QStringList choicesOf(const QString &key)
{
    using namespace Shared;
    if (key == Key::buttonTheme)
        return {QStringLiteral("classic"), QStringLiteral("soft"), QStringLiteral("graphite"), QStringLiteral("mono"),
                QStringLiteral("outline")};
    if (key == Key::buttonSizeOption)
        return {QStringLiteral("small"), QStringLiteral("medium"), QStringLiteral("large")};
    if (key == Key::maximizeMode)
        return {QStringLiteral("fullscreen"), QStringLiteral("fill")};
    return {};
}

QString announcementOf(const QString &key)
{
    using namespace Shared;
    if (key == Key::agentLaunchAtLogin)
        return Command::setLaunchAtLogin;
    const QStringList announced = {Key::onboardingCompleted, Key::menuBarIconHidden,  Key::buttonTheme,
                                   Key::buttonSizeOption,    Key::showMinimizeButton, Key::showMaximizeButton};
    return announced.contains(key) ? Command::applySettings : QString();
}

}

const QList<Contract::StoreKey> &Contract::storeKeys()
{
    static const QList<StoreKey> keys = [] {
        QList<StoreKey> list = {
#define STORE_KEY(identifier, name, value, writer, meaning)                                                            \
    StoreKey{QStringLiteral(name),                                                                                     \
             value,                                                                                                    \
             QStringLiteral(writer),                                                                                   \
             QStringLiteral(meaning),                                                                                  \
             choicesOf(Shared::Key::identifier),                                                                       \
             announcementOf(Shared::Key::identifier)},
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

const Contract::StoreKey *Contract::storeKey(const QString &name)
{
    const auto found = std::find_if(storeKeys().cbegin(), storeKeys().cend(),
                                    [&](const StoreKey &entry) { return entry.name == name; });
    return found != storeKeys().cend() ? &*found : nullptr;
}

QVariant Contract::defaultValue(const QString &key)
{
    const StoreKey *entry = storeKey(key);
    return entry ? entry->defaultValue : QVariant();
}
