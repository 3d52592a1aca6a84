#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <xcb/xcb.h>

class XConnection;

/// The keyboard of the virtual display. Keys are named by X key symbols, such as XK_Tab.
class Keyboard {
public:
    explicit Keyboard(const XConnection &x);

    /// Presses and releases `key` while `modifiers` are held. A key the keyboard does not have is a fatal
    /// mistake in the test.
    void press(xcb_keysym_t key, const QList<xcb_keysym_t> &modifiers = {}) const;

    /// Presses and releases the key in a place of the keyboard while `modifiers` are held, whatever the layout has
    /// there. `evdevCode` is the kernel's number of the key, such as KEY_W.
    void pressPosition(quint32 evdevCode, const QList<xcb_keysym_t> &modifiers = {}) const;

    /// Holds that key down, or lets it go. A key that is held repeats.
    void hold(quint32 evdevCode) const;
    void letGo(quint32 evdevCode) const;

    /// Types a text of Latin letters, digits, signs and spaces.
    void type(const QString &text) const;

private:
    struct Key {
        xcb_keycode_t code;
        bool shifted;
    };

    void pressWhile(const QList<xcb_keysym_t> &modifiers, xcb_keycode_t code) const;
    void send(bool down, xcb_keycode_t code) const;

    const XConnection &m_x;
    QHash<xcb_keysym_t, Key> m_keys;
};
