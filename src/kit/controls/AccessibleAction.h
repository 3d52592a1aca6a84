#pragma once

#include <QObject>
#include <qqmlregistration.h>

/// An action that the item it stands in offers to assistive technologies under a name of its own. The actions of an
/// item are listed in their order, after those that Qt gives it, and work while the item is enabled. It must be
/// accessible itself (`Accessible.role`).
class AccessibleAction : public QObject {
    Q_OBJECT
    QML_ELEMENT

    /// What a person hears, translated. An action without a name is not offered.
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged)

    /// What it does, where the name does not say that. Empty unless set.
    Q_PROPERTY(QString description MEMBER m_description NOTIFY descriptionChanged)
public:
    using QObject::QObject;

    QString name() const { return m_name; }
    QString description() const { return m_description; }

signals:
    void nameChanged();
    void descriptionChanged();

    /// An assistive technology asks for the action to be carried out.
    void performed();

private:
    QString m_name;
    QString m_description;
};
