#include "DemoButton.h"

#include "ButtonGlyph.h"
#include "EBKitColor.h"
#include "Glyph.h"

#include <QPainter>

#include <cmath>

using Embera::faded;

DemoButton::DemoButton(QQuickItem *parent) : CrispItem(parent)
{
    const auto measure = [this] { setImplicitSize(m_size, m_size); };
    connect(this, &DemoButton::changed, this, measure);
    measure();
}

void DemoButton::paint(QPainter *painter)
{
    const auto button = OverlayButtons::fromCaseName(m_kind);
    const qreal scale = painter->device()->devicePixelRatio();
    const qreal diameter = std::round(m_size * scale) / scale;
    if (!button || !(diameter > 0))
        return;
    QRectF disc(0, 0, diameter, diameter);
    disc.moveCenter(pixelBounds().center());
    const Theme theme = Themes::fromRawValue(m_theme).value_or(Themes::fallback);
    if (Themes::look(theme, *button).fill.alpha() < 255) {
        QPainterPath circle;
        circle.addEllipse(disc);
        painter->fillPath(circle, m_ground);
    }
    paintDemoButton(painter, disc, *button, theme, m_size, m_dim);
}

void paintDemoButton(QPainter *painter, const QRectF &disc, OverlayButton kind, Theme theme, qreal size, bool dim)
{
    const Themes::Look look = Themes::look(theme, kind);
    QPainterPath circle;
    circle.addEllipse(disc);
    painter->fillPath(circle, faded(look.fill, dim ? 0.18 : 1));

    const QPen line(faded(look.glyph, dim ? 0.4 : 1), std::max(size / 15, 1.3), Qt::SolidLine, Qt::RoundCap,
                    Qt::RoundJoin);
    QRectF box = disc;
    // The bar runs along pixels; the lines of the others are diagonal.
    if (kind == OverlayButton::minimize)
        box.moveCenter({disc.center().x(), sharpCenter(*painter, disc.center(), line.widthF()).y()});
    painter->strokePath(ButtonGlyph{kind}.path(box), line);

    const qreal ringWidth = dim ? 1 : look.ringWidth;
    const qreal inset = ringWidth / 2;
    QPainterPath ring;
    ring.addEllipse(disc.adjusted(inset, inset, -inset, -inset));
    painter->strokePath(ring, QPen(dim ? faded(Qt::white, 0.25) : look.ring, ringWidth));
}
