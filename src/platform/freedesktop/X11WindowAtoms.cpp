#include "X11WindowAtoms.h"

#include <cstring>

X11WindowAtoms::X11WindowAtoms(xcb_connection_t *connection)
{
    const std::pair<const char *, xcb_atom_t *> names[] = {
        {"_NET_CLIENT_LIST_STACKING", &clientListStacking},
        {"_NET_CLIENT_LIST", &clientList},
        {"_NET_CURRENT_DESKTOP", &currentDesktop},
        {"_NET_WM_DESKTOP", &desktop},
        {"_NET_WM_WINDOW_TYPE", &type},
        {"_NET_WM_WINDOW_TYPE_NORMAL", &typeNormal},
        {"_NET_WM_WINDOW_TYPE_DIALOG", &typeDialog},
        {"_NET_WM_WINDOW_TYPE_DESKTOP", &otherTypes[0]},
        {"_NET_WM_WINDOW_TYPE_DOCK", &otherTypes[1]},
        {"_NET_WM_WINDOW_TYPE_TOOLBAR", &otherTypes[2]},
        {"_NET_WM_WINDOW_TYPE_MENU", &otherTypes[3]},
        {"_NET_WM_WINDOW_TYPE_UTILITY", &otherTypes[4]},
        {"_NET_WM_WINDOW_TYPE_SPLASH", &otherTypes[5]},
        {"_NET_WM_WINDOW_TYPE_DROPDOWN_MENU", &otherTypes[6]},
        {"_NET_WM_WINDOW_TYPE_POPUP_MENU", &otherTypes[7]},
        {"_NET_WM_WINDOW_TYPE_TOOLTIP", &otherTypes[8]},
        {"_NET_WM_WINDOW_TYPE_NOTIFICATION", &otherTypes[9]},
        {"_NET_WM_WINDOW_TYPE_COMBO", &otherTypes[10]},
        {"_NET_WM_WINDOW_TYPE_DND", &otherTypes[11]},
        {"_NET_WM_STATE", &state},
        {"_NET_WM_STATE_HIDDEN", &stateHidden},
        {"WM_STATE", &iconicState},
        {"_NET_FRAME_EXTENTS", &frameExtents},
        {"_GTK_FRAME_EXTENTS", &shadowExtents},
    };
    std::array<xcb_intern_atom_cookie_t, std::size(names)> requests;
    for (std::size_t i = 0; i < requests.size(); ++i)
        requests[i] = xcb_intern_atom(connection, false, quint16(std::strlen(names[i].first)), names[i].first);
    for (std::size_t i = 0; i < requests.size(); ++i) {
        const X11::Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, requests[i], nullptr));
        *names[i].second = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }
}
