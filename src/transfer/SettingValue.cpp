#include "SettingValue.h"

#include "LayoutCoder.h"
#include "Shared.h"

#include <cmath>

QString SettingValue::typeName(const QVariant &defaultValue)
{
    switch (defaultValue.typeId()) {
    case QMetaType::Bool:
        return QStringLiteral("boolean");
    case QMetaType::Double:
        return QStringLiteral("number");
    default:
        return QStringLiteral("string");
    }
}

std::optional<QString> SettingValue::fault(const Contract::StoreKey &key, const QVariant &value)
{
    if (value.metaType() != key.defaultValue.metaType())
        return QStringLiteral("\"%1\" must be a %2").arg(key.name, typeName(key.defaultValue));
    if (value.typeId() == QMetaType::Double && !std::isfinite(value.toDouble()))
        return QStringLiteral("\"%1\" must be a finite number").arg(key.name);
    const QString text = value.toString();
    if (!key.choices.isEmpty() && !key.choices.contains(text))
        return QStringLiteral("\"%1\" must be one of: %2").arg(key.name, key.choices.join(QStringLiteral(", ")));
    if (LayoutCoder::Fault layouts; key.name == Shared::Key::layoutsSaved && !LayoutCoder::decode(text, &layouts))
        return QStringLiteral("\"%1\" is no list of layouts: line %2: %3")
            .arg(key.name, QString::number(layouts.line), layouts.reason);
    return std::nullopt;
}
