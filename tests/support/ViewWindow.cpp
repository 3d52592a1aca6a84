#include "ViewWindow.h"

#include "Accessibility.h"
#include "Shared.h"

#include <QSignalSpy>

ViewWindow::ViewWindow(const QVariantMap &stored)
    : platform(FakePlatform::install()), store(platform.suite(Shared::suiteName))
{
    store.values = stored;
    QAccessible::setActive(true);
    installKitAccessibility();
}

ViewWindow::~ViewWindow() = default;

void ViewWindow::put(QQuickItem *view, QSize window, QPointF at)
{
    m_own = std::make_unique<QQuickWindow>();
    m_own->resize(window);
    m_window = m_own.get();
    m_root = view;
    m_root->setParent(m_window->contentItem());
    m_root->setParentItem(m_window->contentItem());
    m_root->setPosition(at);
}

void ViewWindow::lookInto(QQuickWindow &window)
{
    m_window = &window;
    m_root = window.contentItem();
}

void ViewWindow::discard()
{
    delete std::exchange(m_root, nullptr);
}

QAccessible::State ViewWindow::state(const QString &name, QAccessible::Role role)
{
    return QAccessible::queryAccessibleInterface(item(name, role))->state();
}

QString ViewWindow::focused() const
{
    auto *focus = QAccessible::queryAccessibleInterface(m_window->activeFocusItem());
    return focus ? focus->text(QAccessible::Name) : QString();
}

void ViewWindow::mirror()
{
    Views::mirror(*m_window, m_root);
    m_window->grabWindow();
}

void ViewWindow::waitForFrame()
{
    QSignalSpy frames(m_window, &QQuickWindow::frameSwapped);
    m_window->update();
    REQUIRE_SOON(!frames.isEmpty());
}

void ViewWindow::click(QQuickItem *item, QPointF at, Qt::MouseButton button)
{
    point(item, at);
    QTest::mouseClick(m_window, button, {}, item->mapToScene(at).toPoint());
}

void ViewWindow::click(QQuickItem *item)
{
    waitForFrame();
    const QPointF middle(item->width() / 2, item->height() / 2);
    QTest::mouseClick(m_window, Qt::LeftButton, {}, item->mapToScene(middle).toPoint());
}
