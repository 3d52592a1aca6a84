#include "ButtonFace.h"

#include "ContinuousRectangle.h"
#include "Glyph.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

ButtonFace::ButtonFace(QQuickItem *parent) : CrispItem(parent) { }

template <typename Value> bool ButtonFace::set(Value &member, const Value &value)
{
    if (!assign(member, value))
        return false;
    measure();
    emit changed();
    return true;
}

void ButtonFace::setText(const QString &text)
{
    set(m_text, text);
}

void ButtonFace::setVariant(const QString &rawValue)
{
    m_style.variant = EBButtonStyle::parseVariant(rawValue).value_or(EBButtonStyle::Variant::primary);
    set(m_variant, rawValue);
}

void ButtonFace::setSize(const QString &rawValue)
{
    m_style.size = EBButtonStyle::parseSize(rawValue).value_or(EBButtonStyle::Size::md);
    set(m_size, rawValue);
}

void ButtonFace::setArrow(bool arrow)
{
    set(m_style.arrow, arrow);
}

void ButtonFace::setPressed(bool pressed)
{
    set(m_pressed, pressed);
}

void ButtonFace::setMirrored(bool mirrored)
{
    set(m_mirrored, mirrored);
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
    const EBButtonStyle::Geometry geometry = m_style.geometry();
    m_labelWidth = std::ceil(QFontMetricsF(m_style.font()).horizontalAdvance(m_text));
    const qreal badge = m_style.arrow ? geometry.spacing + geometry.badgeDiameter : 0;
    setImplicitSize(geometry.leadingPadding + m_labelWidth + badge + geometry.trailingPadding, geometry.height);
    setBleed(m_style.arrow ? std::max(0.0, (geometry.badgeDiameter - geometry.height) / 2) : 0);
}

void ButtonFace::paint(QPainter *painter)
{
    if (!m_environment)
        return;
    const EBButtonStyle::Geometry geometry = m_style.geometry();
    const EBButtonStyle::Colors colors = m_style.colors(m_environment->ebApp(), m_pressed);
    const QRectF bounds = pixelBounds();
    paintCapsule(painter, bounds, colors.fill, colors.border);

    const qreal leading = geometry.leadingPadding;
    paintButtonLabel(painter, m_style.font(), m_text, colors.foreground,
                     m_mirrored ? bounds.right() - leading - m_labelWidth : leading, height());
    if (!m_style.arrow)
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
    paintGlyph(painter, GlyphName::arrow, m_style.geometry().arrowSize, colors.foreground, circle);
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
