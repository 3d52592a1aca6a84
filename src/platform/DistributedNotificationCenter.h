#pragma once

#include <QVariantMap>

#include <functional>

/// Notices between the processes of one desktop session. Nothing is answered, and a notice nobody hears is lost.
class DistributedNotificationCenter {
public:
    using Observer = std::function<void(const QVariantMap &userInfo)>;

    virtual ~DistributedNotificationCenter() = default;

    /// Posts at once. `name` is a dotted name such as "com.vexmoor.corvane.command"; the values of `userInfo`
    /// are Booleans and strings. Without a session to post to, the notice is lost in silence.
    virtual void post(const QString &name, const QVariantMap &userInfo) = 0;

    /// Calls `observer` for every notice of that name, for as long as `context` lives.
    virtual void observe(const QString &name, QObject *context, Observer observer) = 0;
};
