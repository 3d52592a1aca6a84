#include "Hotkey.h"
#include "Shared.h"
#include "TestProgram.h"

#include <limits>

namespace {

constexpr std::uint64_t capsLock = 0x10000;
constexpr std::uint64_t shift = 0x20000;
constexpr std::uint64_t control = 0x40000;
constexpr std::uint64_t option = 0x80000;
constexpr std::uint64_t command = 0x100000;
constexpr std::uint64_t numericPad = 0x200000;
constexpr std::uint64_t function = 0x800000;

}

class TestHotkey : public QObject {
    Q_OBJECT

private slots:
    void everyRawValueNamesItsCase_data();
    void everyRawValueNamesItsCase();

    void theCombinationsAreExactlyThese_data();
    void theCombinationsAreExactlyThese();
    void bitsThatAreNoModifierAreIgnored_data();
    void bitsThatAreNoModifierAreIgnored();
    void onlyTheExactModifiersMatch_data();
    void onlyTheExactModifiersMatch();
    void noOtherKeyCodeMatches();

    void theKeyNameCarriesTheCaseName_data();
    void theKeyNameCarriesTheCaseName();
};

void TestHotkey::everyRawValueNamesItsCase_data()
{
    QTest::addColumn<int>("raw");
    QTest::addColumn<Hotkey>("hotkey");
    QTest::addColumn<QString>("caseName");
    QTest::addColumn<QString>("shownAs");

    QTest::newRow("0") << 0 << Hotkey::close << "close" << QStringLiteral("⌘W");
    QTest::newRow("1") << 1 << Hotkey::closeAll << "closeAll" << QStringLiteral("⌥⌘W");
    QTest::newRow("2") << 2 << Hotkey::minimize << "minimize" << QStringLiteral("⌘M");
    QTest::newRow("3") << 3 << Hotkey::maximize << "maximize" << QStringLiteral("⌘F");
    QTest::newRow("4") << 4 << Hotkey::hide << "hide" << QStringLiteral("⌘H");
    QTest::newRow("5") << 5 << Hotkey::hideOthers << "hideOthers" << QStringLiteral("⌥⌘H");
    QTest::newRow("6") << 6 << Hotkey::kill << "kill" << QStringLiteral("⌘Q");
}

void TestHotkey::everyRawValueNamesItsCase()
{
    QFETCH(int, raw);
    QFETCH(Hotkey, hotkey);
    QCOMPARE(Hotkeys::fromRawValue(raw), std::optional(hotkey));
    QCOMPARE(static_cast<int>(hotkey), raw);
    QTEST(Hotkeys::caseName(hotkey), "caseName");
    QTEST(Hotkeys::shownAs(hotkey), "shownAs");
    QCOMPARE(Hotkeys::fromCaseName(Hotkeys::caseName(hotkey)), std::optional(hotkey));
}

void TestHotkey::theCombinationsAreExactlyThese_data()
{
    QTest::addColumn<qint64>("keyCode");
    QTest::addColumn<Hotkey>("withCommand");
    QTest::addColumn<bool>("optionMatches");
    QTest::addColumn<Hotkey>("withOptionCommand");

    QTest::newRow("W") << qint64(13) << Hotkey::close << true << Hotkey::closeAll;
    QTest::newRow("H") << qint64(4) << Hotkey::hide << true << Hotkey::hideOthers;
    QTest::newRow("M") << qint64(46) << Hotkey::minimize << false << Hotkey::minimize;
    QTest::newRow("F") << qint64(3) << Hotkey::maximize << false << Hotkey::maximize;
    QTest::newRow("Q") << qint64(12) << Hotkey::kill << false << Hotkey::kill;
}

