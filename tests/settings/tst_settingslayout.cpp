#include "EBKit.h"
#include "SettingsModel.h"
#include "SettingsWindow.h"
#include "TestProgram.h"

#include <QFont>
#include <QSignalSpy>

/// What the settings window shows around a page. Where it all stands is what the golden pictures of it hold.
class TestSettingsLayout : public QObject {
    Q_OBJECT

private slots:
    void theProductsMarkStandsBesideItsNameInItsColour();
    void aNoticeStandsInTheFootsPlaceAndMovesNothing();
    void whatCanBeAnsweredStandsBelowTheNotice();
    void theSelectedEntryIsSetApart_data();
    void theSelectedEntryIsSetApart();

    void aPageHasItsNumberAndItsTitleAboveIt_data();
    void aPageHasItsNumberAndItsTitleAboveIt();
    void theHeadingIsSetInTheDisplayFace();
    void aSearchThatHidesTheShownPageLeavesItAsItIs();
    void aSearchWithoutResultLeavesThePageAsItIs();
    void aPageChosenFromTheSearchFieldIsReadOut();

    void aPageIsMadeAnewEachTimeItIsShown();
    void theWindowsOwnButtonsHaveTheRingOfTheProduct();
};

void TestSettingsLayout::theProductsMarkStandsBesideItsNameInItsColour()
{
    SettingsWindow settings;
    QQuickItem *mark = settings.item("Corvane", QAccessible::Graphic);
    QCOMPARE(SettingsWindow::color(mark), SettingsWindow::color(EBKit::indigo()));
    QCOMPARE(mark->property("app").toString(), "corvane");
    const QQuickItem *text = settings.textItem("CORVANE\nVERSION 1.4", settings.label("Corvane\nVersion 1.4"));
    QCOMPARE(SettingsWindow::color(text), SettingsWindow::color(EBKit::inkMuted()));
}

void TestSettingsLayout::aNoticeStandsInTheFootsPlaceAndMovesNothing()
{
    const QString notice = "Changes can't be saved: the settings service stores them elsewhere.";
    SettingsWindow settings;
    const QSize size = settings.window().size();
    settings.controller.model()->setNotice(notice);
    settings.waitForFrame();
    const QRectF frame = SettingsWindow::frame(settings.item(notice, QAccessible::Notification));
    QCOMPARE(settings.window().size(), size);
    QVERIFY(frame.top() >= SettingsWindow::frame(settings.entry("Layouts")).bottom());
    QVERIFY(frame.bottom() <= size.height() - 8);
    QVERIFY(NamedItems::all(settings.window().contentItem(), "Corvane\nVersion 1.4").isEmpty());
    settings.controller.model()->setNotice(QString());
    settings.waitForFrame();
    QVERIFY(settings.label("Corvane\nVersion 1.4"));
}

void TestSettingsLayout::whatCanBeAnsweredStandsBelowTheNotice()
{
    SettingsWindow settings;
    const QSize size = settings.window().size();
    const QString notice = "Your settings are gone.";
    QSignalSpy spy(settings.controller.model(), &EBSettingsWindowController::Model::answered);
    settings.controller.model()->setNotice(notice, {"Restore", "Start Fresh"});
    settings.waitForFrame();
    QCOMPARE(settings.window().size(), size);
    const FoundItem fresh = settings.item("Start Fresh", QAccessible::Button);
    const QRectF frame = SettingsWindow::frame(fresh);
    QVERIFY(frame.top() >= SettingsWindow::frame(settings.item(notice, QAccessible::Notification)).bottom());
    QVERIFY(frame.bottom() <= size.height() - 8);
    QVERIFY(frame.right() <= 8 + 178 - 10);
    settings.click(fresh);
    settings.click(settings.item("Restore", QAccessible::Button));
    QCOMPARE(spy, (QList<QVariantList>{{1}, {0}}));
    settings.controller.model()->setNotice(notice);
    settings.waitForFrame();
    QVERIFY(!settings.item("Restore", QAccessible::Button));
}

void TestSettingsLayout::theSelectedEntryIsSetApart_data()
{
    QTest::addColumn<QString>("selected");
    for (const char *id : {"general", "buttons", "shortcuts", "layouts"})
        QTest::newRow(id) << id;
}

void TestSettingsLayout::theSelectedEntryIsSetApart()
{
    QFETCH(QString, selected);
    SettingsWindow settings(selected);
    for (const EBSettingsPage &page : SettingsPages::make()) {
        QQuickItem *entry = settings.entry(page.title);
        const bool isSelected = page.id == selected;
        const QQuickItem *text = settings.textItem(page.title, entry);
        const auto font = text->property("font").value<QFont>();
        QCOMPARE(font.pixelSize(), 13);
        QCOMPARE(font.weight(), isSelected ? QFont::DemiBold : QFont::Medium);
        QCOMPARE(SettingsWindow::color(text), SettingsWindow::color(isSelected ? EBKit::ink() : EBKit::inkMuted()));
        const QString glyph = SettingsWindow::color(settings.typed("Glyph", entry).constFirst());
        QCOMPARE(glyph == SettingsWindow::color(EBKit::indigo()), isSelected);
        const QString back = SettingsWindow::color(settings.typed("ContinuousRectangle", entry).constFirst());
        QCOMPARE(back, SettingsWindow::color(isSelected ? EBKit::chip() : EBKitColor(Qt::transparent)));
    }
}

