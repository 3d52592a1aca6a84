#pragma once

#include <QStringView>

#include <array>
#include <optional>

/// Every button there is, in the order in which they stand on a window.
#define OVERLAY_BUTTONS(BUTTON) BUTTON(close) BUTTON(minimize) BUTTON(maximize)

/// The buttons that the agent lays over a window. The raw value is the position, and the place in every table with
/// an entry for each button.
enum class OverlayButton : int {
#define BUTTON(name) name,
    OVERLAY_BUTTONS(BUTTON)
#undef BUTTON
};

namespace OverlayButtons {

inline constexpr std::array allCases = {
#define BUTTON(name) OverlayButton::name,
    OVERLAY_BUTTONS(BUTTON)
#undef BUTTON
};

constexpr int rawValue(OverlayButton button)
{
    return static_cast<int>(button);
}

/// The button at that position, none for any other integer.
std::optional<OverlayButton> fromRawValue(int rawValue);

/// The button that QML names "close", "minimize" or "maximize"; none for any other text.
std::optional<OverlayButton> fromCaseName(QStringView name);

}
