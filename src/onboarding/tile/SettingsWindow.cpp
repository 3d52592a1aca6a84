#include "SettingsWindow.h"

#include <algorithm>

namespace {

constexpr qreal auxiliaryWidth = 300;

bool qualifies(const OnScreenWindow &window)
{
    return window.layer == 0 && window.ownerIsSystemSettings && window.bounds
        && window.bounds->width() > auxiliaryWidth;
}

}

std::optional<QRectF> SettingsWindow::frame(const QList<OnScreenWindow> &windows)
{
    const auto found = std::find_if(windows.begin(), windows.end(), qualifies);
    return found == windows.end() ? std::nullopt : found->bounds;
}
