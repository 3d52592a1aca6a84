#include "EBKit.h"
#include "SettingsWindow.h"
#include "TestProgram.h"

#include <QFont>
#include <QRegularExpression>

namespace {

constexpr qreal sidebarInset = 8;
constexpr qreal sidebarWidth = 178;
constexpr qreal pageLeft = 8 + 178 + 8;

}

/// Where things stand in the settings window, in points, and how they are set.
class TestSettingsLayout : public QObject {
    Q_OBJECT

private slots:
    // The offscreen platform knows no size hints and warns each time.
    void init() { QTest::failOnWarning(QRegularExpression("^(?!This plugin does not support propagateSizeHints)")); }
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void theSidebarLiesOnARoundedPanelInsideTheWindow();
    void theSearchFieldStandsBelowTheTitleBarButtons();
    void theEntriesFollowTheSearchField();
    void theFooterNamesTheProductAndItsVersionAtTheBottom();
    void theProductsMarkStandsBesideItsNameInItsColour();
    void theSelectedEntryIsSetApart_data();
    void theSelectedEntryIsSetApart();

    void aPageHasItsNumberAndItsTitleAboveIt_data();
    void aPageHasItsNumberAndItsTitleAboveIt();
    void theHeadingIsSetInTheDisplayFace();
    void thePageKeepsItsDistanceFromTheEdges();
    void aSearchThatHidesTheShownPageLeavesItAsItIs();
    void aSearchWithoutResultLeavesThePageAsItIs();

    void fromRightToLeftTheSidebarStandsAtTheRight();
    void fromRightToLeftAnEntryBeginsAtTheRight();
    void fromRightToLeftTheMarkStandsAtTheRightOfTheName();
    void fromRightToLeftTheHeadingBeginsBesideTheSidebar();
};

void TestSettingsLayout::theSidebarLiesOnARoundedPanelInsideTheWindow()
{
    SettingsWindow settings;
    QQuickItem *sidebar = settings.item("Pages", QAccessible::List)->parentItem();
    const QRectF frame = SettingsWindow::frame(sidebar);
    QCOMPARE(frame.left(), sidebarInset);
    QCOMPARE(frame.top(), sidebarInset);
    QCOMPARE(frame.width(), sidebarWidth);
    QCOMPARE(frame.bottom(), settings.window().height() - sidebarInset);
    const QQuickItem *panel = SettingsWindow::inside(sidebar, "ContinuousRectangle");
    QCOMPARE(SettingsWindow::frame(panel), frame);
    QCOMPARE(panel->property("radius").toReal(), 22.0);
    QCOMPARE(SettingsWindow::color(panel), SettingsWindow::color(EBKit::sunk()));
}

void TestSettingsLayout::theSearchFieldStandsBelowTheTitleBarButtons()
{
    SettingsWindow settings;
    const QRectF field = SettingsWindow::frame(settings.searchField()->parentItem());
    QCOMPARE(field.top(), sidebarInset + 44);
    QCOMPARE(field.left(), sidebarInset + 10 + 6);
    QCOMPARE(field.right(), sidebarInset + sidebarWidth - 10 - 6);
    QCOMPARE(field.height(), 28.0);
}

void TestSettingsLayout::theEntriesFollowTheSearchField()
{
    SettingsWindow settings;
    const QRectF field = SettingsWindow::frame(settings.searchField()->parentItem());
    qreal top = field.bottom() + 8 + 2;
    for (const char *title : {"General", "Buttons", "Shortcuts", "Layouts"}) {
        QQuickItem *entry = settings.entry(title);
        QVERIFY2(entry, title);
        const QRectF frame = SettingsWindow::frame(entry);
        QCOMPARE(frame.top(), top);
        QCOMPARE(frame.height(), 30.0);
        QCOMPARE(frame.left(), sidebarInset + 10);
        QCOMPARE(frame.right(), sidebarInset + sidebarWidth - 10);
        QCOMPARE(SettingsWindow::frame(SettingsWindow::inside(entry, "Glyph")).left(), frame.left() + 10);
        top = frame.bottom() + 2;
    }
}

void TestSettingsLayout::theFooterNamesTheProductAndItsVersionAtTheBottom()
{
    SettingsWindow settings;
    QQuickItem *footer = settings.label("Corvane\nVersion 1.4");
    QVERIFY(footer);
    const QQuickItem *text = SettingsWindow::inside(footer, "QQuickText");
    QCOMPARE(text->property("text").toString(), "CORVANE\nVERSION 1.4");
    QCOMPARE(SettingsWindow::color(text), SettingsWindow::color(EBKit::inkMuted()));
    // What ends lowest in the sidebar, whether the label or the mark beside it, ends 12 points above its edge.
    qreal lowest = 0;
    for (const QQuickItem *item : footer->parentItem()->childItems()) {
        if (!item->inherits("ContinuousRectangle") || item->height() < 100)
            lowest = qMax(lowest, SettingsWindow::frame(item).bottom());
    }
    QCOMPARE(lowest, settings.window().height() - sidebarInset - 12);
}

