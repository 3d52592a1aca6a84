#include "SettingsModel.h"
#include "TestProgram.h"

#include <QSignalSpy>

namespace {

const QList<EBSettingsPage> pages = {
    {"general", "General", GlyphName::gear, {}, QUrl("qrc:/general.qml", QUrl::TolerantMode)},
    {"layouts", "Layouts", GlyphName::apps, {}, QUrl("qrc:/layouts.qml", QUrl::TolerantMode)},
};

using Model = EBSettingsWindowController::Model;

}

class TestSettingsModel : public QObject {
    Q_OBJECT

private slots:
    void theInitialPageIsNamedExactly_data();
    void theInitialPageIsNamedExactly();
    void aSelectionNoPageHasShowsTheFirst();
    void theShownPageFollowsTheSelection();
};

void TestSettingsModel::theInitialPageIsNamedExactly_data()
{
    QTest::addColumn<std::optional<QString>>("initial");
    QTest::addColumn<QString>("selection");
    QTest::newRow("absent") << std::optional<QString>() << "general";
    QTest::newRow("a page") << std::optional<QString>("layouts") << "layouts";
    QTest::newRow("another case") << std::optional<QString>("Layouts") << "general";
    QTest::newRow("with space") << std::optional<QString>(" layouts") << "general";
    QTest::newRow("empty") << std::optional<QString>("") << "general";
}

void TestSettingsModel::theInitialPageIsNamedExactly()
{
    QFETCH(std::optional<QString>, initial);
    QFETCH(QString, selection);
    QCOMPARE(Model(pages, initial, nullptr).selection(), selection);
}

void TestSettingsModel::aSelectionNoPageHasShowsTheFirst()
{
    Model model(pages, "layouts", nullptr);
    model.setSelection("gone");
    QCOMPARE(model.title(), "General");
    QCOMPARE(model.number(), 1);
}

void TestSettingsModel::theShownPageFollowsTheSelection()
{
    Model model(pages, std::nullopt, nullptr);
    QSignalSpy changes(&model, &Model::selectionChanged);
    model.setSelection("layouts");
    model.setSelection("layouts");
    QCOMPARE(changes.count(), 1);
    QCOMPARE(model.title(), "Layouts");
    QCOMPARE(model.number(), 2);
    QCOMPARE(model.content(), pages.at(1).content);
}

CORVANE_TEST(TestSettingsModel, runInCore)
#include "tst_settingsmodel.moc"
