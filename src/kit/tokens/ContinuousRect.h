#pragma once

#include <QPainterPath>
#include <QRectF>

/// How far from its vertex a corner may begin, in radii.
constexpr double longestCorner = 1.53;

/// A closed rounded rectangle whose corners have no jump in curvature: each side bends slowly into the corner
/// and out of it again, and the corner reaches as far as a circular corner of the same radius.
///
/// `radius` is in the units of `rect` and is held between 0 and half the short side. A corner begins up
/// to `longestCorner` from the vertex where the short side has room for it. With less room it comes closer to the
/// circular arc, so that at half the short side the ends are true half circles. An empty, negative or
/// non-finite rectangle gives an empty path; a radius that is not a number counts as 0.
QPainterPath continuousRect(const QRectF &rect, qreal radius);
