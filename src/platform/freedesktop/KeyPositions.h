#pragma once

#include <QKeyEvent>

#include <cstdint>

namespace KeyPositions {

/// The one of KeyCodes that stands for the key the event is about. A letter is the place where it stands on an ANSI
/// keyboard, whatever the keyboard's layout; where an event does not say which key it was, its meaning counts. So it
/// does for a key that types no character, wherever it lies.
std::int64_t keyCode(const QKeyEvent &event);

/// The bits of KeyFlags. Ctrl stands for Command, Alt for Option and Super for Control.
std::uint64_t flags(Qt::KeyboardModifiers modifiers);

}
