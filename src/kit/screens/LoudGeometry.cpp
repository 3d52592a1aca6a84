#include "LoudGeometry.h"

#include "ScreenGeometry.h"

#include <algorithm>

namespace {

constexpr QSizeF design(560, 388);
constexpr qreal columnWidth = 220;
constexpr qreal largestColumnScale = 1.25;

}

LoudGeometry LoudGeometry::of(const QSizeF &size, bool mirrored)
{
    const qreal width = size.width();
    const qreal height = size.height();
    const qreal k = std::max(1.0, std::min(width / design.width(), height / design.height()));
    const qreal m = columnWidth * std::min(k, largestColumnScale);
    const QList<Zone> calm = {
        {50, 20, 30, 18},
        {width - 84, 22, 62, 18},
        {62 * k, 90 * k, 0, 56 * k},
        {width - 32 * k - m / 2 - 2, 120 * k, 62 * k, 86 * k},
        {196 * k, height - 32 * k, 196 * k, 54 * k},
    };
    return {k, m, mirrored ? mirroredZones(calm, width) : calm};
}
