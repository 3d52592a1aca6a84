#include "ButtonGlyph.h"

#include <QPolygonF>

namespace {

QPainterPath cross(QPointF center, qreal reach)
{
    QPainterPath path;
    path.moveTo(center + QPointF(-reach, -reach));
    path.lineTo(center + QPointF(reach, reach));
    path.moveTo(center + QPointF(-reach, reach));
    path.lineTo(center + QPointF(reach, -reach));
    return path;
}

QPainterPath bar(QPointF center, qreal reach)
{
    QPainterPath path(center - QPointF(reach, 0));
    path.lineTo(center + QPointF(reach, 0));
    return path;
}

QPainterPath doubleArrow(QPointF center, qreal reach, qreal head)
{
    const QPointF lowerLeft = center + QPointF(-reach, reach);
    const QPointF upperRight = center + QPointF(reach, -reach);
    QPainterPath path(lowerLeft);
    path.lineTo(upperRight);
    path.addPolygon(QPolygonF({upperRight - QPointF(head, 0), upperRight, upperRight + QPointF(0, head)}));
    path.addPolygon(QPolygonF({lowerLeft + QPointF(head, 0), lowerLeft, lowerLeft - QPointF(0, head)}));
    return path;
}

}

QPainterPath ButtonGlyph::path(const QRectF &rect) const
{
    const qreal r = 0.2 * rect.width();
    switch (kind) {
    case OverlayButton::close:
        return cross(rect.center(), r);
    case OverlayButton::minimize:
        return bar(rect.center(), 1.15 * r);
    case OverlayButton::maximize:
        return doubleArrow(rect.center(), 1.1 * r, 0.9 * r);
    }
    return {};
}
