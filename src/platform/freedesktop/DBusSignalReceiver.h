#pragma once

#include "DistributedNotificationCenter.h"

#include <QObject>

/// The object one observed signal is delivered to. It lives as long as its parent.
class DBusSignalReceiver : public QObject {
    Q_OBJECT
public:
    DBusSignalReceiver(DistributedNotificationCenter::Observer observer, QObject *parent)
        : QObject(parent), m_observer(std::move(observer))
    {
    }

public slots:
    void receive(const QVariantMap &userInfo) { m_observer(userInfo); }

private:
    DistributedNotificationCenter::Observer m_observer;
};
