#include "EBKitKeyRow.h"

#include "ContinuousRectangle.h"
#include "EBKit.h"
#include "KeySymbols.h"
#include "KitMetrics.h"
#include "KitText.h"

#include <QPainter>

#include <cmath>

using namespace KitMetric;

EBKitKeyRow::EBKitKeyRow(EBKitText keys, EBKitText title, EBKitSwitch *toggle, QWidget *parent)
    : EBKitView(parent), m_keys(std::move(keys)), m_title(std::move(title)), m_toggle(toggle)
{
    Q_ASSERT(toggle);
    toggle->setParent(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(m_title.string);
    setAccessibleDescription(KeySymbols::spelled(m_keys.string));
    setToolTip(accessibleDescription());
}

QSizeF EBKitKeyRow::capSize() const
{
    const QSize text = KitText::size(m_keys);
    return {std::max(keyCapWidth, text.width() + 2 * keyCapPadding), std::max<qreal>(keyCapHeight, text.height())};
}

QSize EBKitKeyRow::sizeHint() const
{
    const QSize title = KitText::size(m_title);
    const qreal trailing = rowSpacing + capSize().width() + rowSpacing + m_toggle->sizeHint().width();
    return {int(rowInset + title.width() + trailing + rowInset),
            int(std::max(rowHeight, std::max<qreal>(title.height(), capSize().height()) + 2 * rowPadding))};
}

QSize EBKitKeyRow::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void EBKitKeyRow::placeContent()
{
    const auto centred = [this](qreal x, qreal width, qreal high) {
        return placed({x, std::round((height() - high) / 2), width, high});
    };
    const QSize toggle = m_toggle->sizeHint();
    const QSizeF cap = capSize();
    const qreal toggleStart = width() - rowInset - toggle.width();
    const qreal capStart = toggleStart - rowSpacing - cap.width();
    const qreal column = std::max(1.0, capStart - rowSpacing - rowInset);
    m_toggle->setGeometry(centred(toggleStart, toggle.width(), toggle.height()).toRect());
    m_capRect = centred(capStart, cap.width(), cap.height());
    m_titleRect = centred(rowInset, column, KitText::size(m_title).height());
}

void EBKitKeyRow::draw(QPainter &painter)
{
    KitText::draw(painter, m_title, m_titleRect, layoutDirection());
    paintContinuousRect(&painter, m_capRect, keyCapRadius, EBKit::chip().current());
    const QSizeF keys = KitText::size(m_keys);
    QRectF text(QPointF(), keys);
    text.moveCenter(m_capRect.center());
    text.moveTop(std::round(text.top()));
    KitText::draw(painter, m_keys, text, Qt::LeftToRight);
}
