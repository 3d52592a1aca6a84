#pragma once

#include "CrispItem.h"
#include "DotLayout.h"
#include "EBApp.h"

/// A texture of dots and short bars in the product's darker colour, placed at random on a grid. It does not move: it is
/// painted once, and again when a property changes. Absent from accessibility.
class DotField : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// The product whose dot colour it has; any other text reads as the kit's first product.
    Q_PROPERTY(QString app MEMBER m_app NOTIFY changed)
    /// The area in points; also the item's implicit size. Nothing is drawn while it holds no cell.
    Q_PROPERTY(QSizeF size MEMBER m_area NOTIFY changed)
    /// The pitch of the grid in points, above 0.
    Q_PROPERTY(qreal cell MEMBER m_cell NOTIFY changed)
    /// Chooses the picture; a negative number stands for the seed of the same 32 bits.
    Q_PROPERTY(int seed MEMBER m_seed NOTIFY changed)
    /// The chance, 0 to 1, that a fully open cell gets a mark.
    Q_PROPERTY(qreal density MEMBER m_density NOTIFY changed)
    /// The distance from a calm zone's margin, in points, over which the chance rises to `density`.
    Q_PROPERTY(qreal ramp MEMBER m_ramp NOTIFY changed)
    /// How far around each calm zone no mark begins, in points.
    Q_PROPERTY(qreal margin MEMBER m_margin NOTIFY changed)
    /// Where no mark is wanted.
    Q_PROPERTY(QList<Zone> calm MEMBER m_calm NOTIFY changed)
public:
    explicit DotField(QQuickItem *parent = nullptr);

protected:
    void paint(QPainter *painter) override;

private:
    QString m_app = EBApps::rawValue(EBApps::allCases.front());
    QSizeF m_area = {0, 0};
    qreal m_cell = 20;
    int m_seed = 0;
    qreal m_density = 0.7;
    qreal m_ramp = 50;
    qreal m_margin = 2;
    QList<Zone> m_calm;
};

/// The outline of all marks of a layout, to be filled at once. They have fully round ends.
QPainterPath dotOutline(const QList<QRectF> &marks, qreal cell);
