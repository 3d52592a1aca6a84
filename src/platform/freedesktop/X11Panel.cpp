#include "X11Panel.h"

#include "X11Connection.h"
#include "X11Names.h"

#include <QMargins>
#include <QWindow>

#include <xcb/shape.h>

void X11Panel::floatOnAllDesktops(QWindow &window)
{
    xcb_connection_t *x = X11::connection();
    const auto names = x ? X11Names::ask(x) : nullptr;
    if (!names)
        return;
    xcb_ewmh_connection_t *ewmh = &names->ewmh;
    const auto id = xcb_window_t(window.winId());
    xcb_ewmh_set_wm_desktop(ewmh, id, X11::everyDesktop);
    // Qt keeps these states and adds its own.
    QList<xcb_atom_t> states = names->atoms(xcb_ewmh_get_wm_state(ewmh, id));
    for (const xcb_atom_t wanted :
         {ewmh->_NET_WM_STATE_STICKY, ewmh->_NET_WM_STATE_SKIP_TASKBAR, ewmh->_NET_WM_STATE_SKIP_PAGER}) {
        if (!states.contains(wanted))
            states.append(wanted);
    }
    xcb_ewmh_set_wm_state(ewmh, id, quint32(states.size()), states.data());
    const quint32 above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(x, id, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    xcb_flush(x);
}

void X11Panel::setShadow(QWindow &window, const QMargins &shadow)
{
    xcb_connection_t *x = X11::connection();
    const auto names = x ? X11Names::ask(x) : nullptr;
    if (!names)
        return;
    const auto id = xcb_window_t(window.winId());
    const QMargins pixels = shadow * window.devicePixelRatio();
    const quint32 extents[] = {quint32(pixels.left()), quint32(pixels.right()), quint32(pixels.top()),
                               quint32(pixels.bottom())};
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, id, names->shadowExtents, XCB_ATOM_CARDINAL, 32, 4, extents);
    const QRect frame = QRect(QPoint(), window.size() * window.devicePixelRatio()).marginsRemoved(pixels);
    const xcb_rectangle_t input = {qint16(frame.x()), qint16(frame.y()), quint16(frame.width()),
                                   quint16(frame.height())};
    xcb_shape_rectangles(x, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED, id, 0, 0, 1, &input);
    xcb_flush(x);
}

bool X11Panel::isComposited()
{
    xcb_connection_t *x = X11::connection();
    if (!x)
        return true;
    const auto names = X11Names::ask(x);
    xcb_window_t owner = XCB_WINDOW_NONE;
    return names
        && xcb_ewmh_get_wm_cm_owner_reply(&names->ewmh, xcb_ewmh_get_wm_cm_owner(&names->ewmh, 0), &owner, nullptr)
        && owner != XCB_WINDOW_NONE;
}
