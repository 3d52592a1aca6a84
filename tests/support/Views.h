#pragma once

#include "FoundItem.h"

#include <QColor>
#include <QQuickWindow>

/// What tests of views do with a window and look for in it.
namespace Views {

/// Shows the window in front and has it drawn.
void bringUp(QQuickWindow &window);

/// Lays everything in the window out from right to left; `item` is one of those in it.
void mirror(QQuickWindow &window, const QQuickItem *item);

/// The pixel at a point of an item, as the window is drawn now.
QColor pixel(QQuickWindow &window, const QQuickItem *item, QPointF at);

/// The visible items in `root`, itself included, in drawing order within each parent.
FoundItems<QQuickItem> visible(QQuickItem *root);

/// Those of a class, by its name in C++ or in QML.
FoundItems<QQuickItem> visible(QQuickItem *root, const char *type);

/// The visible text item that shows `text`.
FoundItem text(QQuickItem *root, const QString &text);

/// Those of a class of C++.
template <typename Type> FoundItems<Type> all(QQuickItem *root)
{
    FoundItems<Type> found;
    for (QQuickItem *item : visible(root)) {
        if (auto *match = qobject_cast<Type *>(item))
            found.append(match);
    }
    return found;
}

}
