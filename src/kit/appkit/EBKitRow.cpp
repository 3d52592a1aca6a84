#include "EBKitRow.h"

#include "EBKit.h"
#include "KitDrawing.h"
#include "KitMetrics.h"
#include "KitText.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

using namespace KitMetric;

EBKitRow::EBKitRow(EBKitApp app, std::optional<EBKitGlyph> glyph, bool on, EBKitText title,
                   std::optional<EBKitText> detail, QWidget *parent)
    : EBKitView(parent),
      m_app(std::move(app)),
      m_glyph(glyph),
      m_on(on),
      m_title(std::move(title)),
      m_detail(std::move(detail))
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleName(m_title.string);
    if (m_detail)
        setAccessibleDescription(m_detail->string);
}

qreal EBKitRow::textStart() const
{
    return m_glyph ? rowInset + discDiameter + rowSpacing : rowInset;
}

QSize EBKitRow::sizeHint() const
{
    const int text = std::max(KitText::size(m_title).width(), m_detail ? KitText::size(*m_detail).width() : 0);
    const int width = int(textStart() + text + rowInset);
    return {width, heightForWidth(width)};
}

QSize EBKitRow::minimumSizeHint() const
{
    return {0, int(rowHeight)};
}

int EBKitRow::heightForWidth(int width) const
{
    const qreal column = std::max(1.0, width - textStart() - rowInset);
    qreal texts = KitText::size(m_title, column).height();
    if (m_detail)
        texts += rowLineSpacing + KitText::size(*m_detail, column).height();
    const qreal disc = m_glyph ? discDiameter : 0;
    return int(std::max(rowHeight, std::max(disc, texts) + 2 * rowPadding));
}

void EBKitRow::placeContent()
{
    m_discRect =
        m_glyph ? placed({rowInset, std::round((height() - discDiameter) / 2), discDiameter, discDiameter}) : QRectF();

    const qreal column = std::max(1.0, width() - textStart() - rowInset);
    const qreal room = std::max(0.0, height() - 2 * rowPadding);
    const auto heightOf = [column](const EBKitText &text) -> qreal { return KitText::size(text, column).height(); };
    // The title goes first, and leaves the detail at least a line where there are two to share.
    const qreal wanted = heightOf(m_title);
    const qreal detailLine = m_detail ? rowLineSpacing + KitText::size(*m_detail).height() : 0;
    const qreal title = std::min(wanted, std::max(room - detailLine, qreal(KitText::size(m_title).height())));
    const qreal left = room - title - rowLineSpacing;
    const qreal detail = m_detail ? std::clamp(heightOf(*m_detail), 0.0, std::max(0.0, left)) : 0;

    const qreal texts = title + (m_detail ? rowLineSpacing + detail : 0);
    const qreal top = std::round((height() - texts) / 2);
    m_titleRect = placed({textStart(), top, column, title});
    m_detailRect = m_detail ? placed({textStart(), top + title + rowLineSpacing, column, detail}) : QRectF();
}

void EBKitRow::draw(QPainter &painter)
{
    if (m_glyph) {
        drawDisc(painter);
        drawGlyph(painter, *m_glyph, discGlyph, m_on ? m_app.onColor.current() : EBKit::ink().current(), m_discRect);
    }
    KitText::draw(painter, m_title, m_titleRect, layoutDirection());
    if (m_detail)
        KitText::draw(painter, *m_detail, m_detailRect, layoutDirection());
}

void EBKitRow::drawDisc(QPainter &painter) const
{
    QPainterPath oval;
    oval.addEllipse(m_on ? m_discRect : m_discRect.adjusted(0.5, 0.5, -0.5, -0.5));
    if (m_on)
        painter.fillPath(oval, m_app.color.current());
    else
        painter.strokePath(oval, QPen(EBKit::lineStrong().current(), 1.0));
}
