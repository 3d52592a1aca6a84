#include "AnimationClock.h"

#include "Require.h"

#include <QCoreApplication>

void AnimationClock::start()
{
    m_elapsed = 0;
    QAnimationDriver::start();
}

void AnimationClock::advance(int milliseconds)
{
    // What has just been started joins in a few events later.
    QCoreApplication::processEvents();
    REQUIRE_SOON(isRunning());
    m_elapsed += milliseconds;
    advanceAnimation();
}
