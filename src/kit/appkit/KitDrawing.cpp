#include "KitDrawing.h"

#include "EBKit.h"
#include "Glyph.h"
#include "GlyphShape.h"

#include <QPainter>

void drawGlyph(QPainter &painter, EBKitGlyph glyph, qreal side, const QColor &color, const QRectF &bounds)
{
    if (!(side > 0))
        return;
    painter.save();
    painter.translate(glyphBox(painter, side, bounds).topLeft());
    painter.scale(side / glyphGridSide, side / glyphGridSide);
    painter.strokePath(path(glyph), QPen(color, glyphGridStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

void drawDisc(QPainter &painter, EBKitGlyph glyph, qreal side, const QRectF &disc, bool on, const QColor &accent,
              const QColor &onAccent)
{
    QPainterPath oval;
    oval.addEllipse(on ? disc : disc.adjusted(0.5, 0.5, -0.5, -0.5));
    if (on)
        painter.fillPath(oval, accent);
    else
        painter.strokePath(oval, QPen(EBKit::lineStrong().current(), 1.0));
    drawGlyph(painter, glyph, side, on ? onAccent : EBKit::ink().current(), disc);
}
