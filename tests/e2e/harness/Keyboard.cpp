#include "Keyboard.h"

#include "XConnection.h"
#include "XReply.h"

#include <X11/keysym.h>
#include <xcb/xtest.h>

namespace {

/// The X server's number of a key.
xcb_keycode_t keycode(quint32 evdevCode)
{
    return xcb_keycode_t(evdevCode + 8);
}

}

Keyboard::Keyboard(const XConnection &x) : m_x(x)
{
    const xcb_setup_t *setup = xcb_get_setup(x);
    const xcb_keycode_t first = setup->min_keycode;
    const auto request = xcb_get_keyboard_mapping(x, first, xcb_keycode_t(setup->max_keycode - first + 1));
    const XReply<xcb_get_keyboard_mapping_reply_t> map(xcb_get_keyboard_mapping_reply(x, request, nullptr));
    if (!map)
        return;
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(map.get());
    const int width = map->keysyms_per_keycode;
    for (int i = 0; i < xcb_get_keyboard_mapping_keysyms_length(map.get()); ++i) {
        const int level = i % width;
        if (level < 2 && !m_keys.contains(symbols[i]))
            m_keys.insert(symbols[i], {xcb_keycode_t(first + i / width), level == 1});
    }
}

void Keyboard::press(xcb_keysym_t key, const QList<xcb_keysym_t> &modifiers) const
{
    Q_ASSERT_X(m_keys.contains(key), "Keyboard", "the keyboard lacks this key");
    pressWhile(m_keys[key].shifted ? modifiers + QList<xcb_keysym_t>{XK_Shift_L} : modifiers, m_keys[key].code);
}

void Keyboard::pressPosition(quint32 evdevCode, const QList<xcb_keysym_t> &modifiers) const
{
    pressWhile(modifiers, keycode(evdevCode));
}

void Keyboard::hold(quint32 evdevCode) const
{
    send(true, keycode(evdevCode));
    m_x.synchronise();
}

void Keyboard::letGo(quint32 evdevCode) const
{
    send(false, keycode(evdevCode));
    m_x.synchronise();
}

void Keyboard::pressWhile(const QList<xcb_keysym_t> &modifiers, xcb_keycode_t code) const
{
    QList<xcb_keycode_t> held;
    for (const xcb_keysym_t modifier : modifiers)
        held.append(m_keys[modifier].code);
    held.append(code);
    for (const xcb_keycode_t code : std::as_const(held))
        send(true, code);
    while (!held.isEmpty())
        send(false, held.takeLast());
    m_x.synchronise();
}

void Keyboard::type(const QString &text) const
{
    // The key symbols of Latin-1 characters are their code points.
    for (const QChar character : text)
        press(character.unicode());
}

void Keyboard::send(bool down, xcb_keycode_t code) const
{
    xcb_test_fake_input(m_x, down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}
