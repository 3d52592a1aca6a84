#pragma once

#include "GlyphName.h"

/// The glyphs of the hand-drawn views: the cases of `GlyphName`, in the same order.
enum class EBKitGlyph {
#define GLYPH(name) name,
    KIT_GLYPHS(GLYPH)
#undef GLYPH
};

/// All glyphs, in case order.
std::span<const EBKitGlyph> allEBKitGlyphs();

/// The glyph's raw string, which is its case name.
QString rawValue(EBKitGlyph glyph);

/// The glyph of that raw string; none for any other text. Upper and lower case differ.
std::optional<EBKitGlyph> ebKitGlyph(QStringView rawValue);

/// The outline of the `GlyphName` of the same name, in grid units, with two differences: rounded rectangles
/// have ordinary circular corners, and the outline of `spark` ends on its start without being closed.
QPainterPath path(EBKitGlyph glyph);
