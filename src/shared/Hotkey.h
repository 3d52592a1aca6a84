#pragma once

#include "CaseNames.h"
#include "KeyMonitor.h"

#include <cstdint>

/// The agent's shortcut actions. The raw value is the position; the case name is what key names carry.
enum class Hotkey : int { close, closeAll, minimize, maximize, hide, hideOthers, kill };

struct Hotkeys : NumberedCases<Hotkey> {
    /// What a person reads on the keys, "⌥⌘W".
    static QString shownAs(Hotkey hotkey);

    /// The shortcut of a key event: a virtual key code (a position on the ANSI keyboard, not a character) and
    /// event flags. Only Shift, Control, Option and Command count among the flags, and they must be exactly those
    /// of the shortcut.
    static std::optional<Hotkey> match(std::int64_t keyCode, std::uint64_t flags);

    static constexpr auto commandFlag = KeyFlags::commandFlag;
    static constexpr auto controlFlag = KeyFlags::controlFlag;
    static constexpr auto optionFlag = KeyFlags::optionFlag;
    static constexpr auto shiftFlag = KeyFlags::shiftFlag;
};
