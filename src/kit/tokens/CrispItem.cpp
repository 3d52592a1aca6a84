#include "CrispItem.h"

#include "Platform.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <algorithm>
#include <cmath>

namespace {

/// Rows or columns that are alike, below which keeping one for all of them is not worth the trouble.
constexpr int fewestAlike = 16;

/// In pixels. At a fractional scale an item may lie at half a pixel; this much further on all parts of its picture are
/// rounded alike.
constexpr qreal pastTheHalf = 1.0 / 256;

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
    return {0, 0, (std::round(width() * scale) - m_leftOut.width()) / scale,
            (std::round(height() * scale) - m_leftOut.height()) / scale};
}

void CrispItem::setBleed(qreal bleed)
{
    if (m_bleed == bleed)
        return;
    m_bleed = bleed;
    update();
}

/// All of a direction as it is, or the uneven bands at both ends and between them one row or column of those that are
/// alike.
QList<CrispItem::Band> CrispItem::bands(int length, int bleed) const
{
    // One more, as the far edge may lie that much further in.
    const qreal ends = std::ceil(unevenEdge() * scaleFactor()) + 1 + bleed;
    // Pixels that are blended need their neighbours.
    if (m_isScaled || !(2 * ends + fewestAlike <= length))
        return {{0, length, 0, length}};
    const int end = int(ends);
    return {{0, end, 0, end}, {end, 1, end, length - 2 * end}, {end + 1, end, length - end, end}};
}

QImage CrispItem::picture(QSize kept, QSize shown, int bleed)
{
    const qreal scale = scaleFactor();
    QImage image(kept, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    // An image keeps what the painter needed for as long as it lives, and the software renderer would apply its ratio a
    // second time, so both belong to another one over the same pixels.
    QImage canvas(image.bits(), image.width(), image.height(), image.bytesPerLine(), image.format());
    canvas.setDevicePixelRatio(scale);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QPointF(bleed, bleed) / scale);
    m_leftOut = shown - kept;
    paint(&painter);
    m_leftOut = {0, 0};
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
    const QList<Band> rows = bands(pixels.height(), bleed);
    const QList<Band> columns = bands(pixels.width(), bleed);
    const auto kept = [](const Band &last) { return last.kept + last.keptCount; };
    QSGTexture *texture =
        window()->createTextureFromImage(picture({kept(columns.constLast()), kept(rows.constLast())}, pixels, bleed),
                                         QQuickWindow::TextureHasAlphaChannel);
    const qsizetype parts = rows.size() * columns.size();
    const qreal start = (parts > 1 ? pastTheHalf : 0) - bleed;
    if (old && old->childCount() != parts) {
        delete old;
        old = nullptr;
    }
    QSGNode *node = old ? old : new QSGNode;
    QSGNode *next = node->firstChild();
    for (qsizetype part = 0; part < parts; ++part) {
        const Band &row = rows.at(part / columns.size());
        const Band &column = columns.at(part % columns.size());
        auto *image = static_cast<QSGImageNode *>(next);
        next = next ? next->nextSibling() : nullptr;
        if (!image) {
            image = window()->createImageNode();
            // The texture before goes when nobody shows it any more.
            image->setOwnsTexture(part + 1 == parts);
            node->appendChildNode(image);
        }
        image->setTexture(texture);
        image->setFiltering(m_isScaled ? QSGTexture::Linear : QSGTexture::Nearest);
        image->setSourceRect(column.kept, row.kept, column.keptCount, row.keptCount);
        image->setRect((start + column.shown) / scale, (start + row.shown) / scale, column.shownCount / scale,
                       row.shownCount / scale);
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
