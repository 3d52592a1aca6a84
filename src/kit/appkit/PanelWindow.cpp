#include "PanelWindow.h"

#include "Platform.h"
#include "ViewAccessibility.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWindow>

namespace {

constexpr QSize firstSize(300, 200);

}

PanelWindow::PanelWindow(QWidget *content)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    installViewAccessibility();
    setAttribute(Qt::WA_TranslucentBackground);
    // Where tool windows are hidden while their application is inactive, this one stays.
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    // The size is the controller's to choose.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(content);
    resize(firstSize);
}

bool PanelWindow::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowDeactivate && onResignKey)
        onResignKey();
    return handled;
}

void PanelWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        Platform::current().workspace().floatOnAllSpaces(*windowHandle());
}

void PanelWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && onEscape)
        onEscape();
    else
        QWidget::keyPressEvent(event);
}

void PanelWindow::closeEvent(QCloseEvent *event)
{
    // The desktop asks; the controller hides the panel.
    event->ignore();
    if (onEscape)
        onEscape();
}
