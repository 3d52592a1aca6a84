#pragma once

#include <QObject>
#include <qqmlregistration.h>

/// What the Buttons page tells the agent.
class ButtonsActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// The look of the buttons has changed in the store: the agent should read it again.
    Q_INVOKABLE void announce();
};
