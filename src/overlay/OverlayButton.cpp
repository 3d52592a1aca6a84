#include "OverlayButton.h"

namespace {

constexpr std::array<QStringView, OverlayButtons::allCases.size()> names = {
#define BUTTON(name) u## #name,
    OVERLAY_BUTTONS(BUTTON)
#undef BUTTON
};

}

std::optional<OverlayButton> OverlayButtons::fromRawValue(int rawValue)
{
    if (rawValue < 0 || rawValue >= int(allCases.size()))
        return std::nullopt;
    return OverlayButton(rawValue);
}

std::optional<OverlayButton> OverlayButtons::fromCaseName(QStringView name)
{
    for (const OverlayButton button : allCases) {
        if (name == names.at(std::size_t(rawValue(button))))
            return button;
    }
    return std::nullopt;
}
