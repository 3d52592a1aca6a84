#pragma once

class QWindow;

/// What Qt leaves out when it shows a floating window on an X server.
namespace X11Panel {

/// Prepares a hidden window to appear in front of the others, on every desktop and in no list of windows. A window
/// manager forgets this when the window is hidden.
void floatOnAllDesktops(QWindow &window);

/// Whether a compositor runs, so that transparent windows show what lies behind them.
bool isComposited();

}
