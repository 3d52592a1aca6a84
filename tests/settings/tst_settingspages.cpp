#include "SettingsPages.h"
#include "TestProgram.h"

#include <QFile>
#include <QRegularExpression>

namespace {

struct ListedPage {
    const char *id;
    const char *title;
    GlyphName glyph;
    QStringList keywords;
};

/// Every page a person can open, in the order of the sidebar.
const QList<ListedPage> listedPages = {
    {"general",
     "General",
     GlyphName::gear,
     {"login", "startup", "menu bar", "icon", "accessibility", "permission", "guide"}},
    {"buttons",
     "Buttons",
     GlyphName::wins,
     {"look", "theme", "colour", "color", "size", "minimize", "full screen", "maximize"}},
    {"shortcuts", "Shortcuts", GlyphName::cmd, {"keyboard", "hotkey", "close", "hide", "quit", "minimize"}},
    {"layouts", "Layouts", GlyphName::apps, {"snap", "arrange", "tile", "window", "layout", "shelf", "gap"}},
};

}

class TestSettingsPages : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }
    void thereAreFourPagesInTheOrderOfTheSidebar();
    void aPageHasItsTitleGlyphAndSearchWords_data();
    void aPageHasItsTitleGlyphAndSearchWords();
    void everyPageHasAViewOfItsOwn();
};

void TestSettingsPages::thereAreFourPagesInTheOrderOfTheSidebar()
{
    QStringList ids;
    for (const EBSettingsPage &page : SettingsPages::make())
        ids.append(page.id);
    const QStringList expected = {"general", "buttons", "shortcuts", "layouts"};
    QCOMPARE(ids, expected);
}

void TestSettingsPages::aPageHasItsTitleGlyphAndSearchWords_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < listedPages.size(); ++i)
        QTest::newRow(listedPages.at(i).id) << i;
}

void TestSettingsPages::aPageHasItsTitleGlyphAndSearchWords()
{
    QFETCH(int, index);
    const ListedPage &expected = listedPages.at(index);
    const QList<EBSettingsPage> pages = SettingsPages::make();
    QVERIFY(index < pages.size());
    const EBSettingsPage &page = pages.at(index);
    QCOMPARE(page.id, expected.id);
    QCOMPARE(page.title, expected.title);
    QCOMPARE(page.glyph, expected.glyph);
    QCOMPARE(page.keywords, expected.keywords);
}

void TestSettingsPages::everyPageHasAViewOfItsOwn()
{
    QSet<QUrl> views;
    for (const EBSettingsPage &page : SettingsPages::make()) {
        QVERIFY2(QFile::exists(u':' + page.content.path()), qPrintable(page.content.toString()));
        QVERIFY2(!views.contains(page.content), qPrintable(page.content.toString()));
        views.insert(page.content);
    }
}

CORVANE_TEST(TestSettingsPages, runInCore)
#include "tst_settingspages.moc"
