#include "GlyphName.h"

#include "GlyphPaths.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array names = {
#define GLYPH(name) GlyphName::name,
    KIT_GLYPHS(GLYPH)
#undef GLYPH
};

constexpr std::array<QStringView, names.size()> rawValues = {
#define GLYPH(name) u## #name,
    KIT_GLYPHS(GLYPH)
#undef GLYPH
};

}

std::span<const GlyphName> allGlyphNames()
{
    return names;
}

QString rawValue(GlyphName name)
{
    return rawValues.at(static_cast<std::size_t>(name)).toString();
}

std::optional<GlyphName> glyphName(QStringView rawValue)
{
    const auto found = std::find(rawValues.begin(), rawValues.end(), rawValue);
    if (found == rawValues.end())
        return std::nullopt;
    return names.at(static_cast<std::size_t>(found - rawValues.begin()));
}

QPainterPath path(GlyphName name)
{
    return glyphPath(name, CornerStyle::continuous);
}
