#include "Theme.h"

#include "EBKitColor.h"

#include <QCoreApplication>

namespace {

struct Entry {
    const char *rawValue;
    const char *title;
    const char *description;
};

constexpr std::array<Entry, Themes::allCases.size()> entries = {{
#define THEME(name, title, description) {#name, title, description},
    OVERLAY_THEMES(THEME)
#undef THEME
}};

const Entry &entry(Theme theme)
{
    return entries.at(static_cast<std::size_t>(theme));
}

struct Paint {
    QStringView hexadecimal;
    float alpha = 1;

    QColor color() const
    {
        QColor color = Themes::color(hexadecimal);
        color.setAlphaF(alpha);
        return color;
    }
};

using Fills = std::array<Paint, OverlayButtons::allCases.size()>;

constexpr Fills same(Paint paint)
{
    return {paint, paint, paint};
}

struct Row {
    Fills fills;
    Paint glyph;
    Paint ring;
    qreal ringWidth;
};

constexpr QStringView black = u"#000000";
constexpr QStringView white = u"#FFFFFF";

// The colours of every theme, in the order of the themes; fills in the order of the buttons.
constexpr std::array<Row, Themes::allCases.size()> looks = {{
    {{{{u"#EC4640"}, {u"#F5BF4F"}, {u"#4CC15E"}}}, {white}, {black, 0.18F}, 1},
    {{{{u"#D9706B"}, {u"#E3C47A"}, {u"#86BC91"}}}, {white}, {black, 0.18F}, 1},
    {{{{u"#2C2C2E"}, {u"#636366"}, {u"#98989D"}}}, {white}, {white, 0.2F}, 1},
    {same({u"#F5F5F7"}), {u"#1C1C1E"}, {black, 0.35F}, 1},
    {same({black, 0.3F}), {white}, {white, 0.85F}, 1.5},
}};

}

std::optional<Theme> Themes::fromRawValue(QStringView rawValue)
{
    for (const Theme theme : allCases) {
        if (rawValue == QLatin1String(entry(theme).rawValue))
            return theme;
    }
    return std::nullopt;
}

QString Themes::rawValue(Theme theme)
{
    return QString::fromLatin1(entry(theme).rawValue);
}

QString Themes::title(Theme theme)
{
    return QCoreApplication::translate("Theme", entry(theme).title);
}

QString Themes::description(Theme theme)
{
    return QCoreApplication::translate("Theme", entry(theme).description);
}

Themes::Look Themes::look(Theme theme, OverlayButton button)
{
    const Row &row = looks.at(static_cast<std::size_t>(theme));
    const Paint &fill = row.fills.at(std::size_t(OverlayButtons::rawValue(button)));
    return {fill.color(), row.glyph.color(), row.ring.color(), row.ringWidth};
}

QColor Themes::color(QStringView hexadecimal)
{
    return hex(hexadecimal).value_or(QColor(0x80, 0x80, 0x80));
}
