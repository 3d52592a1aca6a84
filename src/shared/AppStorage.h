#pragma once

#include <QObject>
#include <QProperty>
#include <QQmlParserStatus>
#include <QVariant>
#include <qqmlregistration.h>

class UserDefaults;

/// One key of the shared store as a bindable value. It follows changes made by any process, and writing it
/// stores.
///
/// `defaultValue` is what an absent key reads as, and its type (Boolean, text or number) is the type the key
/// has: a stored value of another type, or a number that is not finite, reads as the default and is left as
/// it is. Unset, or set to anything else, it is the default the key table declares.
///
/// Writing a value of another type, or a number that is not finite, does nothing. A value written while the
/// object is still being made is stored once it is complete. Without a key, and for an unknown key without a
/// default, `value` is undefined and nothing is stored.
class AppStorage : public QObject, public QQmlParserStatus {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged BINDABLE bindableKey REQUIRED)
    Q_PROPERTY(QVariant defaultValue READ defaultValue WRITE setDefaultValue NOTIFY defaultValueChanged)
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged)
public:
    explicit AppStorage(QObject *parent = nullptr);

    QString key() const { return m_key; }
    void setKey(const QString &key) { m_key = key; }
    /// Bindable, so that a bound key is known before any binding reads `value`.
    QBindable<QString> bindableKey() { return &m_key; }
    QVariant defaultValue() const;
    void setDefaultValue(const QVariant &value);
    QVariant value() const { return m_value; }
    void setValue(const QVariant &value);

    void classBegin() override { m_complete = false; }
    void componentComplete() override;

signals:
    void keyChanged();
    void defaultValueChanged();
    void valueChanged();

private:
    void followKey();
    void reread();

    UserDefaults &m_store;
    Q_OBJECT_BINDABLE_PROPERTY(AppStorage, QString, m_key, &AppStorage::keyChanged)
    QVariant m_ownDefault;
    QVariant m_value;
    QVariant m_early;
    bool m_complete = true;
};
