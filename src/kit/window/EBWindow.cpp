#include "EBWindow.h"

#include "EBKit.h"
#include "Platform.h"
#include "ViewEngine.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>

namespace {

/// How far down the strip reaches that moves the window, in points.
constexpr int titleBarHeight = 28;

}

EBWindow::EBWindow(QSize contentSize, Style style) : m_style(style)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint);
    setFrame(QRect(QPoint(), contentSize));
    const auto paint = [this] { setColor(EBKit::paper().current()); };
    connect(&Platform::current().appearance(), &Appearance::changed, this, paint);
    paint();
}

void EBWindow::host(QQuickItem *view)
{
    // Before a window is shown it has its size already, and its content item has none.
    const auto fill = [this, view] { view->setSize(size()); };
    connect(this, &QWindow::widthChanged, view, fill);
    connect(this, &QWindow::heightChanged, view, fill);
    view->setParent(contentItem());
    view->setParentItem(contentItem());
    fill();
    addChrome(qmlEngine(view));
}

void EBWindow::addChrome(QQmlEngine *engine)
{
    auto *chrome = ViewEngine::make(*engine, QStringLiteral("qrc:/qt/qml/Embera/Window/WindowChrome.qml"),
                                    {{QStringLiteral("window"), QVariant::fromValue(this)}});
    chrome->setParent(contentItem());
    chrome->setParentItem(contentItem());
}

void EBWindow::mousePressEvent(QMouseEvent *event)
{
    QQuickWindow::mousePressEvent(event);
    const bool onHandle = m_style.movableByWindowBackground || event->position().y() < titleBarHeight;
    if (!event->isAccepted() && event->button() == Qt::LeftButton && onHandle)
        startSystemMove();
}

void EBWindow::center()
{
    QRect frame = geometry();
    frame.moveCenter(screen()->availableGeometry().center());
    setPosition(frame.topLeft());
}

void EBWindow::setFrame(const QRect &frame)
{
    // The limits go first in the direction of the change, so that no step in between is refused.
    setMinimumSize(minimumSize().boundedTo(frame.size()));
    setMaximumSize(maximumSize().expandedTo(frame.size()));
    if (frame.topLeft() == position())
        resize(frame.size());
    else
        setGeometry(frame);
    setMinimumSize(frame.size());
    setMaximumSize(frame.size());
}

void EBWindow::makeKeyAndOrderFront()
{
    show();
    raise();
    requestActivate();
}
