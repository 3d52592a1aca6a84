#pragma once

#include <QColor>

#include <cstdlib>

/// What two colours, the upper one possibly translucent, look like together.
inline QColor over(const QColor &upper, const QColor &ground, qreal opacity = 1)
{
    const qreal alpha = upper.alphaF() * opacity;
    const auto mix = [alpha](float a, float b) { return float(a * alpha + b * (1 - alpha)); };
    return QColor::fromRgbF(mix(upper.redF(), ground.redF()), mix(upper.greenF(), ground.greenF()),
                            mix(upper.blueF(), ground.blueF()));
}

/// Whether two opaque colours differ by no more than rounding does.
inline bool isNear(const QColor &actual, const QColor &expected, int tolerance = 2)
{
    return std::abs(actual.red() - expected.red()) <= tolerance
        && std::abs(actual.green() - expected.green()) <= tolerance
        && std::abs(actual.blue() - expected.blue()) <= tolerance;
}
