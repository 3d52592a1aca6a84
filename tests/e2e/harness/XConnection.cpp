#include "XConnection.h"

#include "XReply.h"

#include <cstring>

XConnection::XConnection(const QByteArray &display) : m_connection(xcb_connect(display.constData(), nullptr))
{
    if (!xcb_connection_has_error(m_connection))
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
}

XConnection::~XConnection()
{
    xcb_disconnect(m_connection);
}

QSize XConnection::size() const
{
    return m_screen ? QSize(m_screen->width_in_pixels, m_screen->height_in_pixels) : QSize();
}

xcb_atom_t XConnection::atom(const char *name) const
{
    const auto request = xcb_intern_atom(m_connection, false, quint16(std::strlen(name)), name);
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, request, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

QByteArray XConnection::property(xcb_window_t window, xcb_atom_t name) const
{
    constexpr quint32 longest = 65536; // 32-bit units; the icons of a window are tens of thousands
    const auto request = xcb_get_property(m_connection, false, window, name, XCB_ATOM_ANY, 0, longest);
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, request, nullptr));
    if (!reply)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get())};
}

quint32 XConnection::number(xcb_window_t window, xcb_atom_t name) const
{
    const QByteArray bytes = property(window, name);
    quint32 value = 0;
    if (bytes.size() >= qsizetype(sizeof value))
        std::memcpy(&value, bytes.constData(), sizeof value);
    return value;
}

void XConnection::synchronise() const
{
    const auto request = xcb_get_input_focus(m_connection);
    const XReply<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(m_connection, request, nullptr));
}
