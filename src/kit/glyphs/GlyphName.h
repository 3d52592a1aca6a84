#pragma once

#include "CaseNames.h"

#include <QPainterPath>

/// Every glyph there is, declared once and in order: all enumerations of glyphs and the look-up of the geometry derive
/// from it.
// clang-format off
#define KIT_GLYPHS(GLYPH)                                                                                   \
    GLYPH(apps) GLYPH(arrow) GLYPH(buds) GLYPH(call) GLYPH(check) GLYPH(chevrons) GLYPH(clock) GLYPH(close) \
    GLYPH(cmd) GLYPH(cursor) GLYPH(dock) GLYPH(dots) GLYPH(download) GLYPH(eye) GLYPH(flag) GLYPH(gear)     \
    GLYPH(globe) GLYPH(head) GLYPH(info) GLYPH(key) GLYPH(levels) GLYPH(mic) GLYPH(minus) GLYPH(mute)       \
    GLYPH(note) GLYPH(play) GLYPH(playpause) GLYPH(plus) GLYPH(power) GLYPH(refresh) GLYPH(search)          \
    GLYPH(share) GLYPH(sliders) GLYPH(spark) GLYPH(speaker) GLYPH(terminal) GLYPH(undo) GLYPH(volume)       \
    GLYPH(warning) GLYPH(wifi) GLYPH(wins)
// clang-format on

/// The glyphs of the declarative views.
enum class GlyphName {
#define GLYPH(name) name,
    KIT_GLYPHS(GLYPH)
#undef GLYPH
};

struct GlyphNames : NamedCases<GlyphName> {
    /// The glyph's outline in grid units, 24 x 24 with the origin at the top left and y growing downwards. It is
    /// made to be stroked, 1.6 units wide with round caps and joins, and never filled. Rounded rectangles have
    /// continuous corners.
    static QPainterPath path(GlyphName name);
};
