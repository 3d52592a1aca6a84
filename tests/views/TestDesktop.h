#pragma once

#include "AnimationClock.h"
#include "FakePlatform.h"
#include "Require.h"

#include <QObject>

#include <memory>

/// The desktop around the views under test, for QML to set.
class TestDesktop : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY changed)
    Q_PROPERTY(bool reduceMotion READ reduceMotion WRITE setReduceMotion NOTIFY changed)
    /// Animations move by advance() alone.
    Q_PROPERTY(bool holdsAnimations READ holdsAnimations WRITE setHoldsAnimations NOTIFY changed)
public:
    TestDesktop() { connect(&m_platform.look, &Appearance::changed, this, &TestDesktop::changed); }

    bool dark() const { return m_platform.look.bestMatch() == AppearanceName::DarkAqua; }
    void setDark(bool dark) { m_platform.look.setName(dark ? AppearanceName::DarkAqua : AppearanceName::Aqua); }
    bool reduceMotion() const { return m_platform.look.shouldReduceMotion(); }
    void setReduceMotion(bool reduceMotion) { m_platform.look.setReduceMotion(reduceMotion); }

    bool holdsAnimations() const { return bool(m_clock); }
    void setHoldsAnimations(bool holds) { m_clock = holds ? std::make_unique<AnimationClock>() : nullptr; }

    /// Moves what is being animated; false when nothing is.
    Q_INVOKABLE bool advance(int milliseconds)
    {
        try {
            m_clock->advance(milliseconds);
            return true;
        } catch (const TestFailure &) {
            return false;
        }
    }

    FakePlatform &platform() { return m_platform; }

signals:
    void changed();

private:
    FakePlatform &m_platform = FakePlatform::install();
    std::unique_ptr<AnimationClock> m_clock;
};