void TestHotkey::theCombinationsAreExactlyThese()
{
    QFETCH(qint64, keyCode);
    QFETCH(Hotkey, withCommand);
    QFETCH(bool, optionMatches);
    QFETCH(Hotkey, withOptionCommand);
    QCOMPARE(Hotkeys::match(keyCode, command), std::optional(withCommand));
    QCOMPARE(Hotkeys::match(keyCode, option | command),
             optionMatches ? std::optional(withOptionCommand) : std::nullopt);
}

void TestHotkey::bitsThatAreNoModifierAreIgnored_data()
{
    QTest::addColumn<quint64>("bits");
    QTest::newRow("Caps Lock") << quint64(capsLock);
    QTest::newRow("Fn") << quint64(function);
    QTest::newRow("numeric pad") << quint64(numericPad);
    QTest::newRow("device bits") << quint64(0xffff);
    QTest::newRow("all of them") << ~quint64(shift | control | option | command);
}

void TestHotkey::bitsThatAreNoModifierAreIgnored()
{
    QFETCH(quint64, bits);
    QCOMPARE(Hotkeys::match(13, command | bits), std::optional(Hotkey::close));
    QCOMPARE(Hotkeys::match(13, option | command | bits), std::optional(Hotkey::closeAll));
    QCOMPARE(Hotkeys::match(13, bits), std::optional<Hotkey>());
}

void TestHotkey::onlyTheExactModifiersMatch_data()
{
    QTest::addColumn<quint64>("modifiers");
    QTest::newRow("none") << quint64(0);
    QTest::newRow("Shift") << quint64(shift);
    QTest::newRow("Control") << quint64(control);
    QTest::newRow("Option") << quint64(option);
    QTest::newRow("Shift + Command") << quint64(shift | command);
    QTest::newRow("Control + Command") << quint64(control | command);
    QTest::newRow("Shift + Option + Command") << quint64(shift | option | command);
    QTest::newRow("Control + Option + Command") << quint64(control | option | command);
    QTest::newRow("all four") << quint64(shift | control | option | command);
}

void TestHotkey::onlyTheExactModifiersMatch()
{
    QFETCH(quint64, modifiers);
    for (const std::int64_t keyCode : {13, 4, 46, 3, 12})
        QVERIFY(!Hotkeys::match(keyCode, modifiers));
}

void TestHotkey::noOtherKeyCodeMatches()
{
    for (std::int64_t keyCode = -1; keyCode < 256; ++keyCode) {
        const bool known = keyCode == 13 || keyCode == 4 || keyCode == 46 || keyCode == 3 || keyCode == 12;
        QCOMPARE(Hotkeys::match(keyCode, command).has_value(), known);
    }
    // A key code is 64 bits wide, and none of them is dropped.
    QVERIFY(!Hotkeys::match((std::int64_t(1) << 32) + 13, command));
    QVERIFY(!Hotkeys::match(std::numeric_limits<std::int64_t>::min() + 13, command));
}

void TestHotkey::theKeyNameCarriesTheCaseName_data()
{
    QTest::addColumn<Hotkey>("hotkey");
    QTest::addColumn<QString>("key");
    QTest::newRow("close") << Hotkey::close << "hotkey.close.disabled";
    QTest::newRow("closeAll") << Hotkey::closeAll << "hotkey.closeAll.disabled";
    QTest::newRow("minimize") << Hotkey::minimize << "hotkey.minimize.disabled";
    QTest::newRow("maximize") << Hotkey::maximize << "hotkey.maximize.disabled";
    QTest::newRow("hide") << Hotkey::hide << "hotkey.hide.disabled";
    QTest::newRow("hideOthers") << Hotkey::hideOthers << "hotkey.hideOthers.disabled";
    QTest::newRow("kill") << Hotkey::kill << "hotkey.kill.disabled";
}

void TestHotkey::theKeyNameCarriesTheCaseName()
{
    QFETCH(Hotkey, hotkey);
    QTEST(Shared::Key::hotkeyDisabled(hotkey), "key");
}

CORVANE_TEST(TestHotkey, runBare)
#include "tst_hotkey.moc"
