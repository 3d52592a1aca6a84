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

// Through the middle of a pixel when the line is an odd number of pixels wide, between two when it is even.
QPointF sharpCenter(const QPainter &painter, QPointF center, qreal lineWidth)
{
    const QTransform &toPixels = painter.deviceTransform();
    const qreal pixels = std::max(1.0, std::round(lineWidth * std::abs(toPixels.m22())));
    const qreal offset = std::fmod(pixels, 2) / 2;
    const QPointF at = toPixels.map(center);
    return toPixels.inverted().map(QPointF(std::round(at.x() - offset) + offset, std::round(at.y() - offset) + offset));
}

// Most glyphs have a line through their middle, which would be a blur on a screen with few pixels a point.
QRectF glyphBox(const QPainter &painter, qreal size, const QRectF &bounds)
{
    QRectF box(0, 0, size, size);
    box.moveCenter(sharpCenter(painter, bounds.center(), glyphStrokeWidth(size)));
    return box;
}

void strokeExactly(QPainter *painter, const QPainterPath &path, const QPen &pen)
{
    painter->fillPath(QPainterPathStroker(pen).createStroke(path), pen.color());
}

void paintGlyph(QPainter *painter, GlyphName name, qreal size, const QColor &color, const QRectF &bounds)
{
    if (!(size > 0))
        return;
    QPen pen(color, glyphStrokeWidth(size), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    pen.setMiterLimit(10);
    strokeExactly(painter, GlyphShape{name}.path(glyphBox(*painter, size, bounds)), pen);
}
