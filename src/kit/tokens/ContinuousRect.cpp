#include "ContinuousRect.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

// How far each ramp turns, in radians, before the arc takes over. With ramps much wider than this the corner
// begins to look like one of a larger radius.
constexpr qreal widestRamp = 0.5;

// The length of a ramp's first two legs over that of its last. Equally long legs would let the curvature
// overshoot on a wide ramp; these let it only grow.
constexpr qreal lead = 1.2;

// Half of one corner of radius 1, seen from its vertex: x runs back along the side, y into the rectangle.
// The ramp is a cubic that leaves the side without curvature and meets the arc with the arc's own curvature.
struct Corner {
    explicit Corner(qreal ramp)
    {
        const qreal sine = std::sin(ramp);
        const qreal cosine = std::cos(ramp);
        const qreal drop = 2.0 / 3.0 * lead * sine * sine + cosine;
        // The arc shrinks a little, so that the corner's middle stays where a circular corner has it.
        const qreal arcRadius = (std::numbers::sqrt2 - 1) / (std::numbers::sqrt2 * drop - 1);
        const qreal leg = 2.0 / 3.0 * lead * sine * arcRadius;
        const qreal sweep = std::numbers::pi / 2 - 2 * ramp;
        const qreal handle = 4.0 / 3.0 * std::tan(sweep / 4) * arcRadius;

        const QPointF arcStart((drop - sine) * arcRadius, leg * sine);
        const QPointF forward(-cosine, sine);
        start = QPointF(arcStart.x() + leg * (2 * lead + cosine), 0);
        points = {start - QPointF(lead * leg, 0), start - QPointF(2 * lead * leg, 0), arcStart,
                  arcStart + handle * forward};
    }

    QPointF start;
    // The ramp's two controls and end, then the arc's first control. The other half mirrors these.
    std::array<QPointF, 4> points;
};

// The widest ramp for which a corner of radius 1 begins at most `room` from its vertex.
qreal rampWithin(qreal room)
{
    if (Corner(widestRamp).start.x() <= room)
        return widestRamp;
    qreal fits = 0;
    qreal exceeds = widestRamp;
    for (int step = 0; step < 40; ++step) {
        const qreal middle = (fits + exceeds) / 2;
        (Corner(middle).start.x() <= room ? fits : exceeds) = middle;
    }
    return fits;
}

}

QPainterPath continuousRect(const QRectF &rect, qreal radius)
{
    const bool finite = std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width())
        && std::isfinite(rect.height());
    if (!finite || rect.isEmpty())
        return {};

    QPainterPath path;
    const qreal halfSide = std::min(rect.width(), rect.height()) / 2;
    const qreal cornerRadius = std::isnan(radius) ? 0 : std::clamp(radius, 0.0, halfSide);
    if (cornerRadius <= 0) {
        path.addRect(rect);
        return path;
    }

    const Corner corner(rampWithin(halfSide / cornerRadius));
    const auto &[control1, control2, arcStart, arcControl] = corner.points;

    // Clockwise from the end of the top side. Each corner comes in along one side and leaves along the next.
    struct Vertex {
        QPointF at;
        QPointF back;
        QPointF onward;
    };
    const QPointF right(cornerRadius, 0);
    const QPointF down(0, cornerRadius);
    const std::array vertices = {Vertex{rect.topRight(), -right, down}, Vertex{rect.bottomRight(), -down, -right},
                                 Vertex{rect.bottomLeft(), right, -down}, Vertex{rect.topLeft(), down, right}};
    for (const Vertex &vertex : vertices) {
        const auto in = [&](QPointF p) { return vertex.at + p.x() * vertex.back + p.y() * vertex.onward; };
        const auto out = [&](QPointF p) { return vertex.at + p.y() * vertex.back + p.x() * vertex.onward; };
        if (path.isEmpty())
            path.moveTo(in(corner.start));
        else
            path.lineTo(in(corner.start));
        path.cubicTo(in(control1), in(control2), in(arcStart));
        path.cubicTo(in(arcControl), out(arcControl), out(arcStart));
        path.cubicTo(out(control2), out(control1), out(corner.start));
    }
    path.closeSubpath();
    return path;
}
