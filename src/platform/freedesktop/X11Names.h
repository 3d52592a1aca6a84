#pragma once

#include <QList>

#include <memory>
#include <xcb/xcb_ewmh.h>

/// The names under which windows and window managers tell of themselves.
struct X11Names {
    /// Asks the server for them in one round trip; null when it does not answer.
    static std::unique_ptr<X11Names> ask(xcb_connection_t *connection);

    X11Names() = default;
    ~X11Names() { xcb_ewmh_connection_wipe(&ewmh); }
    Q_DISABLE_COPY_MOVE(X11Names)

    /// The answer to a question for a list of atoms; empty when there is none.
    QList<xcb_atom_t> atoms(xcb_get_property_cookie_t request);

    /// Those that all window managers agree on.
    xcb_ewmh_connection_t ewmh = {};
    /// Whether a window is minimised, by the older way of saying so.
    xcb_atom_t iconicState = XCB_ATOM_NONE;
    /// The shadow that a window draws itself.
    xcb_atom_t shadowExtents = XCB_ATOM_NONE;
    /// A message on the starts of programs: its first piece, and every further one.
    xcb_atom_t startupInfoBegin = XCB_ATOM_NONE;
    xcb_atom_t startupInfo = XCB_ATOM_NONE;
};
