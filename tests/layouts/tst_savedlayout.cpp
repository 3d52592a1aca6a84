#include "Sample.h"
#include "TestProgram.h"

#include <array>

class SavedLayoutTest : public QObject {
    Q_OBJECT

private slots:
    void aRectComparesAndHashesByAllFourFields_data();
    void aRectComparesAndHashesByAllFourFields();
    void aWindowComparesByAllFiveFields();
    void aLayoutComparesByAllFourFields();
};

void SavedLayoutTest::aRectComparesAndHashesByAllFourFields_data()
{
    QTest::addColumn<int>("changed");
    for (int i = 0; i < 4; ++i)
        QTest::addRow("field %d", i) << i;
}

void SavedLayoutTest::aRectComparesAndHashesByAllFourFields()
{
    QFETCH(int, changed);
    const UnitRect rect{0.1, 0.2, 0.3, 0.4};
    QCOMPARE(rect, (UnitRect{0.1, 0.2, 0.3, 0.4}));
    QCOMPARE(qHash(rect), qHash(UnitRect{0.1, 0.2, 0.3, 0.4}));
    UnitRect other = rect;
    *std::array{&other.x, &other.y, &other.w, &other.h}.at(static_cast<std::size_t>(changed)) = 0.5;
    QVERIFY(other != rect);
    QVERIFY(qHash(other) != qHash(rect));
}

void SavedLayoutTest::aWindowComparesByAllFiveFields()
{
    const SavedLayout::Window window = Sample::window();
    QVERIFY(window == Sample::window());
    SavedLayout::Window other = window;
    other.bundleID += u'x';
    QVERIFY(other != window);
    other = window;
    other.app += u'x';
    QVERIFY(other != window);
    other = window;
    other.title += u'x';
    QVERIFY(other != window);
    other = window;
    other.rect.h = 1;
    QVERIFY(other != window);
    other = window;
    other.display.reset();
    QVERIFY(other != window);
    other.display = QString();
    QVERIFY(other != window);
}

void SavedLayoutTest::aLayoutComparesByAllFourFields()
{
    const SavedLayout layout = Sample::layout();
    QVERIFY(layout == Sample::layout());
    SavedLayout other = layout;
    other.id = Sample::otherId;
    QVERIFY(other != layout);
    other = layout;
    other.name += u'x';
    QVERIFY(other != layout);
    other = layout;
    other.windows.clear();
    QVERIFY(other != layout);
    other = layout;
    other.created += 1;
    QVERIFY(other != layout);
}

CORVANE_TEST(SavedLayoutTest, runInCore)
#include "tst_savedlayout.moc"
