#include "KeyMonitor.h"
#include "KeyPositions.h"
#include "TestProgram.h"

#include <linux/input-event-codes.h>

class KeyPositionsTest : public QObject {
    Q_OBJECT
private slots:
    void aScanCodeIsAPosition_data();
    void aScanCodeIsAPosition();
    void everyOtherPlaceIsNone();
    void anEventWithoutAPlaceIsReadAsOnAnAnsiKeyboard_data();
    void anEventWithoutAPlaceIsReadAsOnAnAnsiKeyboard();
    void aKeyThatTypesNothingGoesByItsMeaning_data();
    void aKeyThatTypesNothingGoesByItsMeaning();
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
    row("w", KEY_W, KeyCodes::w);
    row("q", KEY_Q, KeyCodes::q);
    row("m", KEY_M, KeyCodes::m);
    row("f", KEY_F, KeyCodes::f);
    row("h", KEY_H, KeyCodes::h);
}

void KeyPositionsTest::aScanCodeIsAPosition()
{
    QFETCH(const quint32, evdevCode);
    // The meaning is another layout's, and does not matter.
    QTEST(keyCodeAt(evdevCode + 8, Qt::Key_Eacute), "keyCode");
}

void KeyPositionsTest::everyOtherPlaceIsNone()
{
    for (const quint32 evdevCode : {KEY_A, KEY_Z, KEY_CALC, KEY_LEFTCTRL, KEY_KP4})
        QCOMPARE(keyCodeAt(evdevCode + 8, Qt::Key_W), KeyCodes::none);
    QCOMPARE(keyCodeAt(1, Qt::Key_W), KeyCodes::none);
}

void KeyPositionsTest::anEventWithoutAPlaceIsReadAsOnAnAnsiKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<std::int64_t>("keyCode");
    const auto row = [](const char *name, int key, Qt::KeyboardModifiers modifiers, std::int64_t keyCode) {
        QTest::newRow(name) << key << modifiers << keyCode;
    };
    row("w", Qt::Key_W, {}, KeyCodes::w);
    row("w with modifiers", Qt::Key_W, Qt::ControlModifier | Qt::AltModifier, KeyCodes::w);
    row("q", Qt::Key_Q, {}, KeyCodes::q);
    row("m", Qt::Key_M, {}, KeyCodes::m);
    row("f", Qt::Key_F, {}, KeyCodes::f);
    row("h", Qt::Key_H, {}, KeyCodes::h);
    row("escape", Qt::Key_Escape, {}, KeyCodes::escape);
    row("another letter", Qt::Key_A, {}, -1);
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

void KeyPositionsTest::aKeyThatTypesNothingGoesByItsMeaning_data()
{
    QTest::addColumn<quint32>("evdevCode");
    QTest::addColumn<int>("key");
    QTest::addColumn<std::int64_t>("keyCode");
    const auto row = [](const char *name, quint32 evdevCode, int key, std::int64_t keyCode) {
        QTest::newRow(name) << evdevCode << key << keyCode;
    };
    row("escape in its place", KEY_ESC, Qt::Key_Escape, KeyCodes::escape);
    row("escape in the place of caps lock", KEY_CAPSLOCK, Qt::Key_Escape, KeyCodes::escape);
    row("escape in the place of a letter", KEY_W, Qt::Key_Escape, KeyCodes::escape);
    row("caps lock in the place of escape", KEY_ESC, Qt::Key_CapsLock, KeyCodes::none);
    row("a letter in the place of escape", KEY_ESC, Qt::Key_QuoteLeft, KeyCodes::none);
    row("return in the place of a letter", KEY_W, Qt::Key_Return, KeyCodes::none);
    row("a dead key in the place of a letter", KEY_W, Qt::Key_Dead_Acute, KeyCodes::w);
    row("a key of another alphabet", KEY_W, Qt::Key_unknown, KeyCodes::w);
}

void KeyPositionsTest::aKeyThatTypesNothingGoesByItsMeaning()
{
    QFETCH(const quint32, evdevCode);
    QFETCH(const int, key);
    QTEST(keyCodeAt(evdevCode + 8, key), "keyCode");
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
