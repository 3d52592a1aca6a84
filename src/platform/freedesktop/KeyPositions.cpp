#include "KeyPositions.h"

#include "KeyMonitor.h"

#include <algorithm>
#include <array>

#include <linux/input-event-codes.h>

namespace {

/// One key of a keyboard.
struct Position {
    std::int64_t keyCode;

    /// The kernel's number of the key.
    quint32 evdevCode;

    /// What the key means on an ANSI keyboard.
    Qt::Key meaning;
};

constexpr std::array positions = {
    Position{KeyCodes::escape, KEY_ESC, Qt::Key_Escape},
    Position{KeyCodes::f, KEY_F, Qt::Key_F},
    Position{KeyCodes::h, KEY_H, Qt::Key_H},
    Position{KeyCodes::m, KEY_M, Qt::Key_M},
    Position{KeyCodes::q, KEY_Q, Qt::Key_Q},
    Position{KeyCodes::w, KEY_W, Qt::Key_W},
};

}

std::int64_t KeyPositions::keyCode(const QKeyEvent &event)
{
    // X11 and Wayland both count from eight.
    constexpr quint32 offset = 8;
    const quint32 scanCode = event.nativeScanCode();
    const auto isMeant = [&](const Position &position) {
        return scanCode != 0 ? position.evdevCode + offset == scanCode : position.meaning == event.key();
    };
    const auto *const found = std::find_if(positions.begin(), positions.end(), isMeant);
    return found == positions.end() ? KeyCodes::none : found->keyCode;
}

std::uint64_t KeyPositions::flags(Qt::KeyboardModifiers modifiers)
{
    std::uint64_t flags = 0;
    if (modifiers.testFlag(Qt::ShiftModifier))
        flags |= KeyFlags::shiftFlag;
    if (modifiers.testFlag(Qt::ControlModifier))
        flags |= KeyFlags::commandFlag;
    if (modifiers.testFlag(Qt::AltModifier))
        flags |= KeyFlags::optionFlag;
    if (modifiers.testFlag(Qt::MetaModifier))
        flags |= KeyFlags::controlFlag;
    return flags;
}
