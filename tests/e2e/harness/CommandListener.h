#pragma once

#include "Store.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

#include <optional>

/// A command that was heard on the session bus.
struct HeardCommand {
    QString command;

    /// None when the command carried no value.
    std::optional<QVariant> value;

    /// Everything beside "command" and "value".
    QVariantMap extras;

    /// What the store held when the command arrived: what the agent would find.
    QVariantMap stored;
};

/// Hears the commands to the agent, as the agent would: on a connection to the session bus of its own.
class CommandListener : public QObject {
    Q_OBJECT
public:
    explicit CommandListener(const Store &store);
    ~CommandListener() override;

    const QList<HeardCommand> &heard() const { return m_heard; }
    void clear() { m_heard.clear(); }

    bool waitForCount(qsizetype count, int milliseconds = 5000);

    /// Waits until the service that stores the settings has answered everything it was sent so far.
    void settleStore();

    /// Waits until everything that process has sent to the session bus so far has arrived here.
    void settle(qint64 processId);

private Q_SLOTS:
    void receive(const QVariantMap &userInfo);

private:
    Store m_store;
    QDBusConnection m_bus;
    QList<HeardCommand> m_heard;
};
