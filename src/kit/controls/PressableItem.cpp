#include "PressableItem.h"

PressableItem::PressableItem(QQuickItem *parent) : FocusItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptHoverEvents(true);
    connect(this, &PressableItem::horizontalPaddingChanged, this, &PressableItem::layOut);
}

void PressableItem::setBackground(QQuickItem *background)
{
    if (m_background == background)
        return;
    m_background = background;
    background->setParentItem(this);
    background->setZ(-1);
    layOut();
    emit backgroundChanged();
}

void PressableItem::setContentItem(QQuickItem *contentItem)
{
    if (m_contentItem == contentItem)
        return;
    m_contentItem = contentItem;
    contentItem->setParentItem(this);
    connect(contentItem, &QQuickItem::implicitWidthChanged, this, &PressableItem::implicitContentWidthChanged);
    connect(contentItem, &QQuickItem::implicitHeightChanged, this, &PressableItem::implicitContentHeightChanged);
    layOut();
    emit contentItemChanged();
    emit implicitContentWidthChanged();
    emit implicitContentHeightChanged();
}

void PressableItem::layOut()
{
    if (m_background)
        m_background->setSize(size());
    if (m_contentItem) {
        m_contentItem->setX(m_horizontalPadding);
        m_contentItem->setSize({width() - 2 * m_horizontalPadding, height()});
    }
}

void PressableItem::setPressed(bool pressed)
{
    if (m_pressed == pressed)
        return;
    m_pressed = pressed;
    emit pressedChanged();
}

void PressableItem::setHovered(bool hovered)
{
    if (m_hovered == hovered)
        return;
    m_hovered = hovered;
    emit hoveredChanged();
}

void PressableItem::mousePressEvent(QMouseEvent *event)
{
    if (m_takesFocusByClick)
        forceActiveFocus(Qt::MouseFocusReason);
    setPressed(contains(event->position()));
}

void PressableItem::mouseMoveEvent(QMouseEvent *event)
{
    setPressed(contains(event->position()));
}

void PressableItem::mouseReleaseEvent(QMouseEvent *)
{
    if (!m_pressed)
        return;
    setPressed(false);
    emit clicked();
}

// Comes on top of the second press, and is not for what lies behind.
void PressableItem::mouseDoubleClickEvent(QMouseEvent *) { }

void PressableItem::mouseUngrabEvent()
{
    setPressed(false);
}

void PressableItem::hoverEnterEvent(QHoverEvent *)
{
    setHovered(true);
}

void PressableItem::hoverLeaveEvent(QHoverEvent *)
{
    setHovered(false);
}

void PressableItem::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn && event->key() != Qt::Key_Space && event->key() != Qt::Key_Select) {
        FocusItem::keyPressEvent(event);
        return;
    }
    if (event->isAutoRepeat())
        return;
    if (isReturn)
        emit clicked();
    else
        setPressed(true);
}

void PressableItem::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space && event->key() != Qt::Key_Select) {
        FocusItem::keyReleaseEvent(event);
        return;
    }
    if (event->isAutoRepeat() || !m_pressed)
        return;
    setPressed(false);
    emit clicked();
}

void PressableItem::focusOutEvent(QFocusEvent *event)
{
    FocusItem::focusOutEvent(event);
    setPressed(false);
}

void PressableItem::geometryChange(const QRectF &now, const QRectF &before)
{
    FocusItem::geometryChange(now, before);
    if (now.size() != before.size())
        layOut();
}

void PressableItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    FocusItem::itemChange(change, data);
    const bool isGone = (change == ItemVisibleHasChanged || change == ItemEnabledHasChanged) && !data.boolValue;
    if (isGone) {
        setPressed(false);
        setHovered(false);
    }
    if (change == ItemVisibleHasChanged && !data.boolValue)
        setFocus(false);
}
