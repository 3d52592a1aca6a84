#pragma once

#include "AnimationClock.h"
#include "Colors.h"
#include "FakePlatform.h"
#include "NamedItems.h"
#include "ViewEngine.h"
#include "Views.h"

/// A view in a window, on a desktop in memory. Things are found by what a person sees of them; a test that uses what is
/// not there fails. The rooms' harnesses say which view it is.
class ViewWindow {
public:
    FakePlatform &platform;
    /// The suite that the application shares with the agent.
    FakeUserDefaults &store;

    QQuickWindow &window() { return *m_window; }
    QQuickItem &root() { return *m_root; }

    /// The first visible item of that accessible name and role.
    FoundItem item(const QString &name, QAccessible::Role role)
    {
        return NamedItems::first(m_window->contentItem(), name, role);
    }
    /// All visible items of that accessible name.
    FoundItems<QQuickItem> named(const QString &name) { return NamedItems::all(m_window->contentItem(), name); }
    /// What an assistive technology is told about it.
    QAccessible::State state(const QString &name, QAccessible::Role role);
    /// Whether anything of that accessible name is visible.
    bool isShown(const QString &name) { return !named(name).isEmpty(); }
    /// The accessible name of what has the keyboard focus; empty when nothing has.
    QString focused() const;

    /// Every visible item of that class in `in`, which is the view unless one is named, in drawing order within each
    /// parent.
    template <typename Type> FoundItems<Type> all(QQuickItem *in = nullptr) { return Views::all<Type>(within(in)); }
    /// The same by the name of the class, in C++ or in QML.
    FoundItems<QQuickItem> typed(const char *type, QQuickItem *in = nullptr) const
    {
        return Views::visible(within(in), type);
    }
    FoundItems<QQuickItem> visibleItems(QQuickItem *in = nullptr) const { return Views::visible(within(in)); }
    /// The visible text item that shows `text`.
    FoundItem textItem(const QString &text, QQuickItem *in = nullptr) const { return Views::text(within(in), text); }

    /// An item's rectangle in the coordinates of another, of the view unless one is named.
    QRectF rectOf(const QQuickItem *item, QQuickItem *in = nullptr) const
    {
        return item->mapRectToItem(within(in), item->boundingRect());
    }

    /// The window as it is drawn now.
    QImage picture() { return m_window->grabWindow(); }
    /// The pixel at a point of an item.
    QColor pixel(QQuickItem *item, QPointF at) { return Views::pixel(*m_window, item, at); }

    /// Lays everything in the window out from right to left.
    void mirror();
    /// Waits until everything that has just changed is laid out and painted.
    void waitForFrame();
    /// Moves the pointer to a point of the item, the pixels on its way left out.
    void point(QQuickItem *item, QPointF at) { QTest::mouseMove(m_window, item->mapToScene(at).toPoint()); }
    /// Clicks at a point of the item, which lies there already.
    void click(QQuickItem *item, QPointF at, Qt::MouseButton button = Qt::LeftButton);
    /// Clicks in the middle of the item, once what has just changed is laid out.
    void click(QQuickItem *item);
    void pressKey(Qt::Key key) { QTest::keyClick(m_window, key); }

protected:
    /// The store holds `stored` before there is any view.
    explicit ViewWindow(const QVariantMap &stored = {});
    ~ViewWindow();

    ViewEngine engine;

    /// Puts the view, which it then owns, into a window of that size.
    void put(QQuickItem *view, QSize window, QPointF at = {});
    /// Looks into a window that somebody else owns.
    void lookInto(QQuickWindow &window);
    /// Shows the window in front and has it drawn.
    void bringUp() { Views::bringUp(*m_window); }
    /// Takes the view away.
    void discard();

private:
    QQuickItem *within(QQuickItem *item) const { return item ? item : m_root; }

    std::unique_ptr<QQuickWindow> m_own;
    QQuickWindow *m_window = nullptr;
    QQuickItem *m_root = nullptr;
};
