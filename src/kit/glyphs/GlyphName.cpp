#include "GlyphName.h"

#include "GlyphPaths.h"

QPainterPath GlyphNames::path(GlyphName name)
{
    return glyphPath(name, CornerStyle::continuous);
}
