#pragma once

#include <QByteArray>
#include <QString>

/// What a launcher asks a Wayland compositor for when the person starts a program by it: the right to come to the
/// front, to be handed to that program. Empty where the compositor on `display`, the path of a socket, gives none.
QByteArray launcherToken(const QString &display);
