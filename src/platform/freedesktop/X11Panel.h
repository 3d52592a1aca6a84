#pragma once

class QMargins;
class QWindow;

/// What Qt leaves out when it shows a floating window on an X server.
namespace X11Panel {

/// Prepares a hidden window to appear in front of the others, on every desktop and in no list of windows. A window
/// manager forgets this when the window is hidden.
void floatOnAllDesktops(QWindow &window);

/// What the window draws beyond what counts as its frame, in points: the pointer reaches through it. A window manager
/// that puts the window into one of its own looks at where the pointer reaches through only when that changes.
void setShadow(QWindow &window, const QMargins &shadow);

/// Whether a compositor runs, so that transparent windows show what lies behind them.
bool isComposited();

}
