#include "NearRows.h"
#include "TestProgram.h"

#include <QStringListModel>
#include <QTest>

namespace {

/// A hundred rows, each called by its number.
class Rows : public QStringListModel {
public:
    Rows()
    {
        QStringList rows;
        for (int row = 0; row < 100; ++row)
            rows.append(QString::number(row));
        setStringList(rows);
    }
};

QStringList shown(const NearRows &near)
{
    QStringList rows;
    for (int place = 0; place < near.rowCount(); ++place)
        rows.append(near.index(place, 0).data().toString());
    return rows;
}

}

class TestNearRows : public QObject {
    Q_OBJECT

private slots:
    void init();
    void theEndsAndTheRowsNearTheView_data();
    void theEndsAndTheRowsNearTheView();
    void theRowWithTheFocusAndItsNeighbours();
    void theKeptRowStaysTheSameWhileOthersComeAndGo();
    void theEndsAreThoseOfTheListAsItIs();
    void aRowIsFoundAmongThem();

private:
    QScopedPointer<Rows> m_rows;
    QScopedPointer<NearRows> m_near;
};

void TestNearRows::init()
{
    m_near.reset(new NearRows);
    m_rows.reset(new Rows);
    m_near->setSourceModel(m_rows.data());
}

void TestNearRows::theEndsAndTheRowsNearTheView_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("in the middle") << 40 << 42 << QStringList{"0", "40", "41", "42", "99"};
    QTest::newRow("at the top") << -3 << 2 << QStringList{"0", "1", "2", "99"};
    QTest::newRow("at the bottom") << 98 << 105 << QStringList{"0", "98", "99"};
    QTest::newRow("none") << 200 << 99 << QStringList{"0", "99"};
}

void TestNearRows::theEndsAndTheRowsNearTheView()
{
    QFETCH(int, first);
    QFETCH(int, last);
    m_near->setFirst(first);
    m_near->setLast(last);
    QTEST(shown(*m_near), "rows");
}

void TestNearRows::theRowWithTheFocusAndItsNeighbours()
{
    m_near->keep(50);
    const QStringList kept = {"0", "49", "50", "51", "99"};
    QCOMPARE(shown(*m_near), kept);
    m_near->keep(99);
    const QStringList atTheEnd = {"0", "98", "99"};
    QCOMPARE(shown(*m_near), atTheEnd);
    m_near->keep(-1);
    const QStringList none = {"0", "99"};
    QCOMPARE(shown(*m_near), none);
}

void TestNearRows::theKeptRowStaysTheSameWhileOthersComeAndGo()
{
    m_near->keep(50);
    m_rows->removeRows(10, 5);
    const QStringList fewer = {"0", "49", "50", "51", "99"};
    QCOMPARE(shown(*m_near), fewer);
    m_rows->removeRow(46);
    const QStringList neighbours = {"0", "49", "50", "52", "99"};
    QCOMPARE(shown(*m_near), neighbours);
}

void TestNearRows::theEndsAreThoseOfTheListAsItIs()
{
    m_rows->removeRow(99);
    m_rows->removeRow(0);
    const QStringList shorter = {"1", "98"};
    QCOMPARE(shown(*m_near), shorter);
    m_rows->insertRow(98);
    m_rows->setData(m_rows->index(98), "new");
    const QStringList longer = {"1", "new"};
    QCOMPARE(shown(*m_near), longer);
}

void TestNearRows::aRowIsFoundAmongThem()
{
    m_near->keep(50);
    QCOMPARE(m_near->placeOf(0), 0);
    QCOMPARE(m_near->placeOf(50), 2);
    QCOMPARE(m_near->placeOf(99), 4);
    QCOMPARE(m_near->placeOf(20), -1);
    QCOMPARE(m_near->placeOf(-1), -1);
    QCOMPARE(m_near->placeOf(100), -1);
}

CORVANE_TEST(TestNearRows, runInCore)
#include "tst_nearrows.moc"
