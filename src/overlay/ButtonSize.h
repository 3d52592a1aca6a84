#pragma once

#include <QString>
#include <QtGlobal>

#include <array>
#include <optional>

/// Every size there is, in order: its name, its base diameter in points and its title.
// clang-format off
#define BUTTON_SIZES(SIZE)                                    \
    SIZE(small, 20, QT_TRANSLATE_NOOP("ButtonSize", "Small"))   \
    SIZE(medium, 25, QT_TRANSLATE_NOOP("ButtonSize", "Medium")) \
    SIZE(large, 32, QT_TRANSLATE_NOOP("ButtonSize", "Large"))
// clang-format on

/// How big the overlay buttons are. The raw string is the case name, and that is what the store holds.
enum class ButtonSize {
#define SIZE(name, diameter, title) name,
    BUTTON_SIZES(SIZE)
#undef SIZE
};

namespace ButtonSizes {

inline constexpr std::array allCases = {
#define SIZE(name, diameter, title) ButtonSize::name,
    BUTTON_SIZES(SIZE)
#undef SIZE
};

/// What a text that names no size reads as.
inline constexpr ButtonSize fallback = ButtonSize::medium;

/// None for any text but the raw strings; upper and lower case differ.
std::optional<ButtonSize> fromRawValue(QStringView rawValue);
QString rawValue(ButtonSize size);

/// What a person reads, translated.
QString title(ButtonSize size);

/// The diameter in points before any scaling.
qreal diameter(ButtonSize size);

}
