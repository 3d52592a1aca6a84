#include "SettingText.h"

#include "LayoutCoder.h"
#include "Output.h"
#include "Shared.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

namespace {

std::optional<QVariant> boolean(const QString &text)
{
    const QString word = text.toLower();
    if (word == u"true" || word == u"on" || word == u"yes")
        return true;
    if (word == u"false" || word == u"off" || word == u"no")
        return false;
    return std::nullopt;
}

}

std::optional<QVariant> SettingText::parsed(const Contract::StoreKey &key, const QString &text)
{
    switch (key.defaultValue.typeId()) {
    case QMetaType::Bool:
        return boolean(text);
    case QMetaType::Double: {
        bool isNumber = false;
        const double number = QLocale::c().toDouble(text, &isNumber);
        return isNumber ? std::optional(QVariant(number)) : std::nullopt;
    }
    default:
        break;
    }
    if (key.name != Shared::Key::layoutsSaved)
        return text;
    // In the form in which it would be written back when it is read.
    const auto layouts = LayoutCoder::decode(text);
    const auto normalForm = layouts ? LayoutCoder::encode(*layouts) : std::nullopt;
    return normalForm.value_or(text);
}

QString SettingText::shown(const QString &key, const QVariant &value)
{
    if (!value.isValid())
        return QStringLiteral("-");
    if (value.typeId() == QMetaType::Double)
        return QLocale::c().toString(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    if (key != Shared::Key::layoutsSaved)
        return Output::printable(value.toString());
    if (value.toString().isEmpty())
        return QStringLiteral("-");
    const auto layouts = LayoutCoder::decode(value.toString());
    if (!layouts)
        return QStringLiteral("unreadable");
    return layouts->size() == 1 ? QStringLiteral("1 layout") : QStringLiteral("%1 layouts").arg(layouts->size());
}

QJsonValue SettingText::json(const QString &key, const QVariant &value)
{
    if (!value.isValid())
        return QJsonValue::Null;
    if (key != Shared::Key::layoutsSaved)
        return QJsonValue::fromVariant(value);
    const QJsonDocument layouts = QJsonDocument::fromJson(value.toString().toUtf8());
    return layouts.isArray() ? QJsonValue(layouts.array()) : QJsonValue(QJsonValue::Null);
}
