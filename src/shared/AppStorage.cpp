#include "AppStorage.h"

#include "Shared.h"
#include "UserDefaults.h"

AppStorage::AppStorage(QObject *parent) :
    QObject(parent),
    m_store(Shared::store())
{
    connect(&m_store, &UserDefaults::changed, this, [this](const QString &changedKey) {
        if (changedKey.isEmpty() || changedKey == m_key)
            reread();
    });
}

void AppStorage::setKey(const QString &key)
{
    if (m_key == key)
        return;
    m_key = key;
    if (!m_defaultIsSet)
        m_default = Contract::defaultValue(key);
    emit keyChanged();
    reread();
}

void AppStorage::setDefaultValue(const QVariant &value)
{
    m_defaultIsSet = true;
    if (m_default == value)
        return;
    m_default = value;
    emit defaultValueChanged();
    reread();
}

void AppStorage::setValue(const QVariant &value)
{
    if (!m_default.isValid() || !QMetaType::canConvert(value.metaType(), m_default.metaType()))
        return;
    QVariant typed = value;
    typed.convert(m_default.metaType());
    m_store.setValue(m_key, typed);
    reread();
}

void AppStorage::componentComplete()
{
    m_complete = true;
    reread();
}

void AppStorage::reread()
{
    if (!m_complete)
        return;
    const QVariant stored = m_store.value(m_key);
    const QVariant value = stored.metaType() == m_default.metaType() ? stored : m_default;
    if (m_value == value && m_value.metaType() == value.metaType())
        return;
    m_value = value;
    emit valueChanged();
}
