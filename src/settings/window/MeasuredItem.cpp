#include "MeasuredItem.h"

#include <cmath>

namespace {

/// A positioner takes the sizes of what stands in it, so the inner items go first.
void layOut(QQuickItem *item)
{
    for (QQuickItem *child : item->childItems())
        layOut(child);
    item->ensurePolished();
}

}

MeasuredItem::MeasuredItem(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
}

void MeasuredItem::settle()
{
    for (QQuickItem *child : childItems())
        layOut(child);
}

void MeasuredItem::setContentSize(QSizeF size)
{
    if (m_contentSize == size)
        return;
    m_contentSize = size;
    polish();
    emit contentSizeChanged();
}

void MeasuredItem::setRoomHeight(qreal height)
{
    if (m_roomHeight != height) {
        m_roomHeight = height;
        emit roomHeightChanged();
    }
    compareWithRoom();
}

void MeasuredItem::updatePolish()
{
    emit measured(m_contentSize);
    compareWithRoom();
}

void MeasuredItem::compareWithRoom()
{
    const bool overflows = m_contentSize.height() > std::ceil(m_roomHeight);
    if (m_overflows == overflows)
        return;
    m_overflows = overflows;
    emit overflowsChanged();
}
