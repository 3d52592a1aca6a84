#include "UserDefaults.h"

std::optional<QVariant> UserDefaults::storable(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Bool:
    case QMetaType::QString:
    case QMetaType::Double:
        return value;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
        return value.toDouble();
    default:
        return std::nullopt;
    }
}

bool UserDefaults::isSame(const QVariant &one, const QVariant &other)
{
    return one.metaType() == other.metaType() && one == other;
}
