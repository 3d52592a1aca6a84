#pragma once

#include <QByteArray>
#include <QVariantMap>

#include <optional>

/// The file that a copy of the settings is kept in: a line with a version and a checksum, and after it one JSON object.
namespace StoreCopy {

/// Values are Booleans, texts and numbers. A number that is not finite, or a value of any other type, is left out.
QByteArray encode(const QVariantMap &values);

/// The values; none for whatever `encode` has not written, be it damaged or cut short.
std::optional<QVariantMap> decode(const QByteArray &bytes);

}
