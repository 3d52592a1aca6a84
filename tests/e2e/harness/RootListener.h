#pragma once

#include "XConnection.h"

#include <QList>

/// Receives what windows ask of a window manager, in place of one.
class RootListener {
public:
    explicit RootListener(const QByteArray &display);

    /// Waits until `window` has asked with a message of that type that begins with these numbers, such as
    /// WM_CHANGE_STATE.
    bool waitForRequest(xcb_window_t window, const char *type, const QList<quint32> &first, int milliseconds = 5000);

private:
    XConnection m_x;
};
