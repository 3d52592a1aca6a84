#include "CrispItem.h"

#include "Platform.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>

CrispItem::CrispItem(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &CrispItem::changed, this, &QQuickItem::update);
    connect(&Platform::current().appearance(), &Appearance::changed, this, &QQuickItem::update);
}

qreal CrispItem::scaleFactor() const
{
    return window() ? window()->effectiveDevicePixelRatio() : 1;
}

QRectF CrispItem::pixelBounds() const
{
    const qreal scale = scaleFactor();
    return {0, 0, std::round(width() * scale) / scale, std::round(height() * scale) / scale};
}

void CrispItem::setBleed(qreal bleed)
{
    if (m_bleed == bleed)
        return;
    m_bleed = bleed;
    update();
}

QSGNode *CrispItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    const qreal scale = scaleFactor();
    const int bleed = int(std::ceil(m_bleed * scale));
    const QSize inside(int(std::ceil(width() * scale)), int(std::ceil(height() * scale)));
    if (inside.isEmpty()) {
        delete old;
        return nullptr;
    }

    const QSize pixels = inside.grownBy({bleed, bleed, bleed, bleed});
    const QPointF origin = -QPointF(bleed, bleed) / scale;
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(-origin);
        paint(&painter);
    }
    // From here on sizes are in pixels: the software renderer would apply the ratio a second time.
    image.setDevicePixelRatio(1);

    auto *node = static_cast<QSGImageNode *>(old);
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
    }
    node->setFiltering(m_isScaled ? QSGTexture::Linear : QSGTexture::Nearest);
    node->setTexture(window()->createTextureFromImage(image, QQuickWindow::TextureHasAlphaChannel));
    node->setRect(QRectF(origin, QSizeF(pixels) / scale));
    return node;
}

void CrispItem::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        update();
}

void CrispItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}
