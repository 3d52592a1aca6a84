#pragma once

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMutex>
#include <QThread>
#include <QVariantMap>

/// The groups of settings a portal answers with, in order; a group may stand there twice.
struct SettingsGroups {
    QList<std::pair<QString, QVariantMap>> list;
};
Q_DECLARE_METATYPE(SettingsGroups)

QDBusArgument &operator<<(QDBusArgument &argument, const SettingsGroups &groups);
const QDBusArgument &operator>>(const QDBusArgument &argument, SettingsGroups &groups);

/// A value as the bus carries one of any type.
inline QVariant wrapped(const QVariant &value)
{
    return QVariant::fromValue(QDBusVariant(value));
}

/// A settings portal on the session bus for as long as it lives. It answers on a thread of its own, so that who asks
/// may block, and it can do what a real one does only on a bad day.
class SettingsPortal : public QDBusVirtualObject {
public:
    enum class Manner { Answers, IsSlow };

    /// `answer` is what every question gets: normally SettingsGroups, an invalid one stands for an error.
    explicit SettingsPortal(const QVariant &answer, Manner manner = Manner::Answers);
    ~SettingsPortal() override;

    /// The portal's own name on the bus.
    static QString name();

    /// The names of the calls that came in.
    QStringList calls() const;

    /// Gives a slow portal's answers to what was asked until now.
    void answerNow();

    /// Says that a setting has changed.
    void change(const QString &group, const QString &key, const QVariant &value);

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QDBusMessage reply(const QDBusMessage &question) const;

    const QVariant m_answer;
    const Manner m_manner;
    QThread m_thread;
    mutable QMutex m_mutex;
    QList<QDBusMessage> m_questions;
};
