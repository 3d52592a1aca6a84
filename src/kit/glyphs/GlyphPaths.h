#pragma once

#include "GlyphName.h"

/// How the rounded rectangles of a glyph turn their corners.
enum class CornerStyle { continuous, circular };

/// The geometry behind both glyph enumerations, in grid units.
QPainterPath glyphPath(GlyphName name, CornerStyle corners);
