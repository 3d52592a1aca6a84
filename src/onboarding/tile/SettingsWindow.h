#pragma once

#include "WindowList.h"

/// Tells the window of the desktop's System Settings from others.
namespace SettingsWindow {

/// The frame of the frontmost one in a list from front to back, in points, y downwards; none when it is not there.
/// Its small auxiliary windows, 300 points wide or less, do not count.
std::optional<QRectF> frame(const QList<OnScreenWindow> &windows);

}
