#pragma once

#include "GlyphName.h"

#include <QRectF>

/// The side of the square grid that every glyph is drawn on, in grid units.
inline constexpr qreal glyphGridSide = 24;

/// The width of every glyph's stroke, in grid units, so that the weight of the line scales with the glyph.
inline constexpr qreal glyphGridStroke = 1.6;

/// The stroke width of a glyph that occupies a square of `size` points, in points.
constexpr qreal glyphStrokeWidth(qreal size)
{
    return size * glyphGridStroke / glyphGridSide;
}

/// A glyph that fits itself into a rectangle.
struct GlyphShape {
    GlyphName name;

    /// The outline in the units of `rect`: its grid fills the short side and is centred along the long one. A
    /// rectangle without area collapses the outline onto its centre; a non-finite one gives an empty path.
    QPainterPath path(const QRectF &rect) const;
};
