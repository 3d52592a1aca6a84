#pragma once

#include <QByteArray>
#include <QSize>

#include <xcb/xcb.h>

/// A connection to an X server of the test's own, apart from the program's: what it sees is what is really
/// there.
class XConnection {
public:
    explicit XConnection(const QByteArray &display);
    ~XConnection();
    XConnection(const XConnection &) = delete;
    XConnection &operator=(const XConnection &) = delete;

    bool isValid() const { return m_screen; }
    operator xcb_connection_t *() const { return m_connection; }

    xcb_window_t root() const { return m_screen ? m_screen->root : xcb_window_t(XCB_NONE); }
    QSize size() const;

    xcb_atom_t atom(const char *name) const;

    /// The bytes of a window's property; empty when it has none.
    QByteArray property(xcb_window_t window, xcb_atom_t name) const;

    /// The first number of a property of 32-bit numbers; 0 when it has none.
    quint32 number(xcb_window_t window, xcb_atom_t name) const;

    /// Returns once the server has carried out everything sent so far.
    void synchronise() const;

private:
    xcb_connection_t *m_connection;
    xcb_screen_t *m_screen = nullptr;
};
