#include "SwitchFace.h"

#include "ContinuousRectangle.h"
#include "EBKitColor.h"

#include <algorithm>

namespace {

constexpr QSizeF knobSize(24, 18);
constexpr qreal inset = 2;

float mixed(float from, float to, float share)
{
    return from + (to - from) * share;
}

// Mixed with premultiplied components: a faint colour must not tint the strong one on the way.
QColor mixed(const QColor &from, const QColor &to, qreal position)
{
    const float share = float(position);
    const float alpha = mixed(from.alphaF(), to.alphaF(), share);
    if (alpha <= 0)
        return Qt::transparent;
    const auto component = [&](float a, float b) {
        return std::clamp(mixed(a * from.alphaF(), b * to.alphaF(), share) / alpha, 0.0F, 1.0F);
    };
    return QColor::fromRgbF(component(from.redF(), to.redF()), component(from.greenF(), to.greenF()),
                            component(from.blueF(), to.blueF()), alpha);
}

}

SwitchFace::SwitchFace(QQuickItem *parent) : CrispItem(parent)
{
    setImplicitSize(switchSize.width(), switchSize.height());
}

void SwitchFace::paint(QPainter *painter)
{
    paintSwitch(painter, m_position, m_mirrored, {m_trackColor, m_accentColor, m_knobColor, m_knobBorderColor});
}

void paintSwitch(QPainter *painter, qreal position, bool mirrored, const SwitchColors &colors)
{
    position = std::clamp(position, 0.0, 1.0);
    paintCapsule(painter, QRectF(QPointF(), switchSize), mixed(colors.track, colors.accent, position));

    const qreal travel = switchSize.width() - knobSize.width() - 2 * inset;
    const qreal x = inset + travel * (mirrored ? 1 - position : position);
    paintCapsule(painter, QRectF(QPointF(x, inset), knobSize), colors.knob,
                 Embera::faded(colors.knobBorder, 1 - position));
}
