#include "IconImage.h"

#include <QPainter>

namespace {

/// An icon gives its nearest size and no larger one than it has.
void paintIcon(QPainter *painter, const QIcon &icon, const QRectF &bounds)
{
    const qreal scale = painter->device()->devicePixelRatioF();
    const QPixmap nearest = icon.pixmap(bounds.size().toSize(), scale);
    if (nearest.isNull())
        return;
    QRectF place(QPointF(), QSizeF(nearest.size()).scaled(bounds.size(), Qt::KeepAspectRatio));
    place.moveCenter(bounds.center());
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(place, nearest, QRectF(nearest.rect()));
}

}

void IconImage::setIcon(const QIcon &icon)
{
    if (icon.cacheKey() == m_icon.cacheKey())
        return;
    m_icon = icon;
    emit changed();
}

QPixmap IconImage::picture(const QIcon &icon, int side, qreal scale)
{
    QPixmap picture(QSize(side, side) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintIcon(&painter, icon, QRectF(0, 0, side, side));
    return picture;
}

void IconImage::paint(QPainter *painter)
{
    paintIcon(painter, m_icon, QRectF(QPointF(), size()));
}
