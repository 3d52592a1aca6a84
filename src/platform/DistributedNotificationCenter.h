#pragma once

#include <QVariantMap>

#include <functional>

/// Notifications between the processes of one desktop session. There are no replies, and one without an observer is
/// lost.
class DistributedNotificationCenter {
public:
    using Observer = std::function<void(const QVariantMap &userInfo)>;

    virtual ~DistributedNotificationCenter() = default;

    /// Posts at once. `name` is a dotted name such as "com.vexmoor.corvane.command"; the values of `userInfo` are
    /// Booleans and strings. Without a session to post to, the notification is dropped in silence.
    virtual void post(const QString &name, const QVariantMap &userInfo) = 0;

    /// Whether there is a session to post to; one that does not answer yet is waited for, up to five seconds.
    virtual bool isAvailable() const = 0;

    /// Calls `lost` when the session's notifications cease, while `context` lives.
    virtual void whenLost(QObject *context, std::function<void()> lost) = 0;

    /// Calls `observer` for every notification of that name while `context` lives, in a session that comes later or
    /// comes back, too.
    virtual void observe(const QString &name, QObject *context, Observer observer) = 0;
};
