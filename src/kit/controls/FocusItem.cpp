#include "FocusItem.h"

FocusItem::FocusItem(QQuickItem *parent) : QQuickItem(parent)
{
    setActiveFocusOnTab(true);
}

void FocusItem::setTabStop(bool tabStop)
{
    if (m_tabStop == tabStop)
        return;
    m_tabStop = tabStop;
    setActiveFocusOnTab(tabStop || hasActiveFocus());
    emit tabStopChanged();
}

void FocusItem::setVisualFocus(bool visualFocus)
{
    if (m_visualFocus == visualFocus)
        return;
    m_visualFocus = visualFocus;
    emit visualFocusChanged();
}

void FocusItem::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    setActiveFocusOnTab(true);
    const Qt::FocusReason reason = event->reason();
    setVisualFocus(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
                   || reason == Qt::ShortcutFocusReason);
}

void FocusItem::focusOutEvent(QFocusEvent *event)
{
    QQuickItem::focusOutEvent(event);
    setActiveFocusOnTab(m_tabStop);
    setVisualFocus(false);
}
