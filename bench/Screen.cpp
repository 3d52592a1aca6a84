#include "Screen.h"

#include <QtGlobal>

#include <poll.h>
#include <xcb/damage.h>

#include <cstdlib>
#include <memory>

using namespace std::chrono;

namespace {

struct Free {
    void operator()(void *pointer) const { std::free(pointer); }
};
constexpr seconds patience(20);

template <typename T> using Reply = std::unique_ptr<T, Free>;

}

Screen::Screen() : m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection))
        qFatal("there is no X display to measure on");
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    const auto *extension = xcb_get_extension_data(m_connection, &xcb_damage_id);
    m_damageNotify = std::uint8_t(extension->first_event + XCB_DAMAGE_NOTIFY);
    const Reply<xcb_damage_query_version_reply_t> version(
        xcb_damage_query_version_reply(m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
    m_damage = xcb_generate_id(m_connection);
    xcb_damage_create(m_connection, m_damage, m_screen->root, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    settle();
}

Screen::~Screen()
{
    xcb_disconnect(m_connection);
}

void Screen::settle()
{
    xcb_damage_subtract(m_connection, m_damage, XCB_NONE, XCB_NONE);
    const Reply<xcb_get_input_focus_reply_t> roundTrip(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    while (auto *event = xcb_poll_for_event(m_connection))
        std::free(event);
}

void Screen::waitUntilEmpty()
{
    const auto deadline = Clock::now() + patience;
    Reply<xcb_query_tree_reply_t> windows;
    do {
        if (Clock::now() > deadline)
            qFatal("a window of the last program is still there");
        windows.reset(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, m_screen->root), nullptr));
    } while (windows && windows->children_len > 0);
    xcb_clear_area(m_connection, 0, m_screen->root, 0, 0, 0, 0);
}

bool Screen::awaitDamage(Clock::time_point deadline)
{
    for (;;) {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
            if ((event->response_type & 0x7f) == m_damageNotify)
                return true;
        }
        const auto left = duration_cast<milliseconds>(deadline - Clock::now()).count();
        pollfd descriptor = {xcb_get_file_descriptor(m_connection), POLLIN, 0};
        if (left <= 0 || poll(&descriptor, 1, int(left)) <= 0)
            return false;
    }
}

QImage Screen::picture() const
{
    const int width = m_screen->width_in_pixels;
    const int height = m_screen->height_in_pixels;
    const auto cookie = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root, 0, 0,
                                      std::uint16_t(width), std::uint16_t(height), ~0u);
    const Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(m_connection, cookie, nullptr));
    return image ? QImage(xcb_get_image_data(image.get()), width, height, QImage::Format_RGB32).copy() : QImage();
}

std::optional<QRgb> Screen::pixel(int x, int y) const
{
    const auto cookie = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root, std::int16_t(x),
                                      std::int16_t(y), 1, 1, ~0u);
    const Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(m_connection, cookie, nullptr));
    if (!image)
        return std::nullopt;
    const std::uint8_t *data = xcb_get_image_data(image.get());
    return qRgb(data[2], data[1], data[0]);
}

std::optional<Screen::Clock::time_point> Screen::waitForColor(QRgb color, int above, milliseconds timeout)
{
    const auto deadline = Clock::now() + timeout;
    do {
        if (pixel(m_screen->width_in_pixels / 2, m_screen->height_in_pixels / 2 - above) == color)
            return Clock::now();
        xcb_damage_subtract(m_connection, m_damage, XCB_NONE, XCB_NONE);
        xcb_flush(m_connection);
    } while (awaitDamage(deadline));
    return std::nullopt;
}

std::optional<Screen::Clock::time_point> Screen::waitForPaint(milliseconds timeout)
{
    if (!awaitDamage(Clock::now() + timeout))
        return std::nullopt;
    return Clock::now();
}
