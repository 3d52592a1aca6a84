#pragma once

#include "XConnection.h"

/// Receives what windows ask of a window manager, in place of one.
class RootListener {
public:
    explicit RootListener(const QByteArray &display);

    /// Waits until `window` has asked with a message of that type and that first number, such as WM_CHANGE_STATE.
    bool waitForRequest(xcb_window_t window, const char *type, quint32 first, int milliseconds = 5000);

private:
    XConnection m_x;
};
