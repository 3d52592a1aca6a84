#include "DotField.h"

#include "ContinuousRect.h"

#include <QPainter>

#include <vector>

DotField::DotField(QQuickItem *parent) : CrispItem(parent)
{
    connect(this, &DotField::changed, this, [this] { setImplicitSize(m_area.width(), m_area.height()); });
}

void DotField::paint(QPainter *painter)
{
    const EBApp product = EBApps::fromRawValue(m_app).value_or(EBApps::allCases.front());
    const auto marks = DotLayout::layout(m_area, m_cell, quint32(m_seed), m_density, m_ramp, m_margin, m_calm);
    painter->fillPath(dotOutline(marks, m_cell), EBApps::family(product).loudDot.current());
}

QPainterPath dotOutline(const QList<QRectF> &marks, qreal cell)
{
    // There are only five forms, and far more marks.
    std::vector<std::pair<QSizeF, QPainterPath>> forms;
    const auto form = [&](const QSizeF &size) -> const QPainterPath & {
        for (const auto &[known, path] : forms) {
            if (known == size)
                return path;
        }
        return forms.emplace_back(size, continuousRect(QRectF(QPointF(), size), 0.3 * cell)).second;
    };
    QPainterPath outline;
    for (const QRectF &mark : marks)
        outline.addPath(form(mark.size()).translated(mark.topLeft()));
    return outline;
}
