#pragma once

#include <QUrl>
#include <QVariant>

/// An application's folder: its executable, its resources and the facts of its Info.plist.
///
/// A missing or unreadable Info.plist is an empty one.
class Bundle {
public:
    virtual ~Bundle() = default;

    /// The folder of the bundle, a file URL.
    virtual QUrl bundleURL() const = 0;

    /// Whether the bundle has an info dictionary at all.
    virtual bool hasInfoDictionary() const = 0;

    /// A string, Boolean or whole number of the info dictionary; invalid when the key is absent or holds another type.
    virtual QVariant objectForInfoDictionaryKey(const QString &key) const = 0;

    /// The resource file `name`.`extension`; an empty URL when there is none.
    virtual QUrl urlForResource(const QString &name, const QString &extension) const = 0;

    /// "CFBundleIdentifier", or an empty text.
    QString bundleIdentifier() const { return string(QStringLiteral("CFBundleIdentifier")); }

    /// The string under `key`; an empty text when it is missing or no string.
    QString string(const QString &key) const
    {
        const QVariant value = objectForInfoDictionaryKey(key);
        return value.typeId() == QMetaType::QString ? value.toString() : QString();
    }
};
