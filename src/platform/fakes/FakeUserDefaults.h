#pragma once

#include "UserDefaults.h"

#include <QSet>
#include <QVariantMap>

/// A suite in memory, that may fail to store.
class FakeUserDefaults : public UserDefaults {
public:
    using UserDefaults::retry;
    using UserDefaults::storedChanged;

    /// Every stored value, which may have a type that a suite does not hold: other programs store what they like.
    /// Writing here emits no signal.
    QVariantMap values;

    /// What keeps values from being stored, if anything.
    Trouble obstacle = Trouble::none;

    /// The keys that the administrator has locked.
    QSet<QString> locked;

    /// True: nothing is answered until `answer` is called.
    bool isHanging = false;

    void answer()
    {
        if (!std::exchange(m_isAsked, false))
            return;
        const Trouble trouble = isWritable(m_key) ? obstacle : Trouble::locked;
        if (trouble == Trouble::none && m_value.isValid())
            values.insert(m_key, m_value);
        else if (trouble == Trouble::none)
            values.remove(m_key);
        storeFinished(trouble);
    }

    bool isWritable(const QString &key) const override { return !locked.contains(key); }

protected:
    QVariant storedValue(const QString &key) const override { return storable(values.value(key)).value_or(QVariant()); }

    void store(const QString &key, const QVariant &value) override
    {
        m_isAsked = true;
        m_key = key;
        m_value = value;
        if (!isHanging)
            answer();
    }

private:
    bool m_isAsked = false;
    QString m_key;
    QVariant m_value;
};
