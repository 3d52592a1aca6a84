#pragma once

#include <QByteArray>
#include <QList>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

/// The application's own connection to its X server.
namespace X11 {

struct ReplyDeleter {
    void operator()(void *reply) const { std::free(reply); }
};

/// An answer of the server; null when the request failed, because its window is gone for instance.
template <typename Answer> using Reply = std::unique_ptr<Answer, ReplyDeleter>;

/// The number of a desktop that stands for all of them.
inline constexpr quint32 everyDesktop = 0xFFFFFFFF;

/// Null where the application runs on something else.
xcb_connection_t *connection();

/// The root window of the server's first screen.
xcb_window_t root(xcb_connection_t *connection);

/// Asks for at most 4096 numbers, or four times as many letters, of a property.
xcb_get_property_cookie_t askProperty(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t name);

/// The answer to `askProperty`, as bytes, or as numbers of 32 bits; empty when there is no such property, or one of
/// another kind.
QByteArray bytes(xcb_connection_t *connection, xcb_get_property_cookie_t request);
QList<quint32> numbers(xcb_connection_t *connection, xcb_get_property_cookie_t request);

}
