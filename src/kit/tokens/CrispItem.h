#pragma once

#include <QImage>
#include <QQuickItem>

class QPainter;

/// An item that draws itself with a painter and lands on whole device pixels at every scale.
///
/// Its picture is as many pixels as the item covers and is shown unscaled: a painted item of Qt Quick rounds
/// its size to whole points, which stretches an odd size at a scale of 1.5. It is drawn anew only when the
/// size, the scale, the appearance or a property that notifies with `changed` changes, and when it comes into view:
/// what is not visible has no picture.
///
/// A subclass declares what it draws as `Q_PROPERTY(… MEMBER m_x NOTIFY changed)`, and may take colours from the
/// palette while it paints.
class CrispItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS
    /// The item or one around it has a scale other than 1, as in an animation: its pixels are blended then, which would
    /// blur them while they are shown as they were painted.
    Q_PROPERTY(bool isScaled MEMBER m_isScaled NOTIFY changed)
public:
    explicit CrispItem(QQuickItem *parent = nullptr);

signals:
    /// A property that shows has another value.
    void changed();

protected:
    /// Draws in points, the item's top left corner at the origin, antialiased, on a transparent ground.
    virtual void paint(QPainter *painter) = 0;

    /// The item's rectangle with its far edges moved to the nearest device pixel, for shapes that fill the
    /// item. While it paints, the rows and columns that `unevenEdge` leaves out are missing.
    QRectF pixelBounds() const;

    /// How far from its edges one row or column of the picture may differ from the next, in points. Further in they are
    /// all alike, so that one is kept for all, and a large item takes little memory; `paint` then asks `pixelBounds`
    /// for the size. Infinite unless overridden.
    virtual qreal unevenEdge() const { return std::numeric_limits<qreal>::infinity(); }

    /// How far the picture reaches beyond the item on every side, in points; 0 to begin with.
    void setBleed(qreal bleed);

    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    /// A band of rows or columns of the picture, in pixels: those that are kept, and where they are shown, perhaps
    /// drawn out.
    struct Band {
        int kept;
        int keptCount;
        int shown;
        int shownCount;
    };

    qreal scaleFactor() const;
    QList<Band> bands(int length, int bleed) const;
    QImage picture(QSize kept, QSize shown, int bleed);

    qreal m_bleed = 0;
    bool m_isScaled = false;
    /// Pixels that are missing while the item is painted.
    QSize m_leftOut = {0, 0};
};
