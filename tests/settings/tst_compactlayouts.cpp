#include "CompactLayouts.h"
#include "TestProgram.h"

namespace {

const SavedLayout::Window notes = {"org.example.editor", "Editor", "Notes", {0, 0.25, 0.5, 0.75}, "Left"};
const SavedLayout::Window terminal = {"org.example.terminal", "Terminal", "~", {0.5, 0, 0.5, 1}, std::nullopt};

SavedLayout layout(uint number, const QString &name, const QList<SavedLayout::Window> &windows)
{
    return {QUuid(number, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10), name, windows, 7e8};
}

SavedLayout untitled(SavedLayout layout)
{
    layout.created = 0;
    for (SavedLayout::Window &window : layout.windows)
        window.title.clear();
    return layout;
}

}

class TestCompactLayouts : public QObject {
    Q_OBJECT

private slots:
    void everythingButTitlesAndTimesIsThere();
    void rowsAreTakenOut();

private:
    const QList<SavedLayout> m_layouts = {layout(1, "Work", {notes, terminal}), layout(2, "", {}),
                                          layout(3, "Größe", {terminal, notes, notes})};
};

void TestCompactLayouts::everythingButTitlesAndTimesIsThere()
{
    const CompactLayouts compact(m_layouts);
    QCOMPARE(compact.count(), 3);
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(compact.id(row), m_layouts.at(row).id);
        QCOMPARE(compact.name(row), m_layouts.at(row).name);
        QVERIFY(compact.at(row) == untitled(m_layouts.at(row)));
    }
}

void TestCompactLayouts::rowsAreTakenOut()
{
    CompactLayouts compact(m_layouts);
    compact.remove(0, 2);
    QCOMPARE(compact.count(), 1);
    QVERIFY(compact.at(0) == untitled(m_layouts.at(2)));
}

CORVANE_TEST(TestCompactLayouts, runInCore)
#include "tst_compactlayouts.moc"
