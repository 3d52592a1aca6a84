#include "PaneWindow.h"
#include "TestProgram.h"

#include <memory>

namespace {

struct Row {
    const char *label;
    const char *spokenKeys;
    const char *caseName;
};

constexpr std::array rows = {
    Row{"Close window", "Ctrl+W", "close"},
    Row{"Close all windows of the app", "Ctrl+Alt+W", "closeAll"},
    Row{"Minimize window", "Ctrl+M", "minimize"},
    Row{"Full screen / maximize window", "Ctrl+F", "maximize"},
    Row{"Hide app", "Ctrl+H", "hide"},
    Row{"Hide other apps", "Ctrl+Alt+H", "hideOthers"},
    Row{"Force-quit app", "Ctrl+Q", "kill"},
};

QString keyOf(const Row &row)
{
    return QStringLiteral("hotkey.%1.disabled").arg(QLatin1String(row.caseName));
}

}

class TestShortcutsPane : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_pane.reset(); }

    void withAnEmptyStoreEveryShortcutIsOn();
    void theRowsStandInTheirOrderWithTheirKeys();
    void switchingOneStoresItAndPostsNothing();
    void switchingItOnAgainStoresFalse();
    void aChangeByAnotherProcessShowsAtOnce();
    void aValueOfAnotherTypeReadsAsOnAndStays();
    void theNoteStandsBelow();

private:
    std::unique_ptr<PaneWindow> m_pane;
};

void TestShortcutsPane::init()
{
    m_pane = std::make_unique<PaneWindow>("qrc:/Corvane/Settings/Shortcuts/ShortcutsPane.qml");
}

void TestShortcutsPane::withAnEmptyStoreEveryShortcutIsOn()
{
    for (const Row &row : rows)
        QVERIFY2(m_pane->isChecked(row.label), row.label);
    QVERIFY(m_pane->store.values.isEmpty());
}

void TestShortcutsPane::theRowsStandInTheirOrderWithTheirKeys()
{
    qreal above = -1;
    for (const Row &row : rows) {
        const QQuickItem *control = m_pane->item(row.label, QAccessible::CheckBox);
        const qreal y = control->mapToScene(QPointF()).y();
        QVERIFY2(y > above, row.label);
        above = y;
        const QQuickItem *cap = m_pane->named(row.spokenKeys).constFirst();
        const qreal gap = control->mapToScene(QPointF()).x() - cap->mapToScene(QPointF(cap->width(), 0)).x();
        QCOMPARE(gap, 12.0);
        QCOMPARE(cap->height(), 22.0);
        QVERIFY(cap->width() >= 34);
    }
}

void TestShortcutsPane::switchingOneStoresItAndPostsNothing()
{
    for (const Row &row : rows) {
        m_pane->click(m_pane->item(row.label, QAccessible::CheckBox));
        QCOMPARE(m_pane->store.value(keyOf(row)), QVariant(true));
        QVERIFY2(!m_pane->isChecked(row.label), row.label);
    }
    QCOMPARE(m_pane->store.values.size(), int(rows.size()));
    QVERIFY(m_pane->posts().isEmpty());
}

void TestShortcutsPane::switchingItOnAgainStoresFalse()
{
    m_pane->store.setValue("hotkey.closeAll.disabled", true);
    QVERIFY(!m_pane->isChecked("Close all windows of the app"));
    m_pane->click(m_pane->item("Close all windows of the app", QAccessible::CheckBox));
    QCOMPARE(m_pane->store.value("hotkey.closeAll.disabled"), QVariant(false));
    QVERIFY(m_pane->isChecked("Close all windows of the app"));
}

void TestShortcutsPane::aChangeByAnotherProcessShowsAtOnce()
{
    m_pane->store.setValue("hotkey.kill.disabled", true);
    QVERIFY(!m_pane->isChecked("Force-quit app"));
    QVERIFY(m_pane->isChecked("Hide other apps"));
    m_pane->store.values.insert("hotkey.hide.disabled", true);
    emit m_pane->store.changed(QString());
    QVERIFY(!m_pane->isChecked("Hide app"));
}

void TestShortcutsPane::aValueOfAnotherTypeReadsAsOnAndStays()
{
    m_pane->store.setValue("hotkey.hide.disabled", "yes");
    m_pane->store.setValue("hotkey.kill.disabled", 1.0);
    QVERIFY(m_pane->isChecked("Hide app"));
    QVERIFY(m_pane->isChecked("Force-quit app"));
    QCOMPARE(m_pane->store.value("hotkey.hide.disabled"), QVariant("yes"));
}

void TestShortcutsPane::theNoteStandsBelow()
{
    QQuickItem *note = m_pane->item("They work only while Mission Control is open, on the window under the pointer.",
                                    QAccessible::StaticText);
    const QQuickItem *last = m_pane->item("Force-quit app", QAccessible::CheckBox);
    QVERIFY(note->mapToScene(QPointF()).y() > last->mapToScene(QPointF()).y());
}

CORVANE_TEST(TestShortcutsPane, runInGui)
#include "tst_shortcutspane.moc"
