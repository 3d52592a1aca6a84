#pragma once

#include "Bundle.h"

#include <QVariantMap>

#include <optional>

/// A bundle made of its three public members. Its resources need not exist.
class FakeBundle : public Bundle {
public:
    QUrl url;

    /// None stands for a bundle without an info dictionary.
    std::optional<QVariantMap> info;

    /// File name, extension included, to its URL.
    QMap<QString, QUrl> resources;

    QUrl bundleURL() const override { return url; }
    bool hasInfoDictionary() const override { return info.has_value(); }
    QVariant objectForInfoDictionaryKey(const QString &key) const override
    {
        const QVariant value = info ? info->value(key) : QVariant();
        const int type = value.typeId();
        return type == QMetaType::QString || type == QMetaType::Bool || type == QMetaType::Int ? value : QVariant();
    }
    QUrl urlForResource(const QString &name, const QString &extension) const override
    {
        return resources.value(extension.isEmpty() ? name : name + QLatin1Char('.') + extension);
    }
};
