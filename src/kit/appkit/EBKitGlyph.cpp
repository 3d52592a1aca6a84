#include "EBKitGlyph.h"

#include "GlyphPaths.h"

QPainterPath EBKitGlyphs::path(EBKitGlyph glyph)
{
    return glyphPath(static_cast<GlyphName>(glyph), CornerStyle::circular);
}
