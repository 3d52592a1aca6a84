#include "KeyPositions.h"

#include "KeyMonitor.h"

#include <algorithm>
#include <array>

#include <linux/input-event-codes.h>

namespace {

/// One key of a keyboard.
struct Position {
    /// The kernel's number of the key.
    quint32 evdevCode;

    /// The ANSI virtual key code.
    std::int64_t keyCode;

    /// What the key means on an ANSI keyboard, alone and, where that differs, with Shift or without Num Lock.
    Qt::Key meaning = Qt::Key_unknown;
    Qt::Key otherMeaning = Qt::Key_unknown;

    bool isOnKeypad = false;
};

constexpr bool onKeypad = true;

constexpr std::array positions = {
    Position{KEY_A, 0, Qt::Key_A},
    Position{KEY_S, 1, Qt::Key_S},
    Position{KEY_D, 2, Qt::Key_D},
    Position{KEY_F, 3, Qt::Key_F},
    Position{KEY_H, 4, Qt::Key_H},
    Position{KEY_G, 5, Qt::Key_G},
    Position{KEY_Z, 6, Qt::Key_Z},
    Position{KEY_X, 7, Qt::Key_X},
    Position{KEY_C, 8, Qt::Key_C},
    Position{KEY_V, 9, Qt::Key_V},
    Position{KEY_102ND, 10},
    Position{KEY_B, 11, Qt::Key_B},
    Position{KEY_Q, 12, Qt::Key_Q},
    Position{KEY_W, 13, Qt::Key_W},
    Position{KEY_E, 14, Qt::Key_E},
    Position{KEY_R, 15, Qt::Key_R},
    Position{KEY_Y, 16, Qt::Key_Y},
    Position{KEY_T, 17, Qt::Key_T},
    Position{KEY_1, 18, Qt::Key_1, Qt::Key_Exclam},
    Position{KEY_2, 19, Qt::Key_2, Qt::Key_At},
    Position{KEY_3, 20, Qt::Key_3, Qt::Key_NumberSign},
    Position{KEY_4, 21, Qt::Key_4, Qt::Key_Dollar},
    Position{KEY_6, 22, Qt::Key_6, Qt::Key_AsciiCircum},
    Position{KEY_5, 23, Qt::Key_5, Qt::Key_Percent},
    Position{KEY_EQUAL, 24, Qt::Key_Equal, Qt::Key_Plus},
    Position{KEY_9, 25, Qt::Key_9, Qt::Key_ParenLeft},
    Position{KEY_7, 26, Qt::Key_7, Qt::Key_Ampersand},
    Position{KEY_MINUS, 27, Qt::Key_Minus, Qt::Key_Underscore},
    Position{KEY_8, 28, Qt::Key_8, Qt::Key_Asterisk},
    Position{KEY_0, 29, Qt::Key_0, Qt::Key_ParenRight},
    Position{KEY_RIGHTBRACE, 30, Qt::Key_BracketRight, Qt::Key_BraceRight},
    Position{KEY_O, 31, Qt::Key_O},
    Position{KEY_U, 32, Qt::Key_U},
    Position{KEY_LEFTBRACE, 33, Qt::Key_BracketLeft, Qt::Key_BraceLeft},
    Position{KEY_I, 34, Qt::Key_I},
    Position{KEY_P, 35, Qt::Key_P},
    Position{KEY_ENTER, 36, Qt::Key_Return},
    Position{KEY_L, 37, Qt::Key_L},
    Position{KEY_J, 38, Qt::Key_J},
    Position{KEY_APOSTROPHE, 39, Qt::Key_Apostrophe, Qt::Key_QuoteDbl},
    Position{KEY_K, 40, Qt::Key_K},
    Position{KEY_SEMICOLON, 41, Qt::Key_Semicolon, Qt::Key_Colon},
    Position{KEY_BACKSLASH, 42, Qt::Key_Backslash, Qt::Key_Bar},
    Position{KEY_COMMA, 43, Qt::Key_Comma, Qt::Key_Less},
    Position{KEY_SLASH, 44, Qt::Key_Slash, Qt::Key_Question},
    Position{KEY_N, 45, Qt::Key_N},
    Position{KEY_M, 46, Qt::Key_M},
    Position{KEY_DOT, 47, Qt::Key_Period, Qt::Key_Greater},
    Position{KEY_TAB, 48, Qt::Key_Tab, Qt::Key_Backtab},
    Position{KEY_SPACE, 49, Qt::Key_Space},
    Position{KEY_GRAVE, 50, Qt::Key_QuoteLeft, Qt::Key_AsciiTilde},
    Position{KEY_BACKSPACE, 51, Qt::Key_Backspace},
    Position{KEY_ESC, 53, Qt::Key_Escape},

    Position{KEY_RIGHTCTRL, 54},
    Position{KEY_LEFTCTRL, 55, Qt::Key_Control},
    Position{KEY_LEFTSHIFT, 56, Qt::Key_Shift},
    Position{KEY_CAPSLOCK, 57, Qt::Key_CapsLock},
    Position{KEY_LEFTALT, 58, Qt::Key_Alt},
    Position{KEY_LEFTMETA, 59, Qt::Key_Meta, Qt::Key_Super_L},
    Position{KEY_RIGHTSHIFT, 60},
    Position{KEY_RIGHTALT, 61, Qt::Key_AltGr},
    Position{KEY_RIGHTMETA, 62, Qt::Key_Super_R},

    Position{KEY_KPDOT, 65, Qt::Key_Period, Qt::Key_Delete, onKeypad},
    Position{KEY_KPASTERISK, 67, Qt::Key_Asterisk, Qt::Key_unknown, onKeypad},
    Position{KEY_KPPLUS, 69, Qt::Key_Plus, Qt::Key_unknown, onKeypad},
    Position{KEY_NUMLOCK, 71, Qt::Key_NumLock, Qt::Key_Clear, onKeypad},
    Position{KEY_KPSLASH, 75, Qt::Key_Slash, Qt::Key_unknown, onKeypad},
    Position{KEY_KPENTER, 76, Qt::Key_Enter, Qt::Key_unknown, onKeypad},
    Position{KEY_KPMINUS, 78, Qt::Key_Minus, Qt::Key_unknown, onKeypad},
    Position{KEY_KPEQUAL, 81, Qt::Key_Equal, Qt::Key_unknown, onKeypad},
    Position{KEY_KP0, 82, Qt::Key_0, Qt::Key_Insert, onKeypad},
    Position{KEY_KP1, 83, Qt::Key_1, Qt::Key_End, onKeypad},
    Position{KEY_KP2, 84, Qt::Key_2, Qt::Key_Down, onKeypad},
    Position{KEY_KP3, 85, Qt::Key_3, Qt::Key_PageDown, onKeypad},
    Position{KEY_KP4, 86, Qt::Key_4, Qt::Key_Left, onKeypad},
    Position{KEY_KP5, 87, Qt::Key_5, Qt::Key_Clear, onKeypad},
    Position{KEY_KP6, 88, Qt::Key_6, Qt::Key_Right, onKeypad},
    Position{KEY_KP7, 89, Qt::Key_7, Qt::Key_Home, onKeypad},
    Position{KEY_KP8, 91, Qt::Key_8, Qt::Key_Up, onKeypad},
    Position{KEY_KP9, 92, Qt::Key_9, Qt::Key_PageUp, onKeypad},
    Position{KEY_KPJPCOMMA, 95, Qt::Key_Comma, Qt::Key_unknown, onKeypad},

    Position{KEY_VOLUMEUP, 72, Qt::Key_VolumeUp},
    Position{KEY_VOLUMEDOWN, 73, Qt::Key_VolumeDown},
    Position{KEY_MUTE, 74, Qt::Key_VolumeMute},
    Position{KEY_YEN, 93, Qt::Key_yen},
    Position{KEY_RO, 94},
    Position{KEY_HANJA, 102, Qt::Key_Eisu_toggle, Qt::Key_Hangul_Hanja},
    Position{KEY_HANGEUL, 104, Qt::Key_Hiragana_Katakana, Qt::Key_Hangul},
    Position{KEY_COMPOSE, 110, Qt::Key_Menu},

    Position{KEY_F1, 122, Qt::Key_F1},
    Position{KEY_F2, 120, Qt::Key_F2},
    Position{KEY_F3, 99, Qt::Key_F3},
    Position{KEY_F4, 118, Qt::Key_F4},
    Position{KEY_F5, 96, Qt::Key_F5},
    Position{KEY_F6, 97, Qt::Key_F6},
    Position{KEY_F7, 98, Qt::Key_F7},
    Position{KEY_F8, 100, Qt::Key_F8},
    Position{KEY_F9, 101, Qt::Key_F9},
    Position{KEY_F10, 109, Qt::Key_F10},
    Position{KEY_F11, 103, Qt::Key_F11},
    Position{KEY_F12, 111, Qt::Key_F12},
    Position{KEY_F13, 105, Qt::Key_F13},
    Position{KEY_F14, 107, Qt::Key_F14},
    Position{KEY_F15, 113, Qt::Key_F15},
    Position{KEY_F16, 106, Qt::Key_F16},
    Position{KEY_F17, 64, Qt::Key_F17},
    Position{KEY_F18, 79, Qt::Key_F18},
    Position{KEY_F19, 80, Qt::Key_F19},
    Position{KEY_F20, 90, Qt::Key_F20},

    // Other keyboards have other keys in the places of F13 to F15 and of Help.
    Position{KEY_SYSRQ, 105, Qt::Key_Print, Qt::Key_SysReq},
    Position{KEY_SCROLLLOCK, 107, Qt::Key_ScrollLock},
    Position{KEY_PAUSE, 113, Qt::Key_Pause},
    Position{KEY_INSERT, 114, Qt::Key_Insert, Qt::Key_Help},

    Position{KEY_HOME, 115, Qt::Key_Home},
    Position{KEY_PAGEUP, 116, Qt::Key_PageUp},
    Position{KEY_DELETE, 117, Qt::Key_Delete},
    Position{KEY_END, 119, Qt::Key_End},
    Position{KEY_PAGEDOWN, 121, Qt::Key_PageDown},
    Position{KEY_LEFT, 123, Qt::Key_Left},
    Position{KEY_RIGHT, 124, Qt::Key_Right},
    Position{KEY_DOWN, 125, Qt::Key_Down},
    Position{KEY_UP, 126, Qt::Key_Up},
};

/// The key code of the first position of which that is true, -1 if there is none.
template <typename Predicate> std::int64_t first(Predicate matches)
{
    const auto *const found = std::find_if(positions.begin(), positions.end(), matches);
    return found == positions.end() ? -1 : found->keyCode;
}

std::int64_t ofScanCode(quint32 scanCode)
{
    // X11 and Wayland both count from eight.
    constexpr quint32 offset = 8;
    return first([=](const Position &position) { return position.evdevCode + offset == scanCode; });
}

std::int64_t ofMeaning(int key, bool isOnKeypad)
{
    const auto means = [=](const Position &position) {
        return key != Qt::Key_unknown && (position.meaning == key || position.otherMeaning == key);
    };
    const std::int64_t there =
        first([=](const Position &position) { return position.isOnKeypad == isOnKeypad && means(position); });
    return there >= 0 ? there : first(means);
}

}

std::int64_t KeyPositions::keyCode(const QKeyEvent &event)
{
    if (event.nativeScanCode() != 0)
        return ofScanCode(event.nativeScanCode());
    return ofMeaning(event.key(), event.modifiers().testFlag(Qt::KeypadModifier));
}

std::uint64_t KeyPositions::flags(Qt::KeyboardModifiers modifiers)
{
    std::uint64_t flags = 0;
    if (modifiers.testFlag(Qt::ShiftModifier))
        flags |= KeyFlags::shiftFlag;
    if (modifiers.testFlag(Qt::ControlModifier))
        flags |= KeyFlags::commandFlag;
    if (modifiers.testFlag(Qt::AltModifier))
        flags |= KeyFlags::optionFlag;
    if (modifiers.testFlag(Qt::MetaModifier))
        flags |= KeyFlags::controlFlag;
    return flags;
}
