#include "ButtonChoices.h"

#include "ButtonSize.h"
#include "Theme.h"

namespace {

QVariantMap choice(const QString &value, const QString &title)
{
    return {{QStringLiteral("value"), value}, {QStringLiteral("title"), title}};
}

Theme themeOf(const QString &rawValue)
{
    return Themes::fromRawValue(rawValue).value_or(Themes::fallback);
}

ButtonSize sizeOf(const QString &rawValue)
{
    return ButtonSizes::fromRawValue(rawValue).value_or(ButtonSizes::fallback);
}

}

QVariantList ButtonChoices::themes()
{
    QVariantList list;
    for (const Theme theme : Themes::allCases)
        list.append(choice(Themes::rawValue(theme), Themes::title(theme)));
    return list;
}

QVariantList ButtonChoices::sizes()
{
    QVariantList list;
    for (const ButtonSize size : ButtonSizes::allCases)
        list.append(choice(ButtonSizes::rawValue(size), ButtonSizes::title(size)));
    return list;
}

QString ButtonChoices::theme(const QString &rawValue)
{
    return Themes::rawValue(themeOf(rawValue));
}

QString ButtonChoices::size(const QString &rawValue)
{
    return ButtonSizes::rawValue(sizeOf(rawValue));
}

QString ButtonChoices::description(const QString &theme)
{
    return Themes::description(themeOf(theme));
}

qreal ButtonChoices::diameter(const QString &size)
{
    return ButtonSizes::diameter(sizeOf(size));
}
