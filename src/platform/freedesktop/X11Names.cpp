#include "X11Names.h"

#include "X11Connection.h"

#include <cstring>

namespace {

xcb_intern_atom_cookie_t askAtom(xcb_connection_t *x, const char *name)
{
    return xcb_intern_atom(x, false, quint16(std::strlen(name)), name);
}

xcb_atom_t atom(xcb_connection_t *x, xcb_intern_atom_cookie_t request)
{
    const X11::Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x, request, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

}

std::unique_ptr<X11Names> X11Names::ask(xcb_connection_t *connection)
{
    auto names = std::make_unique<X11Names>();
    const auto askedIconicState = askAtom(connection, "WM_STATE");
    const auto askedShadowExtents = askAtom(connection, "_GTK_FRAME_EXTENTS");
    const auto askedStartupBegin = askAtom(connection, "_NET_STARTUP_INFO_BEGIN");
    const auto askedStartup = askAtom(connection, "_NET_STARTUP_INFO");
    xcb_intern_atom_cookie_t *asked = xcb_ewmh_init_atoms(connection, &names->ewmh);
    names->iconicState = atom(connection, askedIconicState);
    names->shadowExtents = atom(connection, askedShadowExtents);
    names->startupInfoBegin = atom(connection, askedStartupBegin);
    names->startupInfo = atom(connection, askedStartup);
    if (asked && xcb_ewmh_init_atoms_replies(&names->ewmh, asked, nullptr))
        return names;
    // The library has tidied up by itself.
    names->ewmh = {};
    return nullptr;
}

QList<xcb_atom_t> X11Names::atoms(xcb_get_property_cookie_t request)
{
    xcb_ewmh_get_atoms_reply_t reply;
    if (!xcb_ewmh_get_atoms_reply(&ewmh, request, &reply, nullptr))
        return {};
    QList<xcb_atom_t> atoms(reply.atoms, reply.atoms + reply.atoms_len);
    xcb_ewmh_get_atoms_reply_wipe(&reply);
    return atoms;
}
