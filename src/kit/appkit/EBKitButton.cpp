#include "EBKitButton.h"

#include "ButtonFace.h"
#include "ContinuousRectangle.h"
#include "EBButtonStyle.h"
#include "KitMetrics.h"
#include "KitText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace {

EBButtonStyle styleOf(EBKitButton::Variant variant, qreal height)
{
    EBButtonStyle style;
    style.variant =
        variant == EBKitButton::Variant::primary ? EBButtonStyle::Variant::primary : EBButtonStyle::Variant::secondary;
    // The largest of the kit's sizes that is no higher.
    for (const auto size : {EBButtonStyle::Size::md, EBButtonStyle::Size::sm, EBButtonStyle::Size::xs}) {
        style.size = size;
        if (style.geometry().height <= height)
            break;
    }
    return style;
}

}

EBKitButton::EBKitButton(EBKitText title, Variant variant, qreal height, std::function<void()> action, QWidget *parent)
    : EBKitControl(parent), action(std::move(action)), m_title(std::move(title)), m_variant(variant), m_height(height)
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    resize(EBKitButton::sizeHint());
    setAccessibleName(m_title.string);
}

QMargins EBKitButton::panelMargins() const
{
    constexpr int side = int(KitMetric::rowInset);
    constexpr int above = int(KitMetric::rowPadding);
    return {side, above, side, above};
}

qreal EBKitButton::padding() const
{
    return styleOf(m_variant, m_height).geometry().leadingPadding;
}

QSize EBKitButton::sizeHint() const
{
    return {int(std::ceil(KitText::size(m_title).width() + 2 * padding())), int(std::ceil(m_height))};
}

QSize EBKitButton::minimumSizeHint() const
{
    return {int(std::ceil(m_height)), int(std::ceil(m_height))};
}

void EBKitButton::activate()
{
    const auto act = action;
    if (act)
        act();
}

void EBKitButton::draw(QPainter &painter)
{
    const EBButtonStyle::Colors colors = styleOf(m_variant, m_height).colors(EBApp::quiller, pressed());
    paintCapsule(&painter, QRectF(0, 0, width(), m_height), colors.fill, colors.border);

    const QFont font = KitText::font(m_title);
    const QFontMetricsF metrics(font);
    // Tracking is also added behind the last letter.
    const qreal room = width() - 2 * padding() + m_title.kern;
    const qreal natural = metrics.horizontalAdvance(m_title.string);
    // Rounding must not cut a title that fits.
    const bool fits = natural <= room + 1;
    const QString shown = fits ? m_title.string : metrics.elidedText(m_title.string, Qt::ElideRight, room);
    const qreal x = padding() + (room - (fits ? natural : metrics.horizontalAdvance(shown))) / 2;
    paintButtonLabel(&painter, font, shown, m_title.color.current(), x, m_height);
}
