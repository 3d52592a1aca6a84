#pragma once

/// The window manager puts all windows out of the way, as far as it can.
namespace X11ShowDesktop {

/// Asks for it once. Nothing happens where the window manager knows no such mode, or on anything but X.
void request();

}
