#pragma once

#include <QObject>
#include <QVariant>

#include <optional>

/// A suite of settings that several processes read and write. The last writer of a key wins.
///
/// A value is a bool, a double or a QString. Main thread only.
class UserDefaults : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// The stored value; an invalid QVariant when the key is absent or holds any other type.
    virtual QVariant value(const QString &key) const = 0;

    /// Stores `value` before it returns, so that a command posted next announces what is already there.
    /// Where nothing can be stored the value is kept in memory for as long as the process runs.
    /// A whole number is stored as a double, an invalid value removes the key, and one of any other type is ignored.
    virtual void setValue(const QString &key, const QVariant &value) = 0;

signals:
    /// The value of `key` may have changed, by this process or by another one.
    /// An empty key says that any key may have.
    void changed(const QString &key);

protected:
    /// `value` as one of the types a suite holds, an invalid one included; none for a value of any other type.
    static std::optional<QVariant> storable(const QVariant &value);

    /// Whether the two have the same type and value.
    static bool isSame(const QVariant &one, const QVariant &other);
};
