#pragma once

#include <QObject>
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
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged REQUIRED)
    Q_PROPERTY(QVariant defaultValue READ defaultValue WRITE setDefaultValue NOTIFY defaultValueChanged)
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged)
public:
    explicit AppStorage(QObject *parent = nullptr);

    QString key() const { return m_key; }
    void setKey(const QString &key);
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
    void reread();

    UserDefaults &m_store;
    QString m_key;
    QVariant m_ownDefault;
    QVariant m_value;
    QVariant m_early;
    bool m_complete = true;
};
