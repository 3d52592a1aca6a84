#include "TopLevel.h"

#include "XConnection.h"
#include "XReply.h"

#include <array>
#include <cstring>
#include <xcb/xcb_icccm.h>

QList<TopLevel> TopLevel::ofProcess(const XConnection &x, qint64 processId)
{
    QList<TopLevel> windows;
    collect(x, x.root(), processId, windows);
    return windows;
}

/// A window manager puts a window into a frame of its own.
void TopLevel::collect(const XConnection &x, xcb_window_t parent, qint64 processId, QList<TopLevel> &windows)
{
    const XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(x, xcb_query_tree(x, parent), nullptr));
    if (!tree)
        return;
    const xcb_window_t *ids = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        if (x.number(ids[i], x.atom("_NET_WM_PID")) == processId)
            windows.append(TopLevel(x, ids[i]));
        else
            collect(x, ids[i], processId, windows);
    }
}

QRect TopLevel::geometry() const
{
    const XReply<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(*m_x, xcb_get_geometry(*m_x, m_id), nullptr));
    const XReply<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(*m_x, xcb_translate_coordinates(*m_x, m_id, m_x->root(), 0, 0), nullptr));
    return size && place ? QRect(place->dst_x, place->dst_y, size->width, size->height) : QRect();
}

QRect TopLevel::frame() const
{
    const QByteArray bytes = m_x->property(m_id, m_x->atom("_GTK_FRAME_EXTENTS"));
    std::array<quint32, 4> extents = {};
    std::memcpy(extents.data(), bytes.constData(), std::min<std::size_t>(bytes.size(), sizeof extents));
    const auto [left, right, top, bottom] = extents;
    return geometry().marginsRemoved({int(left), int(top), int(right), int(bottom)});
}

QString TopLevel::title() const
{
    return QString::fromUtf8(m_x->property(m_id, m_x->atom("_NET_WM_NAME")));
}

QString TopLevel::windowClass() const
{
    return QString::fromUtf8(m_x->property(m_id, XCB_ATOM_WM_CLASS).split('\0').value(1));
}

QList<QImage> TopLevel::icon() const
{
    const QByteArray bytes = m_x->property(m_id, m_x->atom("_NET_WM_ICON"));
    QList<quint32> numbers(bytes.size() / qsizetype(sizeof(quint32)));
    std::memcpy(numbers.data(), bytes.constData(), numbers.size() * sizeof(quint32));

    // Each picture is its width, its height and its pixels.
    QList<QImage> pictures;
    for (qsizetype at = 0; at + 2 < numbers.size();) {
        const QSize size(int(numbers[at]), int(numbers[at + 1]));
        at += 2;
        const qsizetype pixels = qsizetype(size.width()) * size.height();
        if (pixels <= 0 || at + pixels > numbers.size())
            break;
        const auto *data = reinterpret_cast<const uchar *>(numbers.constData() + at);
        pictures.append(QImage(data, size.width(), size.height(), QImage::Format_ARGB32).copy());
        at += pixels;
    }
    return pictures;
}

bool TopLevel::isViewable() const
{
    const XReply<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(*m_x, xcb_get_window_attributes(*m_x, m_id), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool TopLevel::hasInputFocus() const
{
    const XReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(*m_x, xcb_get_input_focus(*m_x), nullptr));
    return reply && reply->focus == m_id;
}

QByteArrayList TopLevel::protocols() const
{
    const QByteArray bytes = m_x->property(m_id, m_x->atom("WM_PROTOCOLS"));
    QByteArrayList names;
    for (qsizetype at = 0; at + qsizetype(sizeof(xcb_atom_t)) <= bytes.size(); at += sizeof(xcb_atom_t)) {
        xcb_atom_t atom;
        std::memcpy(&atom, bytes.constData() + at, sizeof atom);
        const XReply<xcb_get_atom_name_reply_t> reply(
            xcb_get_atom_name_reply(*m_x, xcb_get_atom_name(*m_x, atom), nullptr));
        if (reply)
            names.append({xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get())});
    }
    return names;
}

std::optional<QSize> TopLevel::minimumSize() const
{
    xcb_size_hints_t hints = {};
    xcb_icccm_get_wm_normal_hints_reply(*m_x, xcb_icccm_get_wm_normal_hints(*m_x, m_id), &hints, nullptr);
    if (!(hints.flags & XCB_ICCCM_SIZE_HINT_P_MIN_SIZE))
        return std::nullopt;
    return QSize(hints.min_width, hints.min_height);
}

std::optional<QSize> TopLevel::maximumSize() const
{
    xcb_size_hints_t hints = {};
    xcb_icccm_get_wm_normal_hints_reply(*m_x, xcb_icccm_get_wm_normal_hints(*m_x, m_id), &hints, nullptr);
    if (!(hints.flags & XCB_ICCCM_SIZE_HINT_P_MAX_SIZE))
        return std::nullopt;
    return QSize(hints.max_width, hints.max_height);
}

void TopLevel::moveTo(QPoint place) const
{
    const std::array values = {place.x(), place.y()};
    xcb_configure_window(*m_x, m_id, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values.data());
    m_x->synchronise();
}

void TopLevel::close() const
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_id;
    message.type = m_x->atom("WM_PROTOCOLS");
    message.data.data32[0] = m_x->atom("WM_DELETE_WINDOW");
    xcb_send_event(*m_x, false, m_id, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char *>(&message));
    m_x->synchronise();
}
