#pragma once

#include "AnimationClock.h"
#include "Colors.h"
#include "FakePlatform.h"
#include "ViewEngine.h"
#include "Views.h"

/// One view of the overlay room, alone in a window, on a desktop in memory.
class OverlayView {
public:
    /// `name` is the QML type's; without a `width` in points the properties say how wide it is.
    OverlayView(const QString &name, const QVariantMap &properties, qreal width);

    FakePlatform &platform() { return m_platform; }
    QQuickWindow &window() { return m_window; }
    QQuickItem &root() { return *m_root; }

    /// Lays everything in the window out from right to left.
    void mirror() { Views::mirror(m_window, m_root); }

    /// The window as it is drawn now.
    QImage picture() { return m_window.grabWindow(); }
    /// The pixel at a point of an item.
    QColor pixel(QQuickItem *item, QPointF at) { return Views::pixel(m_window, item, at); }

    /// Every visible item of that class, in drawing order.
    template <typename Type> QList<Type *> all() { return Views::all<Type>(m_root); }
    QList<QQuickItem *> visibleItems() const { return Views::visible(m_root); }
    /// The visible text item that shows `text`.
    QQuickItem *textItem(const QString &text) const { return Views::text(m_root, text); }

    /// An item's rectangle in the coordinates of the view.
    QRectF rectOf(QQuickItem *item) const { return item->mapRectToItem(m_root, item->boundingRect()); }

private:
    FakePlatform &m_platform;
    ViewEngine m_engine;
    QQuickWindow m_window;
    QQuickItem *m_root = nullptr;
};
