#include "CrispItem.h"

#include "Platform.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <algorithm>
#include <cmath>

namespace {

/// Rows that are alike, in pixels, below which keeping one for all of them is not worth the trouble.
constexpr int fewestAlike = 64;

}

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

/// All rows as they are, or the uneven ones at both ends and between them one of those that are alike.
QList<CrispItem::Rows> CrispItem::rows(int height, int bleed) const
{
    const qreal ends = std::max(std::ceil(unevenEnds() * scaleFactor()), 1.0) + bleed;
    // Pixels that are blended need their neighbours.
    if (m_isScaled || !(2 * ends + fewestAlike <= height))
        return {{0, height, 0, height}};
    const int end = int(ends);
    return {{0, end, 0, end}, {end, 1, end, height - 2 * end}, {end + 1, end, height - end, end}};
}

QImage CrispItem::picture(QSize pixels, int bleed, const QList<Rows> &rows)
{
    const qreal scale = scaleFactor();
    QImage image(pixels.width(), rows.constLast().kept + rows.constLast().keptCount,
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (const Rows &part : rows) {
        QImage canvas(image.scanLine(part.kept), image.width(), part.keptCount, image.bytesPerLine(), image.format());
        canvas.setDevicePixelRatio(scale);
        QPainter painter(&canvas);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(QPointF(bleed, bleed - part.shown) / scale);
        paint(&painter);
    }
    return image;
}

QSGNode *CrispItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    const qreal scale = scaleFactor();
    const int bleed = int(std::ceil(m_bleed * scale));
    const QSize inside(int(std::ceil(width() * scale)), int(std::ceil(height() * scale)));
    // Qt Quick asks for the picture of what is not visible too.
    if (inside.isEmpty() || !isVisible()) {
        delete old;
        return nullptr;
    }

    const QSize pixels = inside.grownBy({bleed, bleed, bleed, bleed});
    const QPointF origin = -QPointF(bleed, bleed) / scale;
    const QList<Rows> rows = this->rows(pixels.height(), bleed);
    // The picture keeps the ratio 1: from here on sizes are in pixels, and the software renderer would apply the ratio
    // a second time.
    QSGTexture *texture =
        window()->createTextureFromImage(picture(pixels, bleed, rows), QQuickWindow::TextureHasAlphaChannel);
    if (old && old->childCount() != rows.size()) {
        delete old;
        old = nullptr;
    }
    QSGNode *node = old ? old : new QSGNode;
    QSGNode *next = node->firstChild();
    for (const Rows &part : rows) {
        auto *image = static_cast<QSGImageNode *>(next);
        next = next ? next->nextSibling() : nullptr;
        if (!image) {
            image = window()->createImageNode();
            // The texture before goes when nobody shows it any more.
            image->setOwnsTexture(node->childCount() + 1 == rows.size());
            node->appendChildNode(image);
        }
        image->setTexture(texture);
        image->setFiltering(m_isScaled ? QSGTexture::Linear : QSGTexture::Nearest);
        image->setSourceRect(0, part.kept, pixels.width(), part.keptCount);
        image->setRect(origin.x(), origin.y() + part.shown / scale, pixels.width() / scale, part.shownCount / scale);
    }
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
    if (change == ItemDevicePixelRatioHasChanged || change == ItemVisibleHasChanged)
        update();
}
