#include "KeyPositions.h"

#include "KeyMonitor.h"

#include <algorithm>
#include <array>

#include <linux/input-event-codes.h>

namespace {

/// The key of a letter.
struct Position {
    std::int64_t keyCode;

    /// The kernel's number of the key.
    quint32 evdevCode;

    /// What the key means on an ANSI keyboard.
    Qt::Key meaning;
};

constexpr std::array positions = {
    Position{KeyCodes::f, KEY_F, Qt::Key_F}, Position{KeyCodes::h, KEY_H, Qt::Key_H},
    Position{KeyCodes::m, KEY_M, Qt::Key_M}, Position{KeyCodes::q, KEY_Q, Qt::Key_Q},
    Position{KeyCodes::w, KEY_W, Qt::Key_W},
};

/// Escape, Return, Tab and the like. A dead key is on its way to a character.
bool typesNoCharacter(int key)
{
    const bool isDead = key >= Qt::Key_Dead_Grave && key <= Qt::Key_Dead_Longsolidusoverlay;
    return key >= Qt::Key_Escape && key != Qt::Key_unknown && !isDead;
}

}

std::int64_t KeyPositions::keyCode(const QKeyEvent &event)
{
    // People move these about: Escape is the key that they made Escape, wherever it lies.
    if (typesNoCharacter(event.key()))
        return event.key() == Qt::Key_Escape ? KeyCodes::escape : KeyCodes::none;
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
