#pragma once

#include "Shared.h"
#include "UserDefaults.h"

#include <QObject>
#include <qqmlregistration.h>

/// The names of the store's keys for QML, so that a view names a key and never spells it.
class StoreKeys : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Key)
    QML_SINGLETON
#define STORE_KEY(identifier, text, value, writer, meaning) Q_PROPERTY(QString identifier READ identifier CONSTANT)
    CORVANE_STORE_KEYS(STORE_KEY)
#undef STORE_KEY
public:
#define STORE_KEY(identifier, text, value, writer, meaning)                                                            \
    QString identifier() const                                                                                         \
    {                                                                                                                  \
        return Shared::Key::identifier;                                                                                \
    }
    CORVANE_STORE_KEYS(STORE_KEY)
#undef STORE_KEY

    /// False where the administrator has locked that key: a control that changes it is disabled.
    Q_INVOKABLE static bool isWritable(const QString &key)
    {
        return Shared::store().isWritable(key);
    }
};
