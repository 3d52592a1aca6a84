#include "AppStorage.h"

#include "Shared.h"
#include "UserDefaults.h"

#include <utility>

AppStorage::AppStorage(QObject *parent) : QObject(parent), m_store(Shared::store())
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
    emit keyChanged();
    if (!m_ownDefault.isValid())
        emit defaultValueChanged();
    reread();
}

QVariant AppStorage::defaultValue() const
{
    return m_ownDefault.isValid() ? m_ownDefault : Contract::defaultValue(m_key);
}

void AppStorage::setDefaultValue(const QVariant &value)
{
    const QVariant before = defaultValue();
    m_ownDefault = Shared::storable(value);
    if (before == defaultValue() && before.metaType() == defaultValue().metaType())
        return;
    emit defaultValueChanged();
    reread();
}

void AppStorage::setValue(const QVariant &value)
{
    if (!m_complete) {
        m_early = value;
        return;
    }
    const QVariant typed = Shared::storable(value);
    if (m_key.isEmpty() || !typed.isValid() || typed.metaType() != defaultValue().metaType())
        return;
    m_store.setValue(m_key, typed);
    reread();
}

void AppStorage::componentComplete()
{
    m_complete = true;
    setValue(std::exchange(m_early, {}));
}

void AppStorage::reread()
{
    const QVariant fallback = m_key.isEmpty() ? QVariant() : defaultValue();
    const QVariant value = Shared::value(m_key, fallback);
    if (m_value == value && m_value.metaType() == value.metaType())
        return;
    m_value = value;
    emit valueChanged();
}
