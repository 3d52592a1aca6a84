#pragma once

#include "UserDefaults.h"

#include <QVariantMap>

/// A suite in memory.
class FakeUserDefaults : public UserDefaults {
public:
    /// Every stored value, which may have a type that a suite does not hold: other programs store what they like.
    /// Writing here emits no signal.
    QVariantMap values;

    QVariant value(const QString &key) const override { return storable(values.value(key)).value_or(QVariant()); }

    void setValue(const QString &key, const QVariant &value) override
    {
        const auto typed = storable(value);
        if (!typed || isSame(this->value(key), *typed))
            return;
        if (typed->isValid())
            values.insert(key, *typed);
        else
            values.remove(key);
        emit changed(key);
    }
};
