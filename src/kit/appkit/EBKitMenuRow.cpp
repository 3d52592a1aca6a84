#include "EBKitMenuRow.h"

#include "ContinuousRectangle.h"
#include "EBKit.h"
#include "KitDrawing.h"
#include "KitMetrics.h"
#include "KitText.h"

#include <QPainter>

namespace {

constexpr qreal edge = 8;
constexpr qreal spacing = 8;
constexpr qreal radius = 10;
constexpr int lowest = 30;

QRectF centred(qreal x, qreal width, qreal height, qreal within)
{
    return {x, std::round((within - height) / 2), width, height};
}

}

EBKitMenuRow::EBKitMenuRow(std::optional<EBKitGlyph> glyph, EBKitText title, std::optional<EBKitText> shortcut,
                           std::function<void()> action, QWidget *parent)
    : EBKitControl(parent),
      action(std::move(action)),
      m_glyph(glyph),
      m_title(std::move(title)),
      m_shortcut(std::move(shortcut))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    resize(EBKitMenuRow::sizeHint());
    setAccessibleName(m_title.string);
}

qreal EBKitMenuRow::shapeRadius() const
{
    return radius;
}

QMargins EBKitMenuRow::panelMargins() const
{
    // Its glyph then stands below the discs of the rows.
    constexpr int side = int(KitMetric::rowInset - edge);
    return {side, 0, side, 0};
}

qreal EBKitMenuRow::titleStart() const
{
    return m_glyph ? edge + KitMetric::discGlyph + spacing : edge;
}

QSize EBKitMenuRow::sizeHint() const
{
    const QSize title = KitText::size(m_title);
    const QSize shortcut = m_shortcut ? KitText::size(*m_shortcut) : QSize();
    const qreal trailing = m_shortcut ? KitMetric::rowSpacing + shortcut.width() : 0;
    return {int(titleStart() + title.width() + trailing + edge), std::max({lowest, title.height(), shortcut.height()})};
}

QSize EBKitMenuRow::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void EBKitMenuRow::activate()
{
    const auto act = action;
    if (act)
        act();
}

void EBKitMenuRow::draw(QPainter &painter)
{
    if (hover() || isHeld())
        paintContinuousRect(&painter, QRectF(rect()), radius, EBKit::chip().current());

    if (m_glyph) {
        const QRectF box = placed({edge, 0, KitMetric::discGlyph, qreal(height())});
        drawGlyph(painter, *m_glyph, KitMetric::discGlyph, m_title.color.current(), box);
    }
    qreal end = width() - edge;
    if (m_shortcut) {
        const QSize size = KitText::size(*m_shortcut);
        KitText::draw(painter, *m_shortcut, placed(centred(end - size.width(), size.width(), size.height(), height())),
                      layoutDirection());
        end -= size.width() + KitMetric::rowSpacing;
    }
    const qreal line = KitText::size(m_title).height();
    KitText::draw(painter, m_title, placed(centred(titleStart(), std::max(0.0, end - titleStart()), line, height())),
                  layoutDirection());
}
