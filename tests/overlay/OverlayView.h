#pragma once

#include "FakePlatform.h"
#include "ViewEngine.h"

#include <QAnimationDriver>
#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

/// One view of the overlay room, alone in a window, on a desktop in memory.
class OverlayView {
public:
    /// `name` is the QML type's; without a `width` in points the properties say how wide it is.
    OverlayView(const QString &name, const QVariantMap &properties, qreal width);

    FakePlatform &platform() { return m_platform; }
    QQuickWindow &window() { return m_window; }
    QQuickItem &root() { return *m_root; }

    /// Lays everything in the window out from right to left.
    void mirror();

    /// The window as it is drawn now.
    QImage picture() { return m_window.grabWindow(); }
    /// The pixel at a point of an item.
    QColor pixel(QQuickItem *item, QPointF at);

    /// Every visible item of that class, in drawing order.
    template <typename Type> QList<Type *> all()
    {
        QList<Type *> found;
        for (QQuickItem *item : visibleItems()) {
            if (auto *match = qobject_cast<Type *>(item))
                found.append(match);
        }
        return found;
    }
    QList<QQuickItem *> visibleItems() const;
    /// The visible text item that shows `text`.
    QQuickItem *textItem(const QString &text) const;

    /// An item's rectangle in the coordinates of the view.
    QRectF rectOf(QQuickItem *item) const { return item->mapRectToItem(m_root, item->boundingRect()); }

private:
    FakePlatform &m_platform;
    ViewEngine m_engine;
    QQuickWindow m_window;
    QQuickItem *m_root = nullptr;
};

/// While it lives, animations move when the test says so, and only then.
class AnimationClock : public QAnimationDriver {
public:
    AnimationClock() { install(); }

    /// Moves what is being animated; something has to be.
    void advance(int milliseconds);
    qint64 elapsed() const override { return m_elapsed; }

protected:
    void start() override;

private:
    using QAnimationDriver::advance;

    qint64 m_elapsed = 0;
};

/// What two colours, the upper one possibly translucent, look like together.
QColor over(const QColor &upper, const QColor &ground, qreal opacity = 1);

/// Whether two opaque colours differ by no more than rounding does.
bool isNear(const QColor &actual, const QColor &expected, int tolerance = 2);
