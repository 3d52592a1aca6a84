#include "ContinuousRectangle.h"

#include "ContinuousRect.h"

#include <QPainter>

bool ContinuousRectangle::contains(const QPointF &point) const
{
    return continuousRect(boundingRect(), m_radius).contains(point);
}

void ContinuousRectangle::paint(QPainter *painter)
{
    paintContinuousRect(painter, pixelBounds(), m_radius, m_color, m_strokeColor, m_strokeWidth);
}

void paintContinuousRect(QPainter *painter, const QRectF &bounds, qreal radius, const QColor &fill,
                         const QColor &stroke, qreal strokeWidth)
{
    if (fill.alpha() > 0)
        painter->fillPath(continuousRect(bounds, radius), fill);
    if (stroke.alpha() == 0 || !(strokeWidth > 0))
        return;
    const qreal inset = strokeWidth / 2;
    if (std::min(bounds.width(), bounds.height()) <= strokeWidth) {
        // Nothing but border.
        painter->fillPath(continuousRect(bounds, radius), stroke);
        return;
    }
    const QPen pen(stroke, strokeWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    painter->strokePath(continuousRect(bounds.adjusted(inset, inset, -inset, -inset), radius - inset), pen);
}

void paintCapsule(QPainter *painter, const QRectF &bounds, const QColor &fill, const QColor &border)
{
    paintContinuousRect(painter, bounds, std::numeric_limits<qreal>::infinity(), fill, border, 1);
}
