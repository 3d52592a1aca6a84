#include "GlyphShape.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

QPainterPath GlyphShape::path(const QRectF &rect) const
{
    const QRectF box = rect.normalized();
    const qreal k = std::min(box.width(), box.height()) / glyphGridSide;
    const QPointF origin = box.center() - QPointF(k, k) * glyphGridSide / 2;
    if (!std::isfinite(k) || !std::isfinite(origin.x()) || !std::isfinite(origin.y()))
        return {};
    return QTransform(k, 0, 0, k, origin.x(), origin.y()).map(GlyphNames::path(name));
}
