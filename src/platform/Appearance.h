#pragma once

#include <QObject>

#include <optional>

enum class AppearanceName { Aqua, DarkAqua, AccessibilityHighContrastAqua, AccessibilityHighContrastDarkAqua };

/// How the desktop wants to be drawn. What the desktop does not say counts as no preference.
class Appearance : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// The best match among the four names; none when the desktop's appearance matches none of them.
    virtual std::optional<AppearanceName> bestMatch() const = 0;

    /// The person asked for less motion.
    virtual bool shouldReduceMotion() const = 0;

    /// Waits a moment for a desktop that has not answered yet. Called once, before the first frame, so that it is drawn
    /// right; what is not known when this returns arrives as a change.
    virtual void settle() { }

    /// Has the desktop start whatever tells of its appearance, where that does not run yet. Called once, after the
    /// first frame; nothing waits for it, and what comes of it arrives as a change.
    virtual void wake() { }

signals:
    void changed();
};
