#pragma once

#include <QPoint>

class XConnection;

/// The mouse of the virtual display. Points are pixels of the screen, from its top left corner.
class Pointer {
public:
    explicit Pointer(const XConnection &x) : m_x(x) { }

    void move(QPoint to) const;
    void press() const;
    void release() const;
    void click(QPoint at) const;

    /// Presses at `from`, moves to `to` over a few points in between, and lets go.
    void drag(QPoint from, QPoint to) const;

private:
    void button(bool down) const;

    const XConnection &m_x;
};
