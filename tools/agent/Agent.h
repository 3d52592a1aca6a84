#pragma once

#include "LoginItem.h"

#include <QObject>
#include <QVariantMap>

/// The reference agent: hears the commands, does what they ask, and reports its state in the "agent." keys.
class Agent : public QObject {
    Q_OBJECT
public:
    explicit Agent(LoginItem &loginItem);

signals:
    /// The person should be asked for the Accessibility permission.
    void accessibilityRequested();

private:
    void perform(const QVariantMap &userInfo);
    void reportLoginItem();

    LoginItem &m_loginItem;
};