void TestSettingsLayout::aPageHasItsNumberAndItsTitleAboveIt_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("kicker");
    QTest::addColumn<QString>("title");
    QTest::newRow("first") << "general" << QStringLiteral("Settings · 01") << "General";
    QTest::newRow("second") << "buttons" << QStringLiteral("Settings · 02") << "Buttons";
    QTest::newRow("third") << "shortcuts" << QStringLiteral("Settings · 03") << "Shortcuts";
    QTest::newRow("fourth") << "layouts" << QStringLiteral("Settings · 04") << "Layouts";
    QTest::newRow("unknown") << "nowhere" << QStringLiteral("Settings · 01") << "General";
}

void TestSettingsLayout::aPageHasItsNumberAndItsTitleAboveIt()
{
    QFETCH(QString, id);
    QFETCH(QString, kicker);
    QFETCH(QString, title);
    SettingsWindow settings(id);
    QVERIFY(SettingsWindow::frame(settings.heading(title)).top()
            >= SettingsWindow::frame(settings.label(kicker)).bottom());
}

void TestSettingsLayout::theHeadingIsSetInTheDisplayFace()
{
    SettingsWindow settings;
    const QQuickItem *heading = settings.heading("General");
    const auto font = heading->property("font").value<QFont>();
    QCOMPARE(font.family(), "Instrument Sans");
    QCOMPARE(font.pixelSize(), 34);
    QCOMPARE(font.letterSpacingType(), QFont::AbsoluteSpacing);
    // A font keeps its spacing in steps of a 64th.
    QVERIFY2(qAbs(font.letterSpacing() + 1.19) < 1.0 / 64, qPrintable(QString::number(font.letterSpacing())));
    QCOMPARE(SettingsWindow::color(heading), SettingsWindow::color(EBKit::ink()));
}

void TestSettingsLayout::aSearchThatHidesTheShownPageLeavesItAsItIs()
{
    SettingsWindow settings;
    const QRectF heading = SettingsWindow::frame(settings.heading("General"));
    const QSize window = settings.window().size();
    settings.search("window");
    QVERIFY(!settings.entry("General"));
    QVERIFY(settings.entry("Layouts"));
    QCOMPARE(settings.controller.model()->selection(), "general");
    QVERIFY(settings.label("Settings · 01"));
    QVERIFY(settings.heading("General"));
    QCOMPARE(SettingsWindow::frame(settings.heading("General")), heading);
    QVERIFY(settings.item("Show Guide", QAccessible::Button));
    QCOMPARE(settings.window().size(), window);
}

void TestSettingsLayout::aSearchWithoutResultLeavesThePageAsItIs()
{
    SettingsWindow settings("layouts");
    const QSize window = settings.window().size();
    settings.search("zebra");
    for (const EBSettingsPage &page : SettingsPages::make())
        QVERIFY2(!settings.entry(page.title), qPrintable(page.title));
    QVERIFY(settings.label("Settings · 04"));
    QVERIFY(settings.heading("Layouts"));
    QCOMPARE(settings.window().size(), window);
}

void TestSettingsLayout::aPageChosenFromTheSearchFieldIsReadOut()
{
    SettingsWindow settings;
    settings.search("min");
    settings.pressKey(Qt::Key_Down);
    QVERIFY(settings.item("Buttons", QAccessible::Notification));
    settings.pressKey(Qt::Key_Down);
    QVERIFY(settings.item("Shortcuts", QAccessible::Notification));
    // In the list the focus goes along, and what has it is read by itself.
    settings.entry("Shortcuts")->forceActiveFocus();
    settings.pressKey(Qt::Key_Up);
    QVERIFY(settings.heading("Buttons"));
    QVERIFY(settings.item("Shortcuts", QAccessible::Notification));
}

void TestSettingsLayout::aPageIsMadeAnewEachTimeItIsShown()
{
    const QString list = R"([{"created":1,"id":"11111111-1111-4111-8111-111111111111","name":"Work","windows":[]}])";
    SettingsWindow settings("layouts");
    const auto show = [&settings](const QString &page) {
        settings.controller.model()->setSelection(page);
        settings.waitForFrame();
    };
    QVERIFY(settings.label("None yet"));
    settings.store.setValue("layouts.saved", list);
    settings.waitForFrame();
    QVERIFY(settings.label("None yet"));
    show("general");
    show("layouts");
    QVERIFY(!settings.label("None yet"));
    QVERIFY(settings.item("Delete Work", QAccessible::Button));
    // What was deleted can be brought back until the page is left.
    settings.click(settings.item("Delete Work", QAccessible::Button));
    QVERIFY(settings.item("Undo", QAccessible::Button));
    show("general");
    show("layouts");
    QVERIFY(settings.label("None yet"));
    QVERIFY(!settings.item("Undo", QAccessible::Button));
}

void TestSettingsLayout::theWindowsOwnButtonsHaveTheRingOfTheProduct()
{
    SettingsWindow settings;
    for (const char *name : {"Close", "Minimize"}) {
        QQuickItem *button = settings.item(name, QAccessible::Button);
        button->forceActiveFocus(Qt::TabFocusReason);
        QCOMPARE(settings.pixel(button, {7, -3}).name(), EBKit::indigo().current().name());
    }
}

CORVANE_TEST(TestSettingsLayout, runInGui)
#include "tst_settingslayout.moc"
