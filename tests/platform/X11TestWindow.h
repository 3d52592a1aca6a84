#pragma once

#include "XConnection.h"

#include <QList>
#include <QRect>

#include <xcb/xcb.h>

/// A plain window on the virtual display, with the properties a test gives it. It ends with this object.
class X11TestWindow {
public:
    /// Not on the screen yet; `place` in pixels.
    X11TestWindow(const XConnection &x, QRect place, bool overrideRedirect = false) : m_x(x), m_id(xcb_generate_id(x))
    {
        const quint32 value = overrideRedirect ? 1 : 0;
        xcb_create_window(x, XCB_COPY_FROM_PARENT, m_id, x.root(), qint16(place.x()), qint16(place.y()),
                          quint16(place.width()), quint16(place.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &value);
    }
    ~X11TestWindow()
    {
        xcb_destroy_window(m_x, m_id);
        m_x.synchronise();
    }
    X11TestWindow(const X11TestWindow &) = delete;
    X11TestWindow &operator=(const X11TestWindow &) = delete;

    xcb_window_t id() const { return m_id; }

    void map() const
    {
        xcb_map_window(m_x, m_id);
        m_x.synchronise();
    }
    void unmap() const
    {
        xcb_unmap_window(m_x, m_id);
        m_x.synchronise();
    }
    /// Pixels; the size stays.
    void move(QPoint to) const
    {
        const quint32 values[] = {quint32(to.x()), quint32(to.y())};
        xcb_configure_window(m_x, m_id, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values);
        m_x.synchronise();
    }
    void raise() const
    {
        const quint32 above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(m_x, m_id, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        m_x.synchronise();
    }
    /// The two parts of WM_CLASS.
    void setClass(const QByteArray &instance, const QByteArray &name) const
    {
        const QByteArray value = instance + '\0' + name + '\0';
        xcb_change_property(m_x, XCB_PROP_MODE_REPLACE, m_id, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                            quint32(value.size()), value.constData());
        m_x.synchronise();
    }
    void setNumbers(const char *property, const QList<quint32> &numbers) const
    {
        setNumbers(m_x, m_id, property, numbers);
    }

    static void setNumbers(const XConnection &x, xcb_window_t window, const char *property,
                           const QList<quint32> &numbers)
    {
        xcb_change_property(x, XCB_PROP_MODE_REPLACE, window, x.atom(property), typeOf(property), 32,
                            quint32(numbers.size()), numbers.constData());
        x.synchronise();
    }

private:
    /// As window managers and windows declare it.
    static xcb_atom_t typeOf(QByteArrayView property)
    {
        if (property.startsWith("_NET_CLIENT_LIST"))
            return XCB_ATOM_WINDOW;
        return property == "_NET_WM_STATE" || property == "_NET_WM_WINDOW_TYPE" ? XCB_ATOM_ATOM : XCB_ATOM_CARDINAL;
    }

    const XConnection &m_x;
    xcb_window_t m_id;
};
