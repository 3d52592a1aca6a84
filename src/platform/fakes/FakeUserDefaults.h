#pragma once

#include "UserDefaults.h"

#include <QVariantMap>

/// A suite in memory. It takes values of any type, so that a test can store what a reader must refuse.
class FakeUserDefaults : public UserDefaults {
public:
    /// Every stored value. Writing here emits no signal.
    QVariantMap values;

    QVariant value(const QString &key) const override { return values.value(key); }

    void setValue(const QString &key, const QVariant &value) override
    {
        const QVariant before = values.value(key);
        if (before == value && before.metaType() == value.metaType())
            return;
        if (value.isValid())
            values.insert(key, value);
        else
            values.remove(key);
        emit changed(key);
    }
};
