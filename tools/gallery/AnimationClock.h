#pragma once

#include <QAnimationDriver>

/// The time of all animations of the process, which stands still until it is told to go on.
class AnimationClock : public QAnimationDriver {
public:
    AnimationClock() { install(); }

    /// Brings every running animation to its end.
    void finishAnimations()
    {
        constexpr qint64 longerThanAny = 60'000; // milliseconds
        m_elapsed += longerThanAny;
        advanceAnimation();
    }

    qint64 elapsed() const override { return m_elapsed; }

private:
    qint64 m_elapsed = 0;
};
