#include "StoreCopy.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

QByteArray headOf(const QByteArray &body)
{
    return "corvane-settings 1 " + QCryptographicHash::hash(body, QCryptographicHash::Sha256).toHex() + '\n';
}

bool canBeKept(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::QString:
        return true;
    case QMetaType::Double:
        return std::isfinite(value.toDouble());
    default:
        return false;
    }
}

}

QByteArray StoreCopy::encode(const QVariantMap &values)
{
    QJsonObject object;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (canBeKept(*value))
            object.insert(value.key(), QJsonValue::fromVariant(*value));
    }
    const QByteArray body = QJsonDocument(object).toJson();
    return headOf(body) + body;
}

std::optional<QVariantMap> StoreCopy::decode(const QByteArray &bytes)
{
    const QByteArray body = bytes.mid(bytes.indexOf('\n') + 1);
    if (bytes != headOf(body) + body)
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    QVariantMap values;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        // A whole number would become one of another type.
        const QVariant value = entry->isDouble() ? QVariant(entry->toDouble()) : entry->toVariant();
        if (!canBeKept(value))
            return std::nullopt;
        values.insert(entry.key(), value);
    }
    return values;
}
