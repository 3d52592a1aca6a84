#include "LoudGeometry.h"
#include "TestProgram.h"

namespace {

void compareZones(const QList<Zone> &actual, const QList<Zone> &expected)
{
    QCOMPARE(actual.size(), expected.size());
    for (qsizetype place = 0; place < actual.size(); ++place) {
        QCOMPARE(actual.at(place).x, expected.at(place).x);
        QCOMPARE(actual.at(place).y, expected.at(place).y);
        QCOMPARE(actual.at(place).a, expected.at(place).a);
        QCOMPARE(actual.at(place).r, expected.at(place).r);
    }
}

}

class TestLoudGeometry : public QObject {
    Q_OBJECT

private slots:
    void theScaleFollowsTheSideThatGrewLeast_data();
    void theScaleFollowsTheSideThatGrewLeast();
    void theDotsStayClearOfWhatIsRead_data();
    void theDotsStayClearOfWhatIsRead();
    void fromRightToLeftTheZonesAreMirrored();
};

void TestLoudGeometry::theScaleFollowsTheSideThatGrewLeast_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<qreal>("k");
    QTest::addColumn<qreal>("m");
    QTest::newRow("as designed") << QSizeF(560, 388) << 1.0 << 220.0;
    QTest::newRow("wider alone") << QSizeF(900, 388) << 1.0 << 220.0;
    QTest::newRow("higher alone") << QSizeF(560, 2000) << 1.0 << 220.0;
    QTest::newRow("a little larger") << QSizeF(616, 500) << 1.1 << 242.0;
    QTest::newRow("where the column stops growing") << QSizeF(700, 485) << 1.25 << 275.0;
    QTest::newRow("twice") << QSizeF(1120, 776) << 2.0 << 275.0;
    QTest::newRow("large") << QSizeF(1800, 1200) << 1200.0 / 388 << 275.0;
    QTest::newRow("very large") << QSizeF(56000, 38800) << 100.0 << 275.0;
    QTest::newRow("narrower") << QSizeF(400, 388) << 1.0 << 220.0;
    QTest::newRow("smaller") << QSizeF(400, 300) << 1.0 << 220.0;
    QTest::newRow("nothing") << QSizeF(0, 0) << 1.0 << 220.0;
}

void TestLoudGeometry::theScaleFollowsTheSideThatGrewLeast()
{
    QFETCH(QSizeF, size);
    const LoudGeometry geometry = LoudGeometry::of(size, false);
    QTEST(geometry.k, "k");
    QTEST(geometry.m, "m");
}

void TestLoudGeometry::theDotsStayClearOfWhatIsRead_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QList<Zone>>("zones");
    QTest::newRow("as designed")
        << QSizeF(560, 388)
        << QList<Zone>{{50, 20, 30, 18}, {476, 22, 62, 18}, {62, 90, 0, 56}, {416, 120, 62, 86}, {196, 356, 196, 54}};
    QTest::newRow("wider")
        << QSizeF(900, 388)
        << QList<Zone>{{50, 20, 30, 18}, {816, 22, 62, 18}, {62, 90, 0, 56}, {756, 120, 62, 86}, {196, 356, 196, 54}};
    QTest::newRow("twice") << QSizeF(1120, 776)
                           << QList<Zone>{{50, 20, 30, 18},
                                          {1036, 22, 62, 18},
                                          {124, 180, 0, 112},
                                          {916.5, 240, 124, 172},
                                          {392, 712, 392, 108}};
    QTest::newRow("smaller")
        << QSizeF(400, 300)
        << QList<Zone>{{50, 20, 30, 18}, {316, 22, 62, 18}, {62, 90, 0, 56}, {256, 120, 62, 86}, {196, 268, 196, 54}};
}

void TestLoudGeometry::theDotsStayClearOfWhatIsRead()
{
    QFETCH(QSizeF, size);
    QFETCH(QList<Zone>, zones);
    compareZones(LoudGeometry::of(size, false).calm, zones);
}

void TestLoudGeometry::fromRightToLeftTheZonesAreMirrored()
{
    compareZones(LoudGeometry::of({560, 388}, true).calm,
                 {{510, 20, 30, 18}, {84, 22, 62, 18}, {498, 90, 0, 56}, {144, 120, 62, 86}, {364, 356, 196, 54}});
}

CORVANE_TEST(TestLoudGeometry, runBare)
#include "tst_loudgeometry.moc"
