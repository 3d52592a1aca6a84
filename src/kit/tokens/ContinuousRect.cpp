#include "ContinuousRect.h"

#include <QLineF>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

// How far each ramp may turn before the arc takes over. Two ramps of a fifth of a half turn leave a short arc between
// them: softer corners than this begin to look like a larger radius.
constexpr qreal widestRamp = 0.2 * std::numbers::pi;

// Half of one corner of radius 1, seen from its vertex: x runs back along the side, y into the rectangle.
// The ramp is a cubic that leaves the side without curvature and meets the arc with the arc's own curvature; its
// three legs are equally long, which makes its curvature grow evenly, as along a clothoid.
struct Corner {
    explicit Corner(qreal ramp)
    {
        const qreal sine = std::sin(ramp);
        const qreal cosine = std::cos(ramp);
        const qreal drop = 2.0 / 3.0 * sine * sine + cosine;
        // The arc shrinks a little, so that the corner's middle stays where a circular corner has it.
        const qreal arcRadius = (std::numbers::sqrt2 - 1) / (std::numbers::sqrt2 * drop - 1);
        const qreal leg = 2.0 / 3.0 * sine * arcRadius;
        const qreal sweep = std::numbers::pi / 2 - 2 * ramp;
        const qreal handle = 4.0 / 3.0 * std::tan(sweep / 4) * arcRadius;

        const QPointF arcStart(drop * arcRadius + sine * -arcRadius, leg * sine);
        const QPointF forward(-cosine, sine);
        start = QPointF(arcStart.x() + leg * (2 + cosine), 0);
        points = {start - QPointF(leg, 0), start - QPointF(2 * leg, 0), arcStart, arcStart + handle * forward};
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
    const qreal reach = std::isnan(radius) ? 0 : std::clamp(radius, 0.0, halfSide);
    if (reach <= 0) {
        path.addRect(rect);
        return path;
    }

    const Corner corner(rampWithin(halfSide / reach));
    const auto &[control1, control2, arcStart, arcControl] = corner.points;

    // Clockwise from the end of the top side. Each corner comes in along one side and leaves along the next.
    struct Vertex {
        QPointF at;
        QPointF back;
        QPointF onward;
    };
    const QPointF right(reach, 0);
    const QPointF down(0, reach);
    const std::array vertices = {Vertex {rect.topRight(), -right, down}, Vertex {rect.bottomRight(), -down, -right},
                                 Vertex {rect.bottomLeft(), right, -down}, Vertex {rect.topLeft(), down, right}};
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
