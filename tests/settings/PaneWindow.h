#pragma once

#include "Accessibility.h"
#include "FakePlatform.h"
#include "NamedItems.h"
#include "Shared.h"
#include "ViewEngine.h"

#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

/// A settings pane in a window of its own, over a store in memory. Things are found by their accessible names.
class PaneWindow {
public:
    /// `stored` is what the store holds before the pane is made.
    explicit PaneWindow(const QString &url, const QVariantMap &stored = {})
        : platform(FakePlatform::install()), store(platform.suite(Shared::suiteName))
    {
        store.values = stored;
        QAccessible::setActive(true);
        installKitAccessibility();
        platform.look.setReduceMotion(true);
        m_window.resize(386, 1000);
        auto *pane = ViewEngine::make(m_engine, url);
        pane->setParent(m_window.contentItem());
        pane->setParentItem(m_window.contentItem());
        m_window.show();
        m_window.requestActivate();
    }

    FakePlatform &platform;
    FakeUserDefaults &store;

    QQuickWindow &window() { return m_window; }

    /// What was posted to the agent, in order.
    const QList<FakeDistributedNotificationCenter::Post> &posts() const { return platform.notifications.posts; }

    bool isShown(const QString &name) { return !NamedItems::all(m_window.contentItem(), name).isEmpty(); }

    /// The first visible item of that name and role; null when there is none.
    QQuickItem *control(const QString &name, QAccessible::Role role)
    {
        return NamedItems::first(m_window.contentItem(), name, role);
    }

    bool isChecked(const QString &name, QAccessible::Role role = QAccessible::CheckBox)
    {
        QQuickItem *item = control(name, role);
        return item && QAccessible::queryAccessibleInterface(item)->state().checked;
    }

    bool isDisabled(const QString &name, QAccessible::Role role)
    {
        QQuickItem *item = control(name, role);
        return item && QAccessible::queryAccessibleInterface(item)->state().disabled;
    }

    /// Clicks in the middle of the item, once what has just changed is laid out.
    void click(QQuickItem *item)
    {
        QVERIFY(item);
        QSignalSpy frames(&m_window, &QQuickWindow::frameSwapped);
        m_window.update();
        QTRY_VERIFY(!frames.isEmpty());
        const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(&m_window, Qt::LeftButton, {}, middle.toPoint());
    }

private:
    ViewEngine m_engine;
    QQuickWindow m_window;
};
