#pragma once

class QWindow;

/// What Qt does not ask of an X server for a window that floats beside the others.
namespace X11Panel {

/// Readies a window that is not shown to appear in front of the others on every desktop, and to be left out by the
/// lists of windows. A window manager forgets it when the window is hidden.
void floatOnAllDesktops(QWindow &window);

/// Whether somebody lets what lies behind a transparent window shine through.
bool isComposited();

}
