#pragma once

#include <QAccessible>
#include <QQuickItem>

/// Looks for what a person can see and an assistive technology calls by a name.
namespace NamedItems {

/// The visible items of that accessible name in `item`, itself included, in the order of the tree.
inline QList<QQuickItem *> all(QQuickItem *item, const QString &name)
{
    QList<QQuickItem *> found;
    if (!item->isVisible())
        return found;
    const auto *accessible = QAccessible::queryAccessibleInterface(item);
    if (accessible && accessible->text(QAccessible::Name) == name)
        found.append(item);
    for (QQuickItem *child : item->childItems())
        found.append(all(child, name));
    return found;
}

/// The first of them in that role; null when there is none.
inline QQuickItem *first(QQuickItem *item, const QString &name, QAccessible::Role role)
{
    for (QQuickItem *candidate : all(item, name)) {
        if (QAccessible::queryAccessibleInterface(candidate)->role() == role)
            return candidate;
    }
    return nullptr;
}

}
