#pragma once

#include "FoundItem.h"

#include <QAccessible>
#include <QMetaEnum>

/// Looks for what a person can see and an assistive technology calls by a name.
namespace NamedItems {

/// The visible items of that accessible name in `item`, itself included, in the order of the tree.
inline FoundItems<QQuickItem> all(QQuickItem *item, const QString &name)
{
    FoundItems<QQuickItem> found;
    if (!item->isVisible())
        return found;
    const auto *accessible = QAccessible::queryAccessibleInterface(item);
    if (accessible && accessible->text(QAccessible::Name) == name)
        found.append(item);
    for (QQuickItem *child : item->childItems())
        found.append(all(child, name));
    return found;
}

/// The first of them in that role.
inline FoundItem first(QQuickItem *item, const QString &name, QAccessible::Role role)
{
    QQuickItem *found = nullptr;
    for (QQuickItem *candidate : all(item, name)) {
        if (!found && QAccessible::queryAccessibleInterface(candidate)->role() == role)
            found = candidate;
    }
    const char *roleName = QMetaEnum::fromType<QAccessible::Role>().valueToKey(role);
    return {found, QStringLiteral("%1 \"%2\"").arg(QLatin1String(roleName), name)};
}

}
