#pragma once

#include <QAnimationDriver>

/// While it lives, animations move when the test says so, and only then.
class AnimationClock : public QAnimationDriver {
public:
    AnimationClock() { install(); }

    /// Moves what is being animated; something has to be.
    void advance(int milliseconds);
    qint64 elapsed() const override { return m_elapsed; }

protected:
    void start() override;

private:
    using QAnimationDriver::advance;

    qint64 m_elapsed = 0;
};
