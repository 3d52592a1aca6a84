#include "ButtonSize.h"

#include <QCoreApplication>

namespace {

struct Entry {
    const char *rawValue;
    qreal diameter;
    const char *title;
};

constexpr std::array<Entry, ButtonSizes::allCases.size()> entries = {{
#define SIZE(name, diameter, title) {#name, diameter, title},
    BUTTON_SIZES(SIZE)
#undef SIZE
}};

const Entry &entry(ButtonSize size)
{
    return entries.at(static_cast<std::size_t>(size));
}

}

std::optional<ButtonSize> ButtonSizes::fromRawValue(QStringView rawValue)
{
    for (const ButtonSize size : allCases) {
        if (rawValue == QLatin1String(entry(size).rawValue))
            return size;
    }
    return std::nullopt;
}

QString ButtonSizes::rawValue(ButtonSize size)
{
    return QString::fromLatin1(entry(size).rawValue);
}

QString ButtonSizes::title(ButtonSize size)
{
    return QCoreApplication::translate("ButtonSize", entry(size).title);
}

qreal ButtonSizes::diameter(ButtonSize size)
{
    return entry(size).diameter;
}
