#pragma once

#include "CrispItem.h"
#include "DotLayout.h"
#include "EBApp.h"

/// A texture of dots and short bars in the product's darker colour, laid by lot on a grid. It is still: it is drawn
/// once, and again when one of its fields changes. Absent from accessibility.
class DotField : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// The product whose dot colour it has; any other text reads as the kit's first product.
    Q_PROPERTY(QString app READ app WRITE setApp NOTIFY changed)
    /// The area in points; also the item's implicit size. Nothing is drawn while it holds no cell.
    Q_PROPERTY(QSizeF size READ area WRITE setArea NOTIFY changed)
    /// The pitch of the grid in points, above 0.
    Q_PROPERTY(qreal cell READ cell WRITE setCell NOTIFY changed)
    /// Chooses the picture; a negative number stands for the seed of the same 32 bits.
    Q_PROPERTY(int seed READ seed WRITE setSeed NOTIFY changed)
    /// The chance, 0 to 1, that a fully open cell gets a mark.
    Q_PROPERTY(qreal density READ density WRITE setDensity NOTIFY changed)
    /// The distance from a calm zone's margin, in points, over which the chance rises to `density`.
    Q_PROPERTY(qreal ramp READ ramp WRITE setRamp NOTIFY changed)
    /// How far around each calm zone no mark begins, in points.
    Q_PROPERTY(qreal margin READ margin WRITE setMargin NOTIFY changed)
    /// Where no mark is wanted.
    Q_PROPERTY(QList<Zone> calm READ calm WRITE setCalm NOTIFY changed)
public:
    explicit DotField(QQuickItem *parent = nullptr);

    QString app() const { return m_app; }
    void setApp(const QString &rawValue);
    QSizeF area() const { return m_area; }
    void setArea(const QSizeF &area);
    qreal cell() const { return m_cell; }
    void setCell(qreal cell);
    int seed() const { return m_seed; }
    void setSeed(int seed);
    qreal density() const { return m_density; }
    void setDensity(qreal density);
    qreal ramp() const { return m_ramp; }
    void setRamp(qreal ramp);
    qreal margin() const { return m_margin; }
    void setMargin(qreal margin);
    QList<Zone> calm() const { return m_calm; }
    void setCalm(const QList<Zone> &calm);

signals:
    void changed();

protected:
    void paint(QPainter *painter) override;

private:
    template <typename Value> bool set(Value &member, const Value &value);

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
