#include "EBKitSectionLabel.h"

#include "KitMetrics.h"
#include "KitText.h"

#include <QPainter>

namespace {

constexpr qreal inset = KitMetric::rowInset;

}

EBKitSectionLabel::EBKitSectionLabel(EBKitText text, QWidget *parent)
    : EBKitView(parent), m_text(std::move(text)), m_capitals(KitText::capitals(m_text))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(m_text.string);
}

QMargins EBKitSectionLabel::panelMargins() const
{
    // As a label stands among the groups of a page: farther from what is above it than from what it names.
    return {0, int(KitMetric::rowSpacing + KitMetric::groupLabelPadding), 0,
            int(KitMetric::rowSpacing - KitMetric::groupLabelPadding)};
}

QSize EBKitSectionLabel::sizeHint() const
{
    const QSize size = KitText::size(m_capitals);
    return {int(size.width() + 2 * inset), size.height()};
}

QSize EBKitSectionLabel::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void EBKitSectionLabel::draw(QPainter &painter)
{
    KitText::draw(painter, m_capitals, QRectF(rect()).adjusted(inset, 0, -inset, 0), layoutDirection());
}
