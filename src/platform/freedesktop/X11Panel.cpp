#include "X11Panel.h"

#include "X11Connection.h"

#include <QWindow>

#include <cstring>

namespace {

constexpr quint32 everyDesktop = 0xFFFFFFFF;

xcb_atom_t atom(xcb_connection_t *x, const char *name)
{
    const auto request = xcb_intern_atom(x, false, quint16(std::strlen(name)), name);
    const X11::Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x, request, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

}

void X11Panel::floatOnAllDesktops(QWindow &window)
{
    xcb_connection_t *x = X11::connection();
    if (!x)
        return;
    const auto id = xcb_window_t(window.winId());
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, id, atom(x, "_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, 32, 1,
                        &everyDesktop);
    // Qt adds to these states what it knows of, and keeps them.
    const xcb_atom_t state = atom(x, "_NET_WM_STATE");
    QList<quint32> states = X11::numbers(X11::property(x, X11::askProperty(x, id, state)).get());
    for (const char *name : {"_NET_WM_STATE_STICKY", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"}) {
        if (const xcb_atom_t wanted = atom(x, name); !states.contains(wanted))
            states.append(wanted);
    }
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, id, state, XCB_ATOM_ATOM, 32, quint32(states.size()),
                        states.constData());
    const quint32 above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(x, id, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    xcb_flush(x);
}

bool X11Panel::isComposited()
{
    xcb_connection_t *x = X11::connection();
    if (!x)
        return true;
    const auto request = xcb_get_selection_owner(x, atom(x, "_NET_WM_CM_S0"));
    const X11::Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(x, request, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}
