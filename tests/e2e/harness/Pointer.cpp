#include "Pointer.h"

#include "XConnection.h"

#include <xcb/xtest.h>

void Pointer::move(QPoint to) const
{
    xcb_test_fake_input(m_x, XCB_MOTION_NOTIFY, false, XCB_CURRENT_TIME, m_x.root(), qint16(to.x()), qint16(to.y()), 0);
    m_x.synchronise();
}

void Pointer::press() const
{
    button(true);
}

void Pointer::release() const
{
    button(false);
}

void Pointer::click(QPoint at) const
{
    move(at);
    press();
    release();
}

void Pointer::drag(QPoint from, QPoint to) const
{
    constexpr int steps = 8;
    move(from);
    press();
    for (int step = 1; step <= steps; ++step)
        move(from + (to - from) * step / steps);
    release();
}

void Pointer::button(bool down) const
{
    xcb_test_fake_input(m_x, down ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1, XCB_CURRENT_TIME,
                        XCB_NONE, 0, 0, 0);
    m_x.synchronise();
}
