#pragma once

#include "GlyphName.h"

/// The glyphs of the hand-drawn views: the cases of `GlyphName`, in the same order.
enum class EBKitGlyph {
#define GLYPH(name) name,
    KIT_GLYPHS(GLYPH)
#undef GLYPH
};

struct EBKitGlyphs : NamedCases<EBKitGlyph> {
    /// The outline of the `GlyphName` of the same name, in grid units, with two differences: rounded rectangles
    /// have ordinary circular corners, and the outline of `spark` ends on its start without being closed.
    static QPainterPath path(EBKitGlyph glyph);
};
