#include "MarkShape.h"

#include "MarkGeometry.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

QPainterPath MarkShape::path(const QRectF &rect) const
{
    const QRectF box = rect.normalized();
    const qreal k = std::min(box.width(), box.height()) / MarkGeometry::shownSide;
    const QPointF origin = box.center() - QPointF(k, k) * MarkGeometry::gridSide / 2;
    if (!std::isfinite(k) || !std::isfinite(origin.x()) || !std::isfinite(origin.y()))
        return {};
    QPainterPath grid;
    MarkGeometry::fill(grid, app);
    return QTransform(k, 0, 0, k, origin.x(), origin.y()).map(grid);
}
