#pragma once

#include <QByteArray>

class QWindow;

/// Bringing a window to the front where Qt's own request is turned down: it carries the time of the last input to this
/// program, and a window manager takes a request for stolen focus if another program has had input since.
namespace X11Activation {

/// Asks the window manager: as of the person's action that a launcher has noted down in `startupId`, else on behalf of
/// the person. Who follows the starts of programs is told that this one is over. Nothing happens on anything but X.
void request(QWindow &window, const QByteArray &startupId);

}
