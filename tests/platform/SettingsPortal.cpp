#include "SettingsPortal.h"

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusVariant>

namespace {

const QString connectionName = QStringLiteral("portal");
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString objectPath = QStringLiteral("/org/freedesktop/portal/desktop");

QDBusConnection bus()
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName);
}

}

QDBusArgument &operator<<(QDBusArgument &argument, const SettingsGroups &groups)
{
    argument.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QVariantMap>());
    for (const auto &[name, values] : groups.list) {
        argument.beginMapEntry();
        argument << name << values;
        argument.endMapEntry();
    }
    argument.endMap();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, SettingsGroups &)
{
    return argument;
}

SettingsPortal::SettingsPortal(const QVariant &answer, Manner manner) : m_answer(answer), m_manner(manner)
{
    qDBusRegisterMetaType<SettingsGroups>();
    moveToThread(&m_thread);
    m_thread.start();
    bus().registerVirtualObject(objectPath, this);
    bus().registerService(service);
}

SettingsPortal::~SettingsPortal()
{
    bus().unregisterService(service);
    bus().unregisterObject(objectPath);
    QDBusConnection::disconnectFromBus(connectionName);
    m_thread.quit();
    m_thread.wait();
}

QString SettingsPortal::name()
{
    return bus().baseService();
}

QStringList SettingsPortal::calls() const
{
    const QMutexLocker lock(&m_mutex);
    QStringList names;
    for (const QDBusMessage &question : m_questions)
        names.append(question.member());
    return names;
}

void SettingsPortal::answerNow()
{
    const QMutexLocker lock(&m_mutex);
    for (const QDBusMessage &question : std::as_const(m_questions))
        bus().send(reply(question));
}

void SettingsPortal::change(const QString &group, const QString &key, const QVariant &value)
{
    QDBusMessage signal = QDBusMessage::createSignal(objectPath, QStringLiteral("org.freedesktop.portal.Settings"),
                                                     QStringLiteral("SettingChanged"));
    signal << group << key << QVariant::fromValue(QDBusVariant(value));
    bus().send(signal);
}

bool SettingsPortal::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    const QMutexLocker lock(&m_mutex);
    m_questions.append(message);
    return m_manner == Manner::IsSlow || connection.send(reply(message));
}

QDBusMessage SettingsPortal::reply(const QDBusMessage &question) const
{
    if (!m_answer.isValid()) {
        return question.createErrorReply(QStringLiteral("org.freedesktop.portal.Error.Failed"),
                                         QStringLiteral("No settings today"));
    }
    return question.createReply(m_answer);
}
