#include "X11ShowDesktop.h"

#include "X11Connection.h"
#include "X11Names.h"

void X11ShowDesktop::request()
{
    xcb_connection_t *x = X11::connection();
    const auto names = x ? X11Names::ask(x) : nullptr;
    if (!names)
        return;
    xcb_ewmh_connection_t *ewmh = &names->ewmh;
    if (!names->atoms(xcb_ewmh_get_supported(ewmh, 0)).contains(ewmh->_NET_SHOWING_DESKTOP))
        return;
    // Not by the library's own request, which names no window: a window manager listens to what is about the root.
    const quint32 isWished = 1;
    xcb_ewmh_send_client_message(x, X11::root(x), X11::root(x), ewmh->_NET_SHOWING_DESKTOP, 1, &isWished);
    xcb_flush(x);
}
