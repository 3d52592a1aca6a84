#include "EBKitIconButton.h"

#include "ContinuousRectangle.h"
#include "EBKit.h"
#include "KitDrawing.h"
#include "KitMetrics.h"

#include <QPainter>

EBKitIconButton::EBKitIconButton(EBKitGlyph glyph, QString label, std::function<void()> action, QWidget *parent)
    : EBKitControl(parent), action(std::move(action)), m_glyph(glyph), m_label(std::move(label))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    resize(EBKitIconButton::sizeHint());
    setAccessibleName(m_label);
}

QMargins EBKitIconButton::panelMargins() const
{
    constexpr int side = int(KitMetric::rowInset);
    constexpr int above = int(KitMetric::rowPadding);
    return {side, above, side, above};
}

QSize EBKitIconButton::sizeHint() const
{
    return {int(KitMetric::iconButtonSide), int(KitMetric::iconButtonSide)};
}

void EBKitIconButton::activate()
{
    const auto act = action;
    if (act)
        act();
}

void EBKitIconButton::draw(QPainter &painter)
{
    if (hover())
        paintCapsule(&painter, QRectF(rect()), EBKit::chip().current());
    drawGlyph(painter, m_glyph, width() * KitMetric::iconButtonGlyph, EBKit::inkMuted().current(), QRectF(rect()));
}
