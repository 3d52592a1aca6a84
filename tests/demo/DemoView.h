#pragma once

#include "DemoModel.h"
#include "FakePlatform.h"
#include "ViewEngine.h"
#include "Views.h"

#include <memory>

/// One view of the practice over a model of its own, alone in a window, on a desktop in memory.
class DemoView {
public:
    /// `name` is the QML type's. The store holds `stored` when the view is made. Without a `width` in points the view
    /// is as wide as it wants to be.
    explicit DemoView(const QString &name, const QVariantMap &properties = {}, qreal width = 0,
                      const QVariantMap &stored = {});

    FakePlatform &platform() { return m_platform; }
    FakeUserDefaults &store();
    DemoModel &model() { return m_model; }
    QQuickWindow &window() { return m_window; }
    QQuickItem &root() { return *m_root; }

    /// Takes the view away.
    void discard() { m_root.reset(); }
    /// Lays everything in the window out from right to left.
    void mirror();

    /// Moves the pointer to a point of the item, the pixels on its way left out.
    void point(QQuickItem *item, QPointF at);
    /// Moves the pointer to where nothing is.
    void pointAway();
    void click(QQuickItem *item, QPointF at, Qt::MouseButton button = Qt::LeftButton);
    /// A shortcut, or any other key, from the keyboard. True when it was swallowed.
    bool press(std::int64_t keyCode, std::uint64_t flags = Hotkeys::commandFlag, bool isARepeat = false);

    QImage picture() { return m_window.grabWindow(); }
    QColor pixel(QQuickItem *item, QPointF at) { return Views::pixel(m_window, item, at); }

    /// Every visible item of that class, in drawing order within each parent.
    template <typename Type> QList<Type *> all(QQuickItem *in = nullptr)
    {
        return Views::all<Type>(in ? in : m_root.get());
    }
    /// Every visible item of that QML type.
    QList<QQuickItem *> typed(const char *type, QQuickItem *in = nullptr) const;
    QList<QQuickItem *> visibleItems(QQuickItem *in = nullptr) const;
    QQuickItem *textItem(const QString &text, QQuickItem *in = nullptr) const;

    /// An item's rectangle in the coordinates of another, of the view unless one is named.
    QRectF rectOf(QQuickItem *item, QQuickItem *in = nullptr) const;

private:
    FakePlatform &m_platform;
    DemoModel m_model;
    ViewEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_root;
};
