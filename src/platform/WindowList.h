#pragma once

#include <QList>
#include <QRectF>

#include <optional>

/// A window on the screen, as far as the desktop tells of it.
struct OnScreenWindow {
    /// 0 for the windows people work in; any other number for what floats above or lies below them: menus, panels,
    /// the desktop's background.
    std::optional<int> layer;

    /// The application that owns the window is the desktop's System Settings. False when the owner is unknown.
    bool ownerIsSystemSettings = false;

    /// The window with its frame and without its shadow, in points from the top left corner of the first screen.
    std::optional<QRectF> bounds;
};

/// The windows that other applications, and this one, show at the moment.
class WindowList {
public:
    virtual ~WindowList() = default;

    /// Whether the desktop tells one application of the windows of others. Where it does not, no window is ever listed.
    virtual bool isAvailable() = 0;

    /// The windows that are on the screen, front to back.
    virtual QList<OnScreenWindow> onScreenWindows() = 0;
};
