#pragma once

#include <QObject>
#include <qqmlregistration.h>

class QQuickItem;

/// What an item tells assistive technologies beside Qt's `Accessible`; `installKitAccessibility` passes it on. Attached
/// to items only.
class EBAccessible : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("EBAccessible is read and set as an attached property")
    QML_ATTACHED(EBAccessible)
    /// The item does not show, nor does anything in it.
    Q_PROPERTY(bool hidden MEMBER m_hidden NOTIFY changed)
public:
    using QObject::QObject;
    static EBAccessible *qmlAttachedProperties(QObject *object);

    /// What is attached to the item; null for an item that says nothing.
    static const EBAccessible *of(const QQuickItem *item);

    bool hidden() const { return m_hidden; }

signals:
    void changed();

private:
    bool m_hidden = false;
};
