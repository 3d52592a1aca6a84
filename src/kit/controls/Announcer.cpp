#include "Announcer.h"

#include <QAccessible>
#include <QQuickItem>

void Announcer::announce(QQuickItem *item)
{
    // Qt has no announcements before 6.8. A notification that comes up is read out wherever the focus is.
    QAccessibleEvent event(item, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}
