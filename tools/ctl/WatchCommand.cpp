#include "WatchCommand.h"

#include "Output.h"
#include "Platform.h"
#include "SettingText.h"
#include "Shared.h"

#include <QCoreApplication>
#include <QJsonObject>

namespace {

const QString type = QStringLiteral("type");

/// Prints; when that cannot be read any more the program ends.
void tell(const QJsonObject &event)
{
    if (!Output::jsonLine(event))
        QCoreApplication::quit();
}

/// Knows the values, as a store may say that something has changed when nothing has.
class Follower : public QObject {
public:
    Follower()
    {
        for (const Contract::StoreKey &key : Contract::storeKeys())
            m_values.insert(key.name, Shared::store().value(key.name));
        connect(&Shared::store(), &UserDefaults::changed, this, [this](const QString &changed) {
            for (const QString &key : m_values.keys()) {
                if (changed.isEmpty() || changed == key)
                    look(key);
            }
        });
    }

private:
    void look(const QString &key)
    {
        const QVariant value = Shared::store().value(key);
        QVariant &known = m_values[key];
        if (known == value && known.metaType() == value.metaType())
            return;
        known = value;
        tell({{type, QStringLiteral("change")},
              {QStringLiteral("key"), key},
              {QStringLiteral("value"), SettingText::json(key, value)}});
    }

    QVariantMap m_values;
};

}

int WatchCommand::run(const Call &call)
{
    Follower follower;
    DistributedNotificationCenter &center = Platform::current().distributedNotificationCenter();
    center.whenLost(&follower, [] { QCoreApplication::exit(ExitCode::failure); });
    center.observe(Shared::Command::name, &follower, [](const QVariantMap &userInfo) {
        QJsonObject event = QJsonObject::fromVariantMap(userInfo);
        event.insert(type, QStringLiteral("command"));
        tell(event);
    });
    if (!Output::jsonLine(QJsonObject{{type, QStringLiteral("watching")}}))
        return ExitCode::failure;
    const int code = QCoreApplication::exec();
    return code == ExitCode::success ? code : Output::failure(call, QStringLiteral("the session bus has ended"));
}
