#pragma once

#include "EBKitGlyph.h"

#include <QColor>
#include <QRectF>

class QPainter;

/// Strokes a glyph of `side` points in the middle of `bounds`, to the nearest half device pixel.
void drawGlyph(QPainter &painter, EBKitGlyph glyph, qreal side, const QColor &color, const QRectF &bounds);
