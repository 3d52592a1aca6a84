#include "Theme.h"

#include "EBKitColor.h"

#include <QCoreApplication>

namespace {

struct Entry {
    const char *title;
    const char *description;
};

// In the order of the themes.
constexpr std::array entries = {
    Entry{QT_TRANSLATE_NOOP("Theme", "Classic"),
          QT_TRANSLATE_NOOP("Theme", "The familiar macOS red, yellow and green.")},
    Entry{QT_TRANSLATE_NOOP("Theme", "Soft"), QT_TRANSLATE_NOOP("Theme", "The same colors, calmer and less bright.")},
    Entry{QT_TRANSLATE_NOOP("Theme", "Graphite"),
          QT_TRANSLATE_NOOP("Theme", "Shades of grey. Tell them apart by shape.")},
    Entry{QT_TRANSLATE_NOOP("Theme", "Mono"), QT_TRANSLATE_NOOP("Theme", "Pure black and white.")},
    Entry{QT_TRANSLATE_NOOP("Theme", "No color"), QT_TRANSLATE_NOOP("Theme", "Clear outlines, nothing colored.")},
};
static_assert(entries.size() == Themes::allCases.size());

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
    return EBKitColor::hex(hexadecimal).value_or(QColor(0x80, 0x80, 0x80));
}
