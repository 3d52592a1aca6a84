#include "KitDrawing.h"

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
    strokeExactly(&painter, EBKitGlyphs::path(glyph),
                  QPen(color, glyphGridStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}
