#pragma once

#include <QKeyEvent>

#include <cstdint>

namespace KeyPositions {

/// The one of KeyCodes that stands for the key the event is about, whatever the keyboard's layout. Where an event does
/// not say which key it was, it is the key that has that meaning on an ANSI keyboard.
std::int64_t keyCode(const QKeyEvent &event);

/// The bits of KeyFlags. Ctrl stands for Command, Alt for Option and Super for Control.
std::uint64_t flags(Qt::KeyboardModifiers modifiers);

}
