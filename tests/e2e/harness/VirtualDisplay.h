#pragma once

#include <QByteArray>
#include <QProcess>
#include <QSize>

/// An X server of the test's own, without a window manager. It ends with this object, and with the test
/// process however that one ends.
class VirtualDisplay {
public:
    /// `size` in pixels, at 24 bits a pixel. Waits until the server takes connections.
    explicit VirtualDisplay(QSize size = {1280, 800});
    ~VirtualDisplay();

    /// ":3"; empty when no server could be started.
    QByteArray name() const { return m_name; }

    /// Gives the keyboard another layout, such as "fr" or "us(dvorak)". False when the server has no such layout.
    bool setKeyboardLayout(const QString &layout) const;

private:
    QProcess m_server;
    QByteArray m_name;
};