void TestSettingsLayout::theProductsMarkStandsBesideItsNameInItsColour()
{
    SettingsWindow settings;
    QQuickItem *mark = settings.item("Corvane", QAccessible::Graphic);
    QQuickItem *footer = settings.label("Corvane\nVersion 1.4");
    QVERIFY(mark && footer);
    QCOMPARE(SettingsWindow::color(mark), SettingsWindow::color(EBKit::indigo()));
    QCOMPARE(mark->property("app").toString(), "corvane");
    const QRectF frame = SettingsWindow::frame(mark);
    const QRectF label = SettingsWindow::frame(footer);
    QCOMPARE(frame.size(), QSizeF(24, 24));
    QCOMPARE(frame.left(), sidebarInset + 18);
    QCOMPARE(label.left(), frame.right() + 6);
    QVERIFY(qAbs(frame.center().y() - label.center().y()) <= 0.5);
    QVERIFY(SettingsWindow::letters(SettingsWindow::inside(footer, "QQuickText")).right()
            < sidebarInset + sidebarWidth - 10);
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
        QVERIFY2(entry, qPrintable(page.title));
        const bool isSelected = page.id == selected;
        const QQuickItem *text = SettingsWindow::inside(entry, "QQuickText");
        const auto font = text->property("font").value<QFont>();
        QCOMPARE(font.pixelSize(), 13);
        QCOMPARE(font.weight(), isSelected ? QFont::DemiBold : QFont::Medium);
        QCOMPARE(SettingsWindow::color(text), SettingsWindow::color(isSelected ? EBKit::ink() : EBKit::inkMuted()));
        const QString glyph = SettingsWindow::color(SettingsWindow::inside(entry, "Glyph"));
        QCOMPARE(glyph == SettingsWindow::color(EBKit::indigo()), isSelected);
        const QString back = SettingsWindow::color(SettingsWindow::inside(entry, "ContinuousRectangle"));
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
    const QQuickItem *label = settings.label(kicker);
    const QQuickItem *heading = settings.heading(title);
    QVERIFY(label && heading);
    QCOMPARE(SettingsWindow::frame(label).topLeft(), QPointF(pageLeft + 16, 18));
    QCOMPARE(SettingsWindow::frame(heading).left(), pageLeft + 16);
    QVERIFY(SettingsWindow::frame(heading).top() >= SettingsWindow::frame(label).bottom());
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

void TestSettingsLayout::thePageKeepsItsDistanceFromTheEdges()
{
    SettingsWindow settings;
    const QQuickItem *heading = settings.heading("General");
    const QQuickItem *content = heading->parentItem()->childItems().constLast();
    const QRectF frame = SettingsWindow::frame(content);
    QVERIFY(frame.top() >= SettingsWindow::frame(heading).bottom());
    QCOMPARE(frame.left(), pageLeft + 16);
    QCOMPARE(frame.right(), 620.0 - 24);
    QCOMPARE(qCeil(frame.bottom() + 16), settings.window().height());
    // Its first group is as wide as the page and its last one ends with it.
    QQuickItem *guide = settings.item("Show Guide", QAccessible::Button);
    QVERIFY(guide);
    QVERIFY(frame.contains(SettingsWindow::frame(guide)));
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

void TestSettingsLayout::fromRightToLeftTheSidebarStandsAtTheRight()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    SettingsWindow settings;
    const QRectF frame = SettingsWindow::frame(settings.item("Pages", QAccessible::List)->parentItem());
    QCOMPARE(frame.right(), 620 - sidebarInset);
    QCOMPARE(frame.width(), sidebarWidth);
    QCOMPARE(frame.top(), sidebarInset);
}

void TestSettingsLayout::fromRightToLeftAnEntryBeginsAtTheRight()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    SettingsWindow settings;
    QQuickItem *entry = settings.entry("General");
    QVERIFY(entry);
    const QRectF frame = SettingsWindow::frame(entry);
    const QRectF glyph = SettingsWindow::frame(SettingsWindow::inside(entry, "Glyph"));
    QCOMPARE(glyph.right(), frame.right() - 10);
    QVERIFY(SettingsWindow::letters(SettingsWindow::inside(entry, "QQuickText")).right() < glyph.left());
}

void TestSettingsLayout::fromRightToLeftTheMarkStandsAtTheRightOfTheName()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    SettingsWindow settings;
    QQuickItem *mark = settings.item("Corvane", QAccessible::Graphic);
    QVERIFY(mark);
    QCOMPARE(SettingsWindow::frame(mark).right(), 620 - sidebarInset - 18);
    QCOMPARE(SettingsWindow::frame(settings.label("Corvane\nVersion 1.4")).right(),
             SettingsWindow::frame(mark).left() - 6);
}

void TestSettingsLayout::fromRightToLeftTheHeadingBeginsBesideTheSidebar()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    SettingsWindow settings;
    QQuickItem *heading = settings.heading("General");
    QQuickItem *kicker = settings.label("Settings · 01");
    QVERIFY(heading && kicker);
    const qreal leading = 620 - pageLeft - 16;
    // The tracking behind the last letter makes for the tolerance.
    QVERIFY(qAbs(SettingsWindow::letters(heading).right() - leading) <= 1.5);
    QVERIFY(qAbs(SettingsWindow::letters(SettingsWindow::inside(kicker, "QQuickText")).right() - leading) <= 1.5);
    const QRectF content = SettingsWindow::frame(heading->parentItem()->childItems().constLast());
    QCOMPARE(content.left(), 24.0);
    QCOMPARE(content.right(), leading);
}

CORVANE_TEST(TestSettingsLayout, runInGui)
#include "tst_settingslayout.moc"
