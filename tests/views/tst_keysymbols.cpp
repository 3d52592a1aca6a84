#include "KeySymbols.h"
#include "TestProgram.h"

/// What key symbols stand for on this desktop's keyboards.
class KeySymbolsTest : public QObject {
    Q_OBJECT
private slots:
    void symbolsAreSpelledAsTheKeysHere_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("spelled");
        QTest::addColumn<QString>("keys");
        const auto row = [](const char *text, const char *spelled, const char *keys) {
            QTest::newRow(text) << QString::fromUtf8(text) << spelled << keys;
        };
        row("⌘W", "Ctrl+W", "Ctrl+W");
        row("⌥⌘W", "Ctrl+Alt+W", "Ctrl+Alt+W");
        row("⇧⌘1", "Ctrl+Shift+1", "Ctrl+Shift+1");
        row("⌘↩", "Ctrl+Return", "Ctrl+Return");
        row("↑", "Up", "Up");
        row("⌥", "Alt", "Alt");
        row("⌘← ⌘→", "Ctrl+Left Ctrl+Right", "Ctrl+Left, Ctrl+Right");
        row("⌘1 … ⌘9", "Ctrl+1 to Ctrl+9", "Ctrl+1, Ctrl+9");
        row("Click the cross, or press ⌘W to close it.", "Click the cross, or press Ctrl+W to close it.", "Ctrl+W");
        row("⌥-click to delete it.", "Alt-click to delete it.", "Alt");
        row("Esc", "Esc", "");
        row("", "", "");
    }
    void symbolsAreSpelledAsTheKeysHere()
    {
        QFETCH(const QString, text);
        QTEST(KeySymbols::spelled(text), "spelled");
        QTEST(KeySymbols::keysIn(text), "keys");
    }
};

CORVANE_TEST(KeySymbolsTest, runInGui)

#include "tst_keysymbols.moc"
