#pragma once

#include "DistributedNotificationCenter.h"

/// Notifications as signals on the session bus. The last part of a name is the signal's member, the rest its interface,
/// and the path is the interface with slashes instead of dots. The only argument is the user info, a{sv}. A name of any
/// other form is dropped.
class DBusNotificationCenter : public DistributedNotificationCenter {
public:
    void post(const QString &name, const QVariantMap &userInfo) override;
    bool isAvailable() const override;
    void whenLost(QObject *context, std::function<void()> lost) override;
    void observe(const QString &name, QObject *context, Observer observer) override;
};
