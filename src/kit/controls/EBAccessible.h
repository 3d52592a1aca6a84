#pragma once

#include <QAccessible>
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
    /// A role of `Accessible` for an item made from a template, which overrules `Accessible.role`. `Accessible.NoRole`,
    /// which it is to begin with, leaves the item the role it has.
    Q_PROPERTY(int role MEMBER m_role NOTIFY changed)
    /// The item does not show, nor does anything in it.
    Q_PROPERTY(bool hidden MEMBER m_hidden NOTIFY changed)
public:
    using QObject::QObject;
    static EBAccessible *qmlAttachedProperties(QObject *object);

    /// What is attached to the item; null for an item that says nothing.
    static const EBAccessible *of(const QQuickItem *item);

    QAccessible::Role role() const { return QAccessible::Role(m_role); }
    bool hidden() const { return m_hidden; }

signals:
    void changed();

private:
    int m_role = QAccessible::NoRole;
    bool m_hidden = false;
};
