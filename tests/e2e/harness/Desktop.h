#pragma once

#include "PrivateSession.h"
#include "VirtualDisplay.h"
#include "XConnection.h"

#include <QProcessEnvironment>

/// A desktop of the test's own: a private session with its settings service and its accessibility bus, and a display.
/// One a process, made before anything talks to a bus: this process moves into the session too.
class Desktop {
public:
    Desktop();
    ~Desktop();

    bool isValid() const { return m_isValid; }

    const PrivateSession &session() const { return m_session; }
    const XConnection &x() const { return m_x; }
    QByteArray display() const { return m_display.name(); }
    bool setKeyboardLayout(const QString &layout) const { return m_display.setKeyboardLayout(layout); }

    /// What a program started in this session gets.
    QProcessEnvironment environment() const;

private:
    PrivateSession m_session;
    VirtualDisplay m_display;
    XConnection m_x;
    bool m_isValid = false;
};
