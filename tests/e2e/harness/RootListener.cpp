#include "RootListener.h"

#include "XReply.h"

#include <QTest>

#include <algorithm>

RootListener::RootListener(const QByteArray &display) : m_x(display)
{
    // Some requests are sent under the one name and some under another.
    const quint32 mask =
        XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(m_x, m_x.root(), XCB_CW_EVENT_MASK, &mask);
    m_x.synchronise();
}

bool RootListener::waitForRequest(xcb_window_t window, const char *type, const QList<quint32> &first, int milliseconds)
{
    const xcb_atom_t atom = m_x.atom(type);
    const auto heard = [&] {
        while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_x)}) {
            if ((event->response_type & ~0x80) != XCB_CLIENT_MESSAGE)
                continue;
            const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event.get());
            const bool isMeant = message->window == window && message->type == atom;
            if (isMeant && std::equal(first.begin(), first.end(), message->data.data32))
                return true;
        }
        return false;
    };
    // Whatever was asked before this call has arrived with the answer to this.
    m_x.synchronise();
    return QTest::qWaitFor(heard, milliseconds);
}
