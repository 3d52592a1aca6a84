#include "Glyph.h"

#include "GlyphShape.h"

#include <QPainter>

#include <cmath>

Glyph::Glyph(QQuickItem *parent) : CrispItem(parent)
{
    const auto measure = [this] { setImplicitSize(m_size, m_size); };
    connect(this, &Glyph::changed, this, measure);
    measure();
}

void Glyph::paint(QPainter *painter)
{
    if (const auto glyph = GlyphNames::fromRawValue(m_name))
        paintGlyph(painter, *glyph, m_size, m_color, boundingRect());
}

// Most glyphs have a line through their middle. On a screen with few pixels a point it is only sharp if it
// runs along pixels: through the middle of one when the stroke is an odd number of pixels wide, between two
// when it is even.
static QPointF sharpCenter(const QPainter &painter, QPointF center, qreal strokeWidth)
{
    const QTransform &toPixels = painter.deviceTransform();
    const qreal pixels = std::max(1.0, std::round(strokeWidth * std::abs(toPixels.m22())));
    const qreal offset = std::fmod(pixels, 2) / 2;
    const QPointF at = toPixels.map(center);
    return toPixels.inverted().map(QPointF(std::round(at.x() - offset) + offset, std::round(at.y() - offset) + offset));
}

QRectF glyphBox(const QPainter &painter, qreal size, const QRectF &bounds)
{
    QRectF box(0, 0, size, size);
    box.moveCenter(sharpCenter(painter, bounds.center(), glyphStrokeWidth(size)));
    return box;
}

void paintGlyph(QPainter *painter, GlyphName name, qreal size, const QColor &color, const QRectF &bounds)
{
    if (!(size > 0))
        return;
    QPen pen(color, glyphStrokeWidth(size), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    pen.setMiterLimit(10);
    painter->strokePath(GlyphShape{name}.path(glyphBox(*painter, size, bounds)), pen);
}
