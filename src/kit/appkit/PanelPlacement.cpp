#include "PanelPlacement.h"

#include <algorithm>

namespace {

/// Between the panel and its anchor.
constexpr int gap = 4;

/// From `wanted`, the nearest start at which `length` points lie within `low` and `high`; `low` where they are too
/// many.
int within(int wanted, int length, int low, int high)
{
    return std::max(low, std::min(wanted, high - length));
}

}

QRect panelPlacement(const QRect &anchor, const QSize &size, const QRect &available)
{
    const int bottom = available.top() + available.height();
    const int right = available.left() + available.width();
    const int below = anchor.top() + anchor.height() + gap;
    const int above = anchor.top() - gap - size.height();
    const bool fitsBelow = below + size.height() <= bottom;
    const int y = fitsBelow || above < available.top() ? below : above;
    const int x = anchor.left() + (anchor.width() - size.width()) / 2;
    return {QPoint(within(x, size.width(), available.left(), right), within(y, size.height(), available.top(), bottom)),
            size};
}
