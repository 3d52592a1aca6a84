#pragma once

#include "EBKitGlyph.h"

#include <QColor>
#include <QRectF>

class QPainter;

/// Strokes a glyph of `side` points in the middle of `bounds`, to the nearest half device pixel.
void drawGlyph(QPainter &painter, EBKitGlyph glyph, qreal side, const QColor &color, const QRectF &bounds);

/// A glyph of `side` points in a disc: the oval in `disc` filled with `accent` and the glyph in `onAccent` when `on`,
/// else the oval's outline, a point wide inside its edge, and the glyph in ink.
void drawDisc(QPainter &painter, EBKitGlyph glyph, qreal side, const QRectF &disc, bool on, const QColor &accent,
              const QColor &onAccent);
