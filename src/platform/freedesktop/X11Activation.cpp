#include "X11Activation.h"

#include "X11Connection.h"
#include "X11Names.h"

#include <QWindow>

#include <cstring>
#include <optional>

namespace {

/// The time at which the person acted, on the X server's clock.
std::optional<xcb_timestamp_t> timeOf(const QByteArray &startupId)
{
    const QByteArray mark("_TIME");
    const qsizetype at = startupId.lastIndexOf(mark);
    bool isNumber = false;
    const uint time = at < 0 ? 0 : startupId.mid(at + mark.size()).toUInt(&isNumber);
    return isNumber ? std::optional(time) : std::nullopt;
}

/// Sends a text to whoever follows the starts of programs, in pieces as the messages have room.
void broadcast(xcb_connection_t *x, const X11Names &names, xcb_window_t sender, QByteArray text)
{
    text.append('\0');
    xcb_client_message_event_t piece = {};
    piece.response_type = XCB_CLIENT_MESSAGE;
    piece.format = 8;
    piece.window = sender;
    piece.type = names.startupInfoBegin;
    constexpr qsizetype room = sizeof piece.data.data8;
    for (qsizetype at = 0; at < text.size(); at += room) {
        const QByteArray part = text.mid(at, room).leftJustified(room, '\0');
        std::memcpy(piece.data.data8, part.constData(), room);
        xcb_send_event(x, false, X11::root(x), XCB_EVENT_MASK_PROPERTY_CHANGE, reinterpret_cast<const char *>(&piece));
        piece.type = names.startupInfo;
    }
}

}

void X11Activation::request(QWindow &window, const QByteArray &startupId)
{
    xcb_connection_t *x = X11::connection();
    const auto names = x ? X11Names::ask(x) : nullptr;
    if (!names)
        return;
    const auto id = xcb_window_t(window.winId());
    if (!startupId.isEmpty())
        broadcast(x, *names, id, "remove: ID=" + startupId);
    // Without a time, as a task list asks, which stands for the person.
    const auto time = timeOf(startupId);
    const auto source = time ? XCB_EWMH_CLIENT_SOURCE_TYPE_NORMAL : XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER;
    xcb_ewmh_request_change_active_window(&names->ewmh, 0, id, source, time.value_or(XCB_CURRENT_TIME),
                                          XCB_WINDOW_NONE);
    xcb_flush(x);
}
