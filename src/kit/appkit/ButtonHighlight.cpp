#include "ButtonHighlight.h"

#include <QAbstractButton>
#include <QEvent>

ButtonHighlight::ButtonHighlight(QWidget &button) : m_button(&button)
{
    button.installEventFilter(this);
    set(true);
}

ButtonHighlight::~ButtonHighlight()
{
    set(false);
}

bool ButtonHighlight::eventFilter(QObject *, QEvent *event)
{
    // A button is released when it loses the focus, which the panel takes from it.
    if (event->type() == QEvent::FocusOut)
        QMetaObject::invokeMethod(
            this, [this] { set(true); }, Qt::QueuedConnection);
    return false;
}

void ButtonHighlight::set(bool highlighted) const
{
    if (!m_button)
        return;
    if (auto *button = qobject_cast<QAbstractButton *>(m_button.data())) {
        button->setDown(highlighted);
        return;
    }
    m_button->setProperty("highlighted", highlighted);
    m_button->update();
}
