#include "MarkShape.h"

#include "MarkGeometry.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

/// From the grid of the marks into `rect`; none when that is no finite place.
std::optional<QTransform> fitted(const QRectF &rect)
{
    const QRectF box = rect.normalized();
    const qreal k = std::min(box.width(), box.height()) / MarkGeometry::shownSide;
    const QPointF origin = box.center() - QPointF(k, k) * MarkGeometry::gridSide / 2;
    if (!std::isfinite(k) || !std::isfinite(origin.x()) || !std::isfinite(origin.y()))
        return {};
    return QTransform(k, 0, 0, k, origin.x(), origin.y());
}

/// A circle stays one, whichever way its edges moved.
QRectF onPixels(const QRectF &part)
{
    const QPointF topLeft(std::round(part.left()), std::round(part.top()));
    const QSizeF size(std::round(part.right()) - topLeft.x(), std::round(part.bottom()) - topLeft.y());
    const bool isCircle = qFuzzyCompare(part.width(), part.height());
    return {topLeft, isCircle ? QSizeF(size.width(), size.width()) : size};
}

}

QPainterPath MarkShape::path(const QRectF &rect) const
{
    const auto fit = fitted(rect);
    QPainterPath grid;
    MarkGeometry::fill(grid, app);
    return fit ? fit->map(grid) : QPainterPath();
}

QPainterPath MarkShape::sharpPath(const QRectF &rect, const QTransform &toPixels) const
{
    const auto fit = fitted(rect);
    if (!fit)
        return {};
    QPainterPath path;
    for (const QRectF &part : MarkGeometry::parts(app))
        MarkGeometry::add(path, onPixels((*fit * toPixels).mapRect(part)));
    return toPixels.inverted().map(path);
}
