#pragma once

#include "Motion.h"

/// Where a motion is at an instant, for scenes that show it standing still.
class Course : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// How far a spring is from 0 on its way to 1, `seconds` after it was let go.
    Q_INVOKABLE static qreal of(const MotionSpring &spring, qreal seconds)
    {
        return spring.easing.valueForProgress(seconds / spring.seconds);
    }
};
