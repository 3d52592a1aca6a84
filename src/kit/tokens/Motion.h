#pragma once

#include <QEasingCurve>
#include <QObject>
#include <qqmlregistration.h>

/// How a spring moves from 0 to 1, over its whole course.
class MotionSpring {
    Q_GADGET
    QML_VALUE_TYPE(motionSpring)
    Q_PROPERTY(QEasingCurve easing MEMBER easing CONSTANT)
    Q_PROPERTY(qreal seconds MEMBER seconds CONSTANT)
public:
    QEasingCurve easing;
    /// How long the spring takes to come to rest, that is to stay within a thousandth of its travel.
    qreal seconds = 0;
};

/// All the kit knows about motion: every animation takes its duration and its curve from here.
class Motion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Sets off at once and comes to rest gently.
    Q_PROPERTY(QEasingCurve easeOut READ easeOut CONSTANT)
    /// Sets off and comes to rest gently.
    Q_PROPERTY(QEasingCurve easeInOut READ easeInOut CONSTANT)
public:
    using QObject::QObject;

    /// Milliseconds for an animation that takes `seconds`, or 0 when the person asks for less motion at this
    /// moment. A negative or non-finite number of seconds counts as 0.
    Q_INVOKABLE static int duration(qreal seconds);

    static QEasingCurve easeOut();
    static QEasingCurve easeInOut();

    /// A damped oscillator let go at 0 and pulled to 1. `response` is the period of its undamped swing in
    /// seconds; a `dampingFraction` of 1 comes to rest without overshooting, less overshoots, more creeps.
    /// Without a positive response the spring is already at rest; damping is held between 0.3 and 1.3.
    Q_INVOKABLE static MotionSpring spring(qreal response, qreal dampingFraction);
};
