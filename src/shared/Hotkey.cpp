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
    Combination{Hotkey::close, KeyCodes::w, command, u"⌘W"},
    Combination{Hotkey::closeAll, KeyCodes::w, optionCommand, u"⌥⌘W"},
    Combination{Hotkey::minimize, KeyCodes::m, command, u"⌘M"},
    Combination{Hotkey::maximize, KeyCodes::f, command, u"⌘F"},
    Combination{Hotkey::hide, KeyCodes::h, command, u"⌘H"},
    Combination{Hotkey::hideOthers, KeyCodes::h, optionCommand, u"⌥⌘H"},
    Combination{Hotkey::kill, KeyCodes::q, command, u"⌘Q"},
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
