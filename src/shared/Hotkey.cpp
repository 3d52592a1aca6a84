#include "Hotkey.h"

namespace {

struct Combination {
    Hotkey hotkey;
    std::int64_t keyCode;
    std::uint64_t modifiers;
    const char16_t *shownAs;
};

constexpr auto command = Hotkeys::commandFlag;
constexpr auto optionCommand = Hotkeys::optionFlag | Hotkeys::commandFlag;

constexpr std::array combinations = {
    Combination{Hotkey::close, 13, command, u"⌘W"},    Combination{Hotkey::closeAll, 13, optionCommand, u"⌥⌘W"},
    Combination{Hotkey::minimize, 46, command, u"⌘M"}, Combination{Hotkey::maximize, 3, command, u"⌘F"},
    Combination{Hotkey::hide, 4, command, u"⌘H"},      Combination{Hotkey::hideOthers, 4, optionCommand, u"⌥⌘H"},
    Combination{Hotkey::kill, 12, command, u"⌘Q"},
};
static_assert(combinations.size() == Hotkeys::allCases.size());

const Combination &combination(Hotkey hotkey)
{
    return combinations[static_cast<std::size_t>(hotkey)];
}

}

QString Hotkeys::shownAs(Hotkey hotkey)
{
    return QString::fromUtf16(combination(hotkey).shownAs);
}

std::optional<Hotkey> Hotkeys::match(std::int64_t keyCode, std::uint64_t flags)
{
    const auto modifiers = flags & (shiftFlag | controlFlag | optionFlag | commandFlag);
    for (const Combination &candidate : combinations) {
        if (candidate.keyCode == keyCode && candidate.modifiers == modifiers)
            return candidate.hotkey;
    }
    return std::nullopt;
}
