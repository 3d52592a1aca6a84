#include "Shared.h"

#include "Platform.h"

#include <QPointer>

#include <cmath>

namespace {

UserDefaults &openStore()
{
    Platform &platform = Platform::current();
    if (platform.mainBundle().bundleIdentifier() == Shared::suiteName)
        return platform.standardUserDefaults();
    UserDefaults *suite = platform.userDefaults(Shared::suiteName);
    return suite ? *suite : platform.standardUserDefaults();
}

}

QString Shared::Key::hotkeyDisabled(Hotkey hotkey)
{
    return QStringLiteral("hotkey.") + Hotkeys::caseName(hotkey) + QStringLiteral(".disabled");
}

UserDefaults &Shared::store()
{
    // Taken once, so that every view reads and writes the same object; taken again only for another platform.
    static QPointer<UserDefaults> taken;
    if (!taken)
        taken = &openStore();
    return *taken;
}

QVariant Shared::storable(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::QString:
        return value;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return std::isfinite(value.toDouble()) ? QVariant(value.toDouble()) : QVariant();
    default:
        return {};
    }
}

QVariant Shared::value(const QString &key, const QVariant &fallback)
{
    const QVariant stored = storable(store().value(key));
    return stored.metaType() == fallback.metaType() ? stored : fallback;
}

QVariant Shared::value(const QString &key)
{
    return value(key, Contract::defaultValue(key));
}

void Shared::send(const QString &command, std::optional<bool> value, const QMap<QString, QString> &extra)
{
    QVariantMap userInfo = {{QStringLiteral("command"), command}};
    if (value)
        userInfo.insert(QStringLiteral("value"), *value);
    for (auto entry = extra.cbegin(); entry != extra.cend(); ++entry)
        userInfo.insert(entry.key(), entry.value());
    const auto post = [userInfo] { Platform::current().distributedNotificationCenter().post(Command::name, userInfo); };
    if (Contract::announcesSettings(command))
        store().afterWrites(command, post);
    else
        post();
}
