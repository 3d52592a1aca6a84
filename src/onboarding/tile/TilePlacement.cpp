#include "TilePlacement.h"

#include <algorithm>

namespace {

constexpr qreal belowWindow = 12;
constexpr qreal insideWindow = 16;
constexpr qreal screenMargin = 4;

}

QRectF TilePlacement::flipped(const QRectF &rect, qreal firstScreenHeight)
{
    return {QPointF(rect.x(), firstScreenHeight - rect.y() - rect.height()), rect.size()};
}

QRectF TilePlacement::visibleFrame(const QRectF &window, const QList<Screen> &screens, const Screen &main)
{
    const auto shows = [&](const Screen &screen) { return screen.frame.intersects(window); };
    const auto found = std::find_if(screens.begin(), screens.end(), shows);
    return found == screens.end() ? main.visibleFrame : found->visibleFrame;
}

QPointF TilePlacement::origin(const QRectF &window, QSizeF tile, const QRectF &visibleFrame)
{
    const qreal x = window.center().x() - tile.width() / 2;
    const qreal below = window.y() - tile.height() - belowWindow;
    return {x, below < visibleFrame.y() + screenMargin ? window.y() + insideWindow : below};
}
