#pragma once

#include "Contract.h"

#include <QJsonValue>

#include <optional>

/// Values of the store as a person types and reads them, and as JSON.
namespace SettingText {

/// The value that the text stands for; none when it is none of the key's type.
std::optional<QVariant> parsed(const Contract::StoreKey &key, const QString &text);

/// For a table: the saved layouts are only counted, and an invalid value is "-".
QString shown(const QString &key, const QVariant &value);

/// Saved layouts become an array, an invalid value null.
QJsonValue json(const QString &key, const QVariant &value);

}
