#pragma once

#include "OverlayButton.h"

#include <QColor>
#include <QString>

/// Every theme there is, in the order of its tiles: its name, the title of its tile and a line that describes it.
// clang-format off
#define OVERLAY_THEMES(THEME)                                                                    \
    THEME(classic, QT_TRANSLATE_NOOP("Theme", "Classic"),                                        \
          QT_TRANSLATE_NOOP("Theme", "The familiar macOS red, yellow and green."))               \
    THEME(soft, QT_TRANSLATE_NOOP("Theme", "Soft"),                                              \
          QT_TRANSLATE_NOOP("Theme", "The same colors, calmer and less bright."))                \
    THEME(graphite, QT_TRANSLATE_NOOP("Theme", "Graphite"),                                      \
          QT_TRANSLATE_NOOP("Theme", "Shades of grey. Tell them apart by shape."))               \
    THEME(mono, QT_TRANSLATE_NOOP("Theme", "Mono"),                                              \
          QT_TRANSLATE_NOOP("Theme", "Pure black and white."))                                   \
    THEME(outline, QT_TRANSLATE_NOOP("Theme", "No color"),                                       \
          QT_TRANSLATE_NOOP("Theme", "Clear outlines, nothing colored."))
// clang-format on

/// How the overlay buttons look. The raw string is the case name, and that is what the store holds.
enum class Theme {
#define THEME(name, title, description) name,
    OVERLAY_THEMES(THEME)
#undef THEME
};

namespace Themes {

inline constexpr std::array allCases = {
#define THEME(name, title, description) Theme::name,
    OVERLAY_THEMES(THEME)
#undef THEME
};

/// What a text that names no theme reads as.
inline constexpr Theme fallback = Theme::classic;

/// None for any text but the raw strings; upper and lower case differ.
std::optional<Theme> fromRawValue(QStringView rawValue);
QString rawValue(Theme theme);

/// What a person reads, translated.
QString title(Theme theme);
QString description(Theme theme);

/// How one button is drawn. The ring runs inside the edge of the disc; its width is in points.
struct Look {
    QColor fill;
    QColor glyph;
    QColor ring;
    qreal ringWidth;
};

/// The same in light and in dark. A theme or a button that does not exist throws.
Look look(Theme theme, OverlayButton button);

/// The colour of a hexadecimal text; plain grey for one that cannot be read.
QColor color(QStringView hexadecimal);

}
