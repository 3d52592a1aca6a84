#pragma once

#include "KeyMonitor.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

/// The agent's shortcut actions. The raw value is the position; the case name is what key names carry.
enum class Hotkey : int { close, closeAll, minimize, maximize, hide, hideOthers, kill };

namespace Hotkeys {

inline constexpr std::array allCases = {Hotkey::close, Hotkey::closeAll,   Hotkey::minimize, Hotkey::maximize,
                                        Hotkey::hide,  Hotkey::hideOthers, Hotkey::kill};

/// The case at that position, none for any other integer.
std::optional<Hotkey> fromRawValue(int rawValue);

/// "close", "closeAll" …
QString caseName(Hotkey hotkey);

/// The case of that name, none for any other text. Upper and lower case differ.
std::optional<Hotkey> fromCaseName(QStringView name);

/// What a person reads on the keys, "⌥⌘W".
QString shownAs(Hotkey hotkey);

/// The shortcut of a key event: a virtual key code (a position on the ANSI keyboard, not a character) and
/// event flags. Only Shift, Control, Option and Command count among the flags, and they must be exactly those
/// of the shortcut.
std::optional<Hotkey> match(std::int64_t keyCode, std::uint64_t flags);

using KeyFlags::commandFlag;
using KeyFlags::controlFlag;
using KeyFlags::optionFlag;
using KeyFlags::shiftFlag;

}
