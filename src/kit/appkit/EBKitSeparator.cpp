#include "EBKitSeparator.h"

#include "EBKit.h"
#include "KitMetrics.h"

#include <QPainter>

EBKitSeparator::EBKitSeparator(QWidget *parent) : EBKitView(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QMargins EBKitSeparator::panelMargins() const
{
    constexpr int above = int(KitMetric::rowPadding);
    return {0, above, 0, above};
}

QSize EBKitSeparator::sizeHint() const
{
    return {0, int(KitMetric::ruleHeight)};
}

void EBKitSeparator::draw(QPainter &painter)
{
    painter.fillRect(QRectF(rect()), EBKit::line().current());
}
