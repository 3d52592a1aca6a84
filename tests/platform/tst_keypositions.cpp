#include "KeyMonitor.h"
#include "KeyPositions.h"
#include "TestProgram.h"

#include <linux/input-event-codes.h>

class KeyPositionsTest : public QObject {
    Q_OBJECT
private slots:
    void aScanCodeIsAPosition_data();
    void aScanCodeIsAPosition();
    void aPlaceWithoutACodeHasNone();
    void anEventWithoutAPlaceIsReadAsOnAnAnsiKeyboard_data();
    void anEventWithoutAPlaceIsReadAsOnAnAnsiKeyboard();
    void everyLetterAndDigitHasAPosition();
    void modifiersAreFlags();
};

namespace {

std::int64_t keyCodeAt(quint32 scanCode, int key = Qt::Key_unknown)
{
    return KeyPositions::keyCode(QKeyEvent(QEvent::KeyPress, key, {}, scanCode, 0, 0));
}

std::int64_t keyCodeOf(int key, Qt::KeyboardModifiers modifiers = {})
{
    return KeyPositions::keyCode(QKeyEvent(QEvent::KeyPress, key, modifiers));
}

}

void KeyPositionsTest::aScanCodeIsAPosition_data()
{
    QTest::addColumn<quint32>("evdevCode");
    QTest::addColumn<std::int64_t>("keyCode");
    const auto row = [](const char *name, quint32 evdevCode, std::int64_t keyCode) {
        QTest::newRow(name) << evdevCode << keyCode;
    };
    row("a", KEY_A, 0);
    row("w", KEY_W, 13);
    row("q", KEY_Q, 12);
    row("m", KEY_M, 46);
    row("f", KEY_F, 3);
    row("h", KEY_H, 4);
    row("1", KEY_1, 18);
    row("0", KEY_0, 29);
    row("minus", KEY_MINUS, 27);
    row("equal", KEY_EQUAL, 24);
    row("grave", KEY_GRAVE, 50);
    row("left bracket", KEY_LEFTBRACE, 33);
    row("backslash", KEY_BACKSLASH, 42);
    row("semicolon", KEY_SEMICOLON, 41);
    row("apostrophe", KEY_APOSTROPHE, 39);
    row("comma", KEY_COMMA, 43);
    row("period", KEY_DOT, 47);
    row("slash", KEY_SLASH, 44);
    row("beside the left shift", KEY_102ND, 10);
    row("escape", KEY_ESC, 53);
    row("return", KEY_ENTER, 36);
    row("tab", KEY_TAB, 48);
    row("space", KEY_SPACE, 49);
    row("delete", KEY_BACKSPACE, 51);
    row("forward delete", KEY_DELETE, 117);
    row("left", KEY_LEFT, 123);
    row("right", KEY_RIGHT, 124);
    row("down", KEY_DOWN, 125);
    row("up", KEY_UP, 126);
    row("home", KEY_HOME, 115);
    row("f1", KEY_F1, 122);
    row("f12", KEY_F12, 111);
    row("keypad 0", KEY_KP0, 82);
    row("keypad 9", KEY_KP9, 92);
    row("keypad enter", KEY_KPENTER, 76);
    row("command", KEY_LEFTCTRL, 55);
    row("option", KEY_LEFTALT, 58);
    row("control", KEY_LEFTMETA, 59);
    row("shift", KEY_LEFTSHIFT, 56);
}

void KeyPositionsTest::aScanCodeIsAPosition()
{
    QFETCH(const quint32, evdevCode);
    // The meaning is another layout's, and does not matter.
    QTEST(keyCodeAt(evdevCode + 8, Qt::Key_Eacute), "keyCode");
}

void KeyPositionsTest::aPlaceWithoutACodeHasNone()
{
    QCOMPARE(keyCodeAt(KEY_CALC + 8, Qt::Key_W), std::int64_t(-1));
    QCOMPARE(keyCodeAt(1, Qt::Key_W), std::int64_t(-1));
}

void KeyPositionsTest::anEventWithoutAPlaceIsReadAsOnAnAnsiKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<std::int64_t>("keyCode");
    const auto row = [](const char *name, int key, Qt::KeyboardModifiers modifiers, std::int64_t keyCode) {
        QTest::newRow(name) << key << modifiers << keyCode;
    };
    row("w", Qt::Key_W, {}, 13);
    row("exclamation mark", Qt::Key_Exclam, Qt::ShiftModifier, 18);
    row("less than", Qt::Key_Less, Qt::ShiftModifier, 43);
    row("shift and tab", Qt::Key_Backtab, Qt::ShiftModifier, 48);
    row("7", Qt::Key_7, {}, 26);
    row("7 on the keypad", Qt::Key_7, Qt::KeypadModifier, 89);
    row("home", Qt::Key_Home, {}, 115);
    row("home on the keypad", Qt::Key_Home, Qt::KeypadModifier, 89);
    row("enter", Qt::Key_Enter, {}, 76);
    row("a letter from the keypad", Qt::Key_W, Qt::KeypadModifier, 13);
    row("another alphabet", Qt::Key_Eacute, {}, -1);
    row("no key", 0, {}, -1);
    row("an unknown key", Qt::Key_unknown, {}, -1);
}

void KeyPositionsTest::anEventWithoutAPlaceIsReadAsOnAnAnsiKeyboard()
{
    QFETCH(const int, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QTEST(keyCodeOf(key, modifiers), "keyCode");
}

void KeyPositionsTest::everyLetterAndDigitHasAPosition()
{
    QSet<std::int64_t> codes;
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key)
        codes.insert(keyCodeOf(key));
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        codes.insert(keyCodeOf(key));
    QCOMPARE(codes.size(), 36);
    QVERIFY(!codes.contains(-1));
}

void KeyPositionsTest::modifiersAreFlags()
{
    QCOMPARE(KeyPositions::flags({}), std::uint64_t(0));
    QCOMPARE(KeyPositions::flags(Qt::ShiftModifier), KeyFlags::shiftFlag);
    QCOMPARE(KeyPositions::flags(Qt::ControlModifier), KeyFlags::commandFlag);
    QCOMPARE(KeyPositions::flags(Qt::AltModifier | Qt::ControlModifier), KeyFlags::optionFlag | KeyFlags::commandFlag);
    QCOMPARE(KeyPositions::flags(Qt::MetaModifier), KeyFlags::controlFlag);
    QCOMPARE(KeyPositions::flags(Qt::KeypadModifier | Qt::GroupSwitchModifier), std::uint64_t(0));
}

CORVANE_TEST(KeyPositionsTest, runInCore)

#include "tst_keypositions.moc"
