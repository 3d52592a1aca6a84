#include "TileGround.h"

#include "ContinuousRect.h"
#include "EBKit.h"

#include <QPainter>

namespace {

/// How far the shadow falls below the tile, in points. With how soft it is, it fills the margin.
constexpr int drop = 6;
constexpr int softness = TileGround::margin - drop;

/// Layers over one another, each a point smaller and so a little darker together.
void paintShadow(QPainter *painter, const QRectF &tile)
{
    const QRectF fallen = tile.translated(0, drop);
    for (int reach = softness; reach > 0; --reach) {
        const QColor layer(0, 0, 0, 1 + 4 * (softness - reach) / softness);
        painter->fillPath(
            continuousRect(fallen.adjusted(-reach, -reach, reach, reach), TileGround::cornerRadius + reach), layer);
    }
}

}

void TileGround::setBlended(bool isBlended)
{
    if (isBlended == m_isBlended)
        return;
    m_isBlended = isBlended;
    emit changed();
}

void TileGround::paint(QPainter *painter)
{
    if (m_isBlended)
        paintShadow(painter, boundingRect().adjusted(margin, margin, -margin, -margin));
    else
        painter->fillRect(boundingRect(), EBKit::surface().current());
}
