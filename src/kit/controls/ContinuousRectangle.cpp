#include "ContinuousRectangle.h"

#include "ContinuousRect.h"

#include <QPainter>

template <typename Value> void ContinuousRectangle::set(Value &member, const Value &value)
{
    if (assign(member, value))
        emit changed();
}

void ContinuousRectangle::setColor(const QColor &color)
{
    set(m_color, color);
}

void ContinuousRectangle::setStrokeColor(const QColor &color)
{
    set(m_strokeColor, color);
}

void ContinuousRectangle::setStrokeWidth(qreal width)
{
    set(m_strokeWidth, width);
}

void ContinuousRectangle::setRadius(qreal radius)
{
    set(m_radius, radius);
}

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
