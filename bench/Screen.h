#pragma once

#include <xcb/xcb.h>

#include <QImage>

#include <chrono>
#include <optional>

/// Watches an X display from outside: when does a window show a colour, when does anything change on it.
class Screen {
public:
    using Clock = std::chrono::steady_clock;

    /// Connects to the display of the environment, on which no other window may be shown.
    Screen();
    ~Screen();
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    /// When a pixel in the middle of the screen, `above` points over its centre, first showed `color`. None
    /// in time: none.
    std::optional<Clock::time_point> waitForColor(QRgb color, int above, std::chrono::milliseconds timeout);

    /// When something was next painted; what was painted before the call does not count.
    std::optional<Clock::time_point> waitForPaint(std::chrono::milliseconds timeout);

    /// What the screen shows.
    QImage picture() const;

    /// Forgets everything painted so far.
    void settle();

    /// Waits until the last program's windows are gone, and ends this program if they stay.
    void waitUntilEmpty();

private:
    bool awaitDamage(Clock::time_point deadline);
    std::optional<QRgb> pixel(int x, int y) const;

    xcb_connection_t *m_connection;
    xcb_screen_t *m_screen;
    std::uint32_t m_damage;
    std::uint8_t m_damageNotify;
};
