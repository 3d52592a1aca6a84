#pragma once

#include "CrispItem.h"
#include "GlyphName.h"

#include <QColor>

/// One glyph of the set, stroked in one colour. Absent from accessibility: the control around it carries the
/// name.
class Glyph : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// The glyph's raw string. Any other text draws nothing.
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed)
    /// The side of the square the glyph occupies, in points; also the item's implicit size. In an item of
    /// another size the glyph keeps its own and stands in the middle. Nothing is drawn at 0 or below.
    Q_PROPERTY(qreal size MEMBER m_size NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
public:
    explicit Glyph(QQuickItem *parent = nullptr);

protected:
    void paint(QPainter *painter) override;

private:
    QString m_name;
    qreal m_size = 24;
    QColor m_color = Qt::black;
};

/// The place nearest to `center` where a horizontal or vertical line of this width (points) runs along device pixels.
QPointF sharpCenter(const QPainter &painter, QPointF center, qreal lineWidth);

/// The square of `size` points in the middle of `bounds`, to the nearest half device pixel, in which the lines of a
/// glyph are sharp.
QRectF glyphBox(const QPainter &painter, qreal size, const QRectF &bounds);

/// Strokes a path as QPainter does, but exactly also where the line is up to a pixel wide: QPainter's own code for such
/// lines draws diagonals half a pixel aside and too pale.
void strokeExactly(QPainter *painter, const QPainterPath &path, const QPen &pen);

/// Strokes a glyph of `size` points in its `glyphBox`.
void paintGlyph(QPainter *painter, GlyphName name, qreal size, const QColor &color, const QRectF &bounds);
