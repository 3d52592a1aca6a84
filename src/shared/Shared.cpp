#include "Shared.h"

#include "Platform.h"

QString Shared::Key::hotkeyDisabled(Hotkey hotkey)
{
    return QStringLiteral("hotkey.") + Hotkeys::caseName(hotkey) + QStringLiteral(".disabled");
}

UserDefaults &Shared::store()
{
    Platform &platform = Platform::current();
    if (platform.mainBundle().bundleIdentifier() == suiteName)
        return platform.standardUserDefaults();
    UserDefaults *suite = platform.userDefaults(suiteName);
    return suite ? *suite : platform.standardUserDefaults();
}

void Shared::send(const QString &command, std::optional<bool> value, const QMap<QString, QString> &extra)
{
    QVariantMap userInfo = {{QStringLiteral("command"), command}};
    if (value)
        userInfo.insert(QStringLiteral("value"), *value);
    for (auto entry = extra.cbegin(); entry != extra.cend(); ++entry)
        userInfo.insert(entry.key(), entry.value());
    Platform::current().distributedNotificationCenter().post(Command::name, userInfo);
}
