#include "EBKitPanelHeader.h"

#include "ContinuousRectangle.h"
#include "KitMetrics.h"
#include "KitText.h"

#include <QPainter>

#include <cmath>

using namespace KitMetric;

namespace {

constexpr qreal tileSide = 36;
constexpr qreal tileRadius = 10;

}

EBKitPanelHeader::EBKitPanelHeader(EBKitApp app, std::optional<EBKitText> label, EBKitText name, QWidget *parent)
    : EBKitView(parent), m_app(std::move(app)), m_label(std::move(label)), m_name(std::move(name))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(m_name.string);
    if (m_label)
        setAccessibleDescription(m_label->string);
}

QSize EBKitPanelHeader::textSize() const
{
    QSize size = KitText::size(m_name);
    if (m_label) {
        const QSize label = KitText::size(KitText::capitals(*m_label));
        size = {std::max(size.width(), label.width()), int(size.height() + rowLineSpacing + label.height())};
    }
    return size;
}

QSize EBKitPanelHeader::sizeHint() const
{
    return {int(rowInset + tileSide + rowSpacing + textSize().width() + rowInset),
            int(std::max<qreal>(tileSide, textSize().height()) + 2 * rowPadding)};
}

QSize EBKitPanelHeader::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void EBKitPanelHeader::placeContent()
{
    m_tileRect = placed({rowInset, std::round((height() - tileSide) / 2), tileSide, tileSide});
    const qreal start = rowInset + tileSide + rowSpacing;
    const qreal column = std::max(1.0, width() - start - rowInset);
    qreal y = std::round((height() - textSize().height()) / 2.0);
    m_labelRect = QRectF();
    if (m_label) {
        m_labelRect = placed({start, y, column, qreal(KitText::size(KitText::capitals(*m_label)).height())});
        y += m_labelRect.height() + rowLineSpacing;
    }
    m_nameRect = placed({start, y, column, qreal(KitText::size(m_name).height())});
}

void EBKitPanelHeader::draw(QPainter &painter)
{
    paintContinuousRect(&painter, m_tileRect, tileRadius, m_app.color.current());
    painter.fillPath(EBKitMarks::path(m_app.mark, m_tileRect, painter.deviceTransform()), m_app.onColor.current());
    if (m_label)
        KitText::draw(painter, KitText::capitals(*m_label), m_labelRect, layoutDirection());
    KitText::draw(painter, m_name, m_nameRect, layoutDirection());
}
