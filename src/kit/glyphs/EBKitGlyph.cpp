#include "EBKitGlyph.h"

#include "GlyphPaths.h"

#include <array>

namespace {

constexpr std::array glyphs = {
#define GLYPH(name) EBKitGlyph::name,
    KIT_GLYPHS(GLYPH)
#undef GLYPH
};

constexpr GlyphName counterpart(EBKitGlyph glyph)
{
    return static_cast<GlyphName>(glyph);
}

}

std::span<const EBKitGlyph> allEBKitGlyphs()
{
    return glyphs;
}

QString rawValue(EBKitGlyph glyph)
{
    return rawValue(counterpart(glyph));
}

std::optional<EBKitGlyph> ebKitGlyph(QStringView rawValue)
{
    const auto name = glyphName(rawValue);
    return name ? std::optional(static_cast<EBKitGlyph>(*name)) : std::nullopt;
}

QPainterPath path(EBKitGlyph glyph)
{
    return glyphPath(counterpart(glyph), CornerStyle::circular);
}
