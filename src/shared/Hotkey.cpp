#include "Hotkey.h"

namespace {

struct Combination {
    Hotkey hotkey;
    const char *caseName;
    std::int64_t keyCode;
    std::uint64_t modifiers;
    const char16_t *shownAs;
};

constexpr auto command = Hotkeys::commandFlag;
constexpr auto optionCommand = Hotkeys::optionFlag | Hotkeys::commandFlag;

constexpr std::array combinations = {
    Combination{Hotkey::close, "close", KeyCodes::w, command, u"⌘W"},
    Combination{Hotkey::closeAll, "closeAll", KeyCodes::w, optionCommand, u"⌥⌘W"},
    Combination{Hotkey::minimize, "minimize", KeyCodes::m, command, u"⌘M"},
    Combination{Hotkey::maximize, "maximize", KeyCodes::f, command, u"⌘F"},
    Combination{Hotkey::hide, "hide", KeyCodes::h, command, u"⌘H"},
    Combination{Hotkey::hideOthers, "hideOthers", KeyCodes::h, optionCommand, u"⌥⌘H"},
    Combination{Hotkey::kill, "kill", KeyCodes::q, command, u"⌘Q"},
};
static_assert(combinations.size() == Hotkeys::allCases.size());

const Combination &combination(Hotkey hotkey)
{
    return combinations[static_cast<std::size_t>(hotkey)];
}

}

std::optional<Hotkey> Hotkeys::fromRawValue(int rawValue)
{
    if (rawValue < 0 || rawValue >= static_cast<int>(allCases.size()))
        return std::nullopt;
    return allCases[static_cast<std::size_t>(rawValue)];
}

std::optional<Hotkey> Hotkeys::fromCaseName(QStringView name)
{
    for (const Combination &candidate : combinations) {
        if (name == QLatin1String(candidate.caseName))
            return candidate.hotkey;
    }
    return std::nullopt;
}

QString Hotkeys::caseName(Hotkey hotkey)
{
    return QString::fromLatin1(combination(hotkey).caseName);
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
