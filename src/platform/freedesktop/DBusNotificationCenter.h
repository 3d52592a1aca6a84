#pragma once

#include "DistributedNotificationCenter.h"

/// Notices as signals on the session bus. The name's last part is the signal, the rest the interface, and the
/// interface with slashes for its dots the path; the one argument is the user info, a{sv}. A name of another
/// form is lost.
class DBusNotificationCenter : public DistributedNotificationCenter {
public:
    void post(const QString &name, const QVariantMap &userInfo) override;
    void observe(const QString &name, QObject *context, Observer observer) override;
};
