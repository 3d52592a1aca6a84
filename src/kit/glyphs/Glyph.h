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
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    /// The side of the square the glyph occupies, in points; also the item's implicit size. In an item of
    /// another size the glyph keeps its own and stands in the middle. Nothing is drawn at 0 or below.
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
public:
    explicit Glyph(QQuickItem *parent = nullptr);

    QString name() const { return m_name; }
    void setName(const QString &name);
    qreal size() const { return m_size; }
    void setSize(qreal size);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

signals:
    void nameChanged();
    void sizeChanged();
    void colorChanged();

protected:
    void paint(QPainter *painter) override;

private:
    QString m_name;
    std::optional<GlyphName> m_glyph;
    qreal m_size = 24;
    QColor m_color = Qt::black;
};

/// The square of `size` points in the middle of `bounds`, to the nearest half device pixel, in which the lines of a
/// glyph are sharp.
QRectF glyphBox(const QPainter &painter, qreal size, const QRectF &bounds);

/// Strokes a glyph of `size` points in its `glyphBox`.
void paintGlyph(QPainter *painter, GlyphName name, qreal size, const QColor &color, const QRectF &bounds);
