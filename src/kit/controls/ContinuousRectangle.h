#pragma once

#include "ContinuousRect.h"
#include "CrispItem.h"

#include <QColor>
#include <QPainterPath>

#include <algorithm>

/// A rectangle with continuous corners that fills the item: card, well, capsule or circle.
/// A point in a cut-off corner is outside the item, also for the pointer.
class ContinuousRectangle : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor strokeColor MEMBER m_strokeColor NOTIFY changed)
    /// Points, drawn inside the edge; 0 draws none.
    Q_PROPERTY(qreal strokeWidth MEMBER m_strokeWidth NOTIFY changed)
    /// Points; half the short side and beyond gives true half circles, and that is what it starts with.
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed)
public:
    using CrispItem::CrispItem;

    bool contains(const QPointF &point) const override;

protected:
    void paint(QPainter *painter) override;
    qreal unevenEdge() const override { return longestCorner * std::max(m_radius, 0.0) + m_strokeWidth; }

private:
    QColor m_color = Qt::transparent;
    QColor m_strokeColor = Qt::transparent;
    qreal m_strokeWidth = 0;
    qreal m_radius = std::numeric_limits<qreal>::infinity();
};

/// Fills `bounds` and strokes it inside its edge.
void paintContinuousRect(QPainter *painter, const QRectF &bounds, qreal radius, const QColor &fill,
                         const QColor &stroke = Qt::transparent, qreal strokeWidth = 0);

/// A capsule of the kit: the ends are half circles, and a border is one point wide.
void paintCapsule(QPainter *painter, const QRectF &bounds, const QColor &fill, const QColor &border = Qt::transparent);
