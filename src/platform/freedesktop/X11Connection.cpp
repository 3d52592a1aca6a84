#include "X11Connection.h"

#include <QGuiApplication>

xcb_connection_t *X11::connection()
{
    auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    auto *x11 = application ? application->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t X11::root(xcb_connection_t *connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

xcb_get_property_cookie_t X11::askProperty(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t name)
{
    constexpr quint32 longest = 4096;
    return xcb_get_property(connection, false, window, name, XCB_ATOM_ANY, 0, longest);
}

QByteArray X11::bytes(xcb_connection_t *connection, xcb_get_property_cookie_t request)
{
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, request, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get())};
}

QList<quint32> X11::numbers(xcb_connection_t *connection, xcb_get_property_cookie_t request)
{
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, request, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *first = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}
