#pragma once

#include "X11Connection.h"

#include <array>

/// The names under which windows and window managers tell of themselves, asked for once.
struct X11WindowAtoms {
    explicit X11WindowAtoms(xcb_connection_t *connection);

    xcb_atom_t clientListStacking;
    xcb_atom_t clientList;
    xcb_atom_t currentDesktop;
    xcb_atom_t desktop;
    xcb_atom_t type;
    xcb_atom_t typeNormal;
    xcb_atom_t typeDialog;
    /// The kinds of windows that nobody works in.
    std::array<xcb_atom_t, 12> otherTypes;
    xcb_atom_t state;
    xcb_atom_t stateHidden;
    xcb_atom_t iconicState;
    xcb_atom_t frameExtents;
    xcb_atom_t shadowExtents;
};
