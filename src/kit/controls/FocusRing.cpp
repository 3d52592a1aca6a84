#include "FocusRing.h"

#include "ContinuousRectangle.h"
#include "KitMetrics.h"

FocusRing::FocusRing(QQuickItem *parent) : CrispItem(parent)
{
    setVisible(false);
}

void FocusRing::setControl(FocusItem *control)
{
    if (m_control == control)
        return;
    m_control = control;
    connect(control, &FocusItem::visualFocusChanged, this, &FocusRing::show);
    show();
    emit controlChanged();
}

void FocusRing::show()
{
    setVisible(m_control->visualFocus());
    if (!m_control->visualFocus() || m_environment)
        return;
    m_environment = EBEnvironment::of(this);
    connect(m_environment, &EBEnvironment::changed, this, &QQuickItem::update);
    connect(parentItem(), &QQuickItem::widthChanged, this, &FocusRing::fit);
    connect(parentItem(), &QQuickItem::heightChanged, this, &FocusRing::fit);
    fit();
}

void FocusRing::fit()
{
    constexpr qreal outside = KitMetric::ringGap + KitMetric::ringWidth;
    setPosition({-outside, -outside});
    setSize(parentItem()->size().grownBy({outside, outside, outside, outside}));
}

void FocusRing::paint(QPainter *painter)
{
    const QColor color = m_loud ? m_environment->onLoud() : m_environment->accent();
    paintContinuousRect(painter, pixelBounds(), m_radius, Qt::transparent, color, KitMetric::ringWidth);
}
