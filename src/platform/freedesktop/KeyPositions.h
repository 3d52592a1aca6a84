#pragma once

#include <QKeyEvent>

#include <cstdint>

namespace KeyPositions {

/// The ANSI virtual key code of the key that the event is about, whatever the keyboard's layout, or -1 when its
/// position has none. Where an event does not say which key it was, it is the key that has that meaning on an ANSI
/// keyboard.
std::int64_t keyCode(const QKeyEvent &event);

/// The bits of KeyFlags. Ctrl stands for Command, Alt for Option and Super for Control.
std::uint64_t flags(Qt::KeyboardModifiers modifiers);

}
