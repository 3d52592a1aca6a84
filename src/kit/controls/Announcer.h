#pragma once

#include <QObject>
#include <qqmlregistration.h>

class QQuickItem;

/// Has assistive technologies read out what a person did not ask for.
class Announcer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// Reads out the name of `item`, whose role is Accessible.Notification, as it is now.
    Q_INVOKABLE static void announce(QQuickItem *item);
};
