#include "WindowFace.h"

#include "ContinuousRectangle.h"
#include "EBKit.h"

#include <QPainter>

#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr qreal pill = std::numeric_limits<qreal>::infinity();

/// How much of the room a line of text takes: the last one ends a paragraph.
qreal lineShare(int line, int count)
{
    constexpr std::array shares = {1.0, 0.86, 0.94};
    return line == count - 1 ? 0.58 : shares.at(std::size_t(line) % shares.size());
}

}

WindowFace::WindowFace(QQuickItem *parent) : CrispItem(parent)
{
    connect(this, &WindowFace::contentTopChanged, this, &WindowFace::update);
}

void WindowFace::paint(QPainter *painter)
{
    const QRectF card = pixelBounds();
    const qreal radius = m_compact ? 9 : 12;
    paintContinuousRect(painter, card, radius, EBKit::surface().current());
    paintStrip(painter, card, radius);
    paintContent(painter, card);
    paintContinuousRect(painter, card, radius, Qt::transparent, EBKit::lineStrong().current(), 1);
}

void WindowFace::paintStrip(QPainter *painter, const QRectF &card, qreal radius) const
{
    painter->save();
    painter->setClipRect(QRectF(card.topLeft(), QSizeF(card.width(), stripHeight())));
    paintContinuousRect(painter, card, radius, EBKit::chip().current());
    painter->restore();
    painter->fillRect(QRectF(card.left(), stripHeight(), card.width(), 1), EBKit::line().current());

    // A search field at the end of the strip that the overlay buttons leave free.
    const qreal height = m_compact ? 6 : 8;
    const QSizeF field(std::round(card.width() * 0.22), height);
    const QPointF corner(card.right() - margin() - field.width(), (stripHeight() - height) / 2);
    paintContinuousRect(painter, QRectF(corner, field), pill, EBKit::chip().current());
}

void WindowFace::paintContent(QPainter *painter, const QRectF &card) const
{
    const qreal height = m_compact ? 4 : 5;
    const qreal step = m_compact ? 7 : 10;
    const QSizeF room(card.width() - 2 * margin(), card.height() - 7 - m_contentTop);
    const int count = int(std::floor((room.height() - height) / step)) + 1;
    for (int line = 0; line < count; ++line) {
        const qreal width = std::round(room.width() * lineShare(line, count));
        paintContinuousRect(painter, QRectF(margin(), m_contentTop + line * step, width, height), pill,
                            EBKit::chip().current());
    }
}
