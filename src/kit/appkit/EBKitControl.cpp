#include "EBKitControl.h"

#include "ContinuousRect.h"
#include "KitEnvironment.h"

#include <QHoverEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <limits>

namespace {

bool isFromKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

/// The window or a menu took the focus away, and gives it back.
bool isPassing(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

bool isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}

EBKitControl::EBKitControl(QWidget *parent) : EBKitView(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

EBKitControl::~EBKitControl()
{
    delete m_ring;
}

qreal EBKitControl::shapeRadius() const
{
    return std::numeric_limits<qreal>::infinity();
}

QColor EBKitControl::ringColor() const
{
    return EBApps::family(KitEnvironment::ebApp(*this)).accent.current();
}

void EBKitControl::press()
{
    if (isEnabled())
        activate();
}

void EBKitControl::setHeld(bool held)
{
    if (std::exchange(m_held, held) != held)
        update();
}

void EBKitControl::setHovered(bool hovered)
{
    if (std::exchange(m_hovered, hovered) != hovered)
        update();
}

bool EBKitControl::isInShape(const QPointF &point) const
{
    return continuousRect(QRectF(rect()), shapeRadius()).contains(point);
}

bool EBKitControl::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        setHovered(isInShape(static_cast<QHoverEvent *>(event)->position()));
        break;
    case QEvent::HoverLeave:
        setHovered(false);
        break;
    default:
        break;
    }
    return EBKitView::event(event);
}

void EBKitControl::changeEvent(QEvent *event)
{
    EBKitView::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        m_tracking = false;
        setHeld(false);
        setHovered(false);
    }
}

void EBKitControl::mousePressEvent(QMouseEvent *event)
{
    m_tracking = event->button() == Qt::LeftButton && isInShape(event->position());
    setHeld(m_tracking);
    event->setAccepted(m_tracking);
}

void EBKitControl::mouseMoveEvent(QMouseEvent *event)
{
    if (m_tracking)
        setHeld(isInShape(event->position()));
}

void EBKitControl::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !std::exchange(m_tracking, false))
        return;
    const bool pressed = m_held;
    setHeld(false);
    if (pressed)
        press();
}

void EBKitControl::keyPressEvent(QKeyEvent *event)
{
    const bool isSpace = event->key() == Qt::Key_Space;
    if (!isSpace && !isReturn(*event)) {
        EBKitView::keyPressEvent(event);
        return;
    }
    if (event->isAutoRepeat())
        return;
    if (isSpace)
        setHeld(true);
    else
        press();
}

void EBKitControl::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space) {
        EBKitView::keyReleaseEvent(event);
        return;
    }
    if (event->isAutoRepeat() || !m_held)
        return;
    setHeld(false);
    press();
}

void EBKitControl::focusInEvent(QFocusEvent *event)
{
    EBKitView::focusInEvent(event);
    if (!isPassing(event->reason()))
        m_keyboardFocus = isFromKeyboard(event->reason());
    showRing(m_keyboardFocus);
}

void EBKitControl::focusOutEvent(QFocusEvent *event)
{
    EBKitView::focusOutEvent(event);
    m_tracking = false;
    setHeld(false);
    showRing(false);
}

void EBKitControl::showRing(bool shown)
{
    if (!shown || isWindow())
        delete m_ring;
    else if (!m_ring)
        m_ring = new KeyboardRing(*this);
}
