#include "EBKitView.h"

#include "KitMetrics.h"
#include "Platform.h"
#include "ViewAccessibility.h"

#include <QEvent>
#include <QPainter>
#include <QPixmap>

EBKitView::EBKitView(QWidget *parent) : QWidget(parent)
{
    installViewAccessibility();
    connect(&Platform::current().appearance(), &Appearance::changed, this,
            &EBKitView::viewDidChangeEffectiveAppearance);
}

QRectF EBKitView::placed(const QRectF &rect) const
{
    if (layoutDirection() == Qt::LeftToRight)
        return rect;
    return {width() - rect.right(), rect.y(), rect.width(), rect.height()};
}

void EBKitView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        viewDidChangeEffectiveAppearance();
    if (event->type() == QEvent::LayoutDirectionChange)
        placeContent();
}

void EBKitView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeContent();
}

void EBKitView::paintEvent(QPaintEvent *)
{
    QPainter onScreen(this);
    if (isEnabled()) {
        onScreen.setRenderHint(QPainter::Antialiasing);
        draw(onScreen);
        return;
    }
    // Faded as one picture, so that no part shows another through it.
    const qreal scale = onScreen.device()->devicePixelRatioF();
    QPixmap picture((QSizeF(size()) * scale).toSize());
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter);
    }
    onScreen.setOpacity(KitMetric::disabledOpacity);
    onScreen.drawPixmap(QPointF(), picture);
}
