#include "ButtonFace.h"

#include "ContinuousRectangle.h"
#include "Glyph.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

ButtonFace::ButtonFace(QQuickItem *parent) : CrispItem(parent)
{
    connect(this, &ButtonFace::changed, this, &ButtonFace::measure);
}

EBButtonStyle ButtonFace::style() const
{
    return {EBButtonStyle::Variants::fromRawValue(m_variant).value_or(EBButtonStyle::Variant::primary),
            EBButtonStyle::Sizes::fromRawValue(m_size).value_or(EBButtonStyle::Size::md), m_arrow};
}

void ButtonFace::componentComplete()
{
    CrispItem::componentComplete();
    m_environment = EBEnvironment::of(this);
    connect(m_environment, &EBEnvironment::changed, this, &ButtonFace::update);
    measure();
}

void ButtonFace::measure()
{
    if (!isComponentComplete())
        return;
    const EBButtonStyle style = this->style();
    const EBButtonStyle::Geometry geometry = style.geometry();
    m_labelWidth = std::ceil(QFontMetricsF(style.font()).horizontalAdvance(m_text));
    const qreal badge = m_arrow ? geometry.spacing + geometry.badgeDiameter : 0;
    setImplicitSize(geometry.leadingPadding + m_labelWidth + badge + geometry.trailingPadding, geometry.height);
    setBleed(m_arrow ? std::max(0.0, (geometry.badgeDiameter - geometry.height) / 2) : 0);
}

void ButtonFace::paint(QPainter *painter)
{
    if (!m_environment)
        return;
    const EBButtonStyle style = this->style();
    const EBButtonStyle::Geometry geometry = style.geometry();
    const EBButtonStyle::Colors colors = style.colors(m_environment->ebApp(), m_pressed);
    const QRectF bounds = pixelBounds();
    paintCapsule(painter, bounds, colors.fill, colors.border);

    const qreal leading = geometry.leadingPadding;
    paintButtonLabel(painter, style.font(), m_text, colors.foreground,
                     m_mirrored ? bounds.right() - leading - m_labelWidth : leading, height());
    if (!m_arrow)
        return;
    const qreal diameter = geometry.badgeDiameter;
    const qreal x = leading + m_labelWidth + geometry.spacing;
    paintBadge(
        painter,
        QRectF(m_mirrored ? bounds.right() - x - diameter : x, bounds.center().y() - diameter / 2, diameter, diameter),
        colors);
}

void ButtonFace::paintBadge(QPainter *painter, QRectF circle, const EBButtonStyle::Colors &colors) const
{
    paintCapsule(painter, circle, colors.badge);
    painter->save();
    if (m_mirrored) {
        painter->translate(2 * circle.center().x(), 0);
        painter->scale(-1, 1);
    }
    paintGlyph(painter, GlyphName::arrow, style().geometry().arrowSize, colors.foreground, circle);
    painter->restore();
}

void paintButtonLabel(QPainter *painter, const QFont &font, const QString &text, const QColor &color, qreal x,
                      qreal height)
{
    // Capitals stand in the middle of the capsule whatever room the face leaves above and below them.
    const qreal baseline = (height + QFontMetricsF(font).capHeight()) / 2;
    const qreal scale = painter->device()->devicePixelRatio();
    painter->setFont(font);
    painter->setPen(color);
    painter->drawText(QPointF(x, std::round(baseline * scale) / scale), text);
}
