#pragma once

#include "FakePlatform.h"
#include "ViewEngine.h"
#include "Views.h"

/// One screen, alone in a window that it fills, on a desktop in memory.
class ScreenView {
public:
    /// `qml` is the screen as a document would name it, without imports. The window is not shown yet.
    ScreenView(const QString &qml, QSize size);
    ~ScreenView();

    FakePlatform &platform() { return m_platform; }
    QQuickWindow &window() { return m_window; }
    QQuickItem &root() { return *m_root; }

    /// Shows the window in front and has it drawn.
    void show() { Views::bringUp(m_window); }

    /// Every visible item, in drawing order.
    QList<QQuickItem *> visibleItems() const { return Views::visible(m_root); }
    /// Those of a class, by its name in C++ or in QML.
    QList<QQuickItem *> visibleItems(const char *type) const { return Views::visible(m_root, type); }
    /// The visible text item that shows `text`; null when there is none.
    QQuickItem *textItem(const QString &text) const { return Views::text(m_root, text); }
    /// An item's rectangle in the window.
    static QRectF rectOf(const QQuickItem *item) { return item->mapRectToScene(item->boundingRect()); }

private:
    FakePlatform &m_platform;
    ViewEngine m_engine;
    QQuickWindow m_window;
    QQuickItem *m_root = nullptr;
};
