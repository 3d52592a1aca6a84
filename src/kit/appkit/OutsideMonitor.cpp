#include "OutsideMonitor.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

OutsideMonitor::OutsideMonitor(const QWidget &window, std::function<void()> clicked)
    : m_window(window), m_clicked(std::move(clicked))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool OutsideMonitor::eventFilter(QObject *object, QEvent *event)
{
    const bool isClick = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin;
    if (isClick && object->isWindowType() && !isInside(object)) {
        // A copy: the monitor may go with what is called.
        const auto clicked = m_clicked;
        clicked();
    }
    return false;
}

bool OutsideMonitor::isInside(QObject *object) const
{
    for (const auto *window = qobject_cast<const QWindow *>(object); window;
         window = window->parent(QWindow::IncludeTransients)) {
        if (window == m_window.windowHandle())
            return true;
    }
    return false;
}
