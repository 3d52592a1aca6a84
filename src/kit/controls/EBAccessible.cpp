#include "EBAccessible.h"

#include <QQuickItem>
#include <qqml.h>

EBAccessible *EBAccessible::qmlAttachedProperties(QObject *object)
{
    return new EBAccessible(object);
}

const EBAccessible *EBAccessible::of(const QQuickItem *item)
{
    // Looked up each time: the template of Qt that does this in one call asks once and for all, and an assistive
    // technology may ask before the module of this type has been imported.
    const auto attach = qmlAttachedPropertiesFunction(nullptr, &staticMetaObject);
    return qobject_cast<EBAccessible *>(qmlAttachedPropertiesObject(const_cast<QQuickItem *>(item), attach, false));
}
