#include "SettingsPages.h"
#include "SidebarModel.h"
#include "TestProgram.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

class TestPageSearch : public QObject {
    Q_OBJECT

private slots:
    void findsPages_data();
    void findsPages();
    void theModelListsWhatTheSearchFinds();
    void aSearchThatFindsTheSameMovesNothing();
    void neighboursStopAtTheEnds();
    void aPageThatIsNotListedStandsAboveTheFirst();
    void anEmptyListKeepsTheSelection();
};

void TestPageSearch::findsPages_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("found");
    const QStringList all = {"general", "buttons", "shortcuts", "layouts"};
    QTest::newRow("empty text finds every page") << "" << all;
    QTest::newRow("nothing but space finds every page") << " \t " << all;
    QTest::newRow("space around the text does not count") << "  Color " << QStringList{"buttons"};
    QTest::newRow("part of a keyword of two pages") << "min" << QStringList{"buttons", "shortcuts"};
    QTest::newRow("another word for a thing on the page") << "startup" << QStringList{"general"};
    QTest::newRow("another spelling") << "colour" << QStringList{"buttons"};
    QTest::newRow("a word of the trade") << "hotkey" << QStringList{"shortcuts"};
    QTest::newRow("what can be done there") << "tile" << QStringList{"layouts"};
    QTest::newRow("window") << "window" << QStringList{"layouts"};
    QTest::newRow("a title in capitals") << "GENERAL" << QStringList{"general"};
    QTest::newRow("the middle of a title") << "hortcut" << QStringList{"shortcuts"};
    QTest::newRow("a keyword of two words") << "menu b" << QStringList{"general"};
    QTest::newRow("space inside the text counts") << "menu  bar" << QStringList();
    QTest::newRow("a line end is not trimmed") << "color\n" << QStringList();
    QTest::newRow("a non-breaking space is trimmed") << QStringLiteral("\u00A0color") << QStringList{"buttons"};
    QTest::newRow("nothing contains it") << "zebra" << QStringList();
    QTest::newRow("no pattern characters") << ".*" << QStringList();
}

void TestPageSearch::findsPages()
{
    QFETCH(QString, search);
    QFETCH(QStringList, found);
    QStringList ids;
    for (const EBSettingsPage &match : pagesMatching(SettingsPages::make(), search))
        ids.append(match.id);
    QCOMPARE(ids, found);
}

void TestPageSearch::theModelListsWhatTheSearchFinds()
{
    SidebarModel model(SettingsPages::make());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 4);
    model.setSearch("min");
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.data(model.index(0), SidebarModel::IdRole).toString(), "buttons");
    QCOMPARE(model.data(model.index(0), SidebarModel::TitleRole).toString(), "Buttons");
    QCOMPARE(model.data(model.index(0), SidebarModel::GlyphRole).toString(), "wins");
    QCOMPARE(model.data(model.index(1), SidebarModel::IdRole).toString(), "shortcuts");
    model.setSearch("");
    QCOMPARE(model.rowCount(), 4);
}

void TestPageSearch::aSearchThatFindsTheSameMovesNothing()
{
    SidebarModel model(SettingsPages::make());
    model.setSearch("wind");
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.setSearch("windo");
    QCOMPARE(resets.count(), 0);
    model.setSearch("zebra");
    QCOMPARE(resets.count(), 1);
}

void TestPageSearch::neighboursStopAtTheEnds()
{
    const SidebarModel model(SettingsPages::make());
    QCOMPARE(model.neighbour("general", 1), "buttons");
    QCOMPARE(model.neighbour("general", -1), "general");
    QCOMPARE(model.neighbour("layouts", 1), "layouts");
    QCOMPARE(model.neighbour("layouts", -1), "shortcuts");
}

void TestPageSearch::aPageThatIsNotListedStandsAboveTheFirst()
{
    SidebarModel model(SettingsPages::make());
    model.setSearch("min");
    QCOMPARE(model.neighbour("general", 1), "buttons");
    QCOMPARE(model.neighbour("general", 0), "buttons");
    QCOMPARE(model.neighbour("general", -1), "buttons");
}

void TestPageSearch::anEmptyListKeepsTheSelection()
{
    SidebarModel model(SettingsPages::make());
    model.setSearch("zebra");
    QCOMPARE(model.neighbour("general", 1), "general");
}

CORVANE_TEST(TestPageSearch, runInCore)
#include "tst_pagesearch.moc"
