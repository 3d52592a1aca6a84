#pragma once

#include <QList>
#include <QRectF>

/// Where the tile goes. All in points with y upwards from the lower edge of the first screen: a rectangle's y() is its
/// lower edge.
namespace TilePlacement {

struct Screen {
    QRectF frame;
    /// Without what the desktop keeps for its own bars.
    QRectF visibleFrame;
};

/// Converts a rectangle between y upwards and y downwards from the first screen's upper edge, in either direction.
QRectF flipped(const QRectF &rect, qreal firstScreenHeight);

/// The visible frame of the first of `screens` that shows some of `window`, else that of `main`, else an empty one.
QRectF visibleFrame(const QRectF &window, const QList<Screen> &screens, const Screen &main);

/// The lower left corner of a tile that hangs below `window`, in its middle; where there is no room left for that on
/// the screen, the tile stands inside the window at its lower edge.
QPointF origin(const QRectF &window, QSizeF tile, const QRectF &visibleFrame);

}
