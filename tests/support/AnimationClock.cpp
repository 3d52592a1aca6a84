#include "AnimationClock.h"

#include <QCoreApplication>
#include <QTest>

void AnimationClock::start()
{
    m_elapsed = 0;
    QAnimationDriver::start();
}

void AnimationClock::advance(int milliseconds)
{
    // What has just been started joins in a few events later.
    QCoreApplication::processEvents();
    QTRY_VERIFY(isRunning());
    m_elapsed += milliseconds;
    advanceAnimation();
}
