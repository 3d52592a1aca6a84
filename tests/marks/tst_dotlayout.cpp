#include "DotLayout.h"
#include "Mulberry32.h"
#include "TestProgram.h"

#include <QFile>
#include <QProcess>
#include <QTextStream>

#include <cmath>
#include <limits>
#include <random>
#include <set>

namespace {

using Marks = QList<QRectF>;

/// The arguments of a layout; those of a field without calm places unless said otherwise.
struct Field {
    QSizeF size = {200, 200};
    double cell = 10;
    quint32 seed = 1;
    double density = 0.7;
    double ramp = 30;
    double margin = 2;
    QList<Zone> calm = {};

    Marks layout() const { return DotLayout::layout(size, cell, seed, density, ramp, margin, calm); }

    int columns() const { return int(std::floor(size.width() / cell)); }
    int rows() const { return int(std::floor(size.height() / cell)); }
    QPointF center(int row, int column) const
    {
        return {(size.width() - cell * columns()) / 2 + cell * (column + 0.5),
                (size.height() - cell * rows()) / 2 + cell * (row + 0.5)};
    }

    double distance(QPointF p) const
    {
        double nearest = std::numeric_limits<double>::infinity();
        for (const Zone &zone : calm) {
            const double dx = std::max(std::abs(p.x() - zone.x) - zone.a, 0.0);
            const double dy = p.y() - zone.y;
            nearest = std::min(nearest, std::sqrt(dx * dx + dy * dy) - zone.r);
        }
        return nearest;
    }

    /// The cells a mark lies in, as {row, column}.
    QList<std::pair<int, int>> cells(const QRectF &mark) const
    {
        const QPointF first = mark.topLeft() + QPointF(0.3 * cell, 0.3 * cell) - center(0, 0);
        const int row = int(std::round(first.y() / cell));
        const int column = int(std::round(first.x() / cell));
        QList<std::pair<int, int>> list;
        for (int down = 0; down <= int(std::round((mark.height() - 0.6 * cell) / cell)); ++down) {
            for (int across = 0; across <= int(std::round((mark.width() - 0.6 * cell) / cell)); ++across)
                list.append({row + down, column + across});
        }
        return list;
    }
};

Field stepPanel(quint32 seed)
{
    return {{206, 388}, 20, seed, 0.72, 50, 2, {{50, 20, 30, 18}, {66, 116, 30, 72}, {50, 330, 0, 70}}};
}

Field loudScreen(quint32 seed)
{
    return {{560, 388},
            22,
            seed,
            0.7,
            80,
            2,
            {{50, 20, 30, 18}, {476, 22, 62, 18}, {62, 90, 0, 56}, {416, 120, 62, 86}, {196, 356, 196, 54}}};
}

/// A single row or column of open cells that all get a mark.
Field strip(int columns, int rows, quint32 seed)
{
    return {{columns * 10.0, rows * 10.0}, 10, seed, 1};
}

QSizeF mark(double cellsAcross, double cellsDown)
{
    return {6 + 10 * (cellsAcross - 1), 6 + 10 * (cellsDown - 1)};
}

// The first two numbers of this seed; the first is what a chance is compared with.
constexpr quint32 knownSeed = 0;
constexpr double knownDraw = 0.26642920868471265;
// Its first number is 0.
constexpr quint32 seedOfZero = 0x92D4860B;

}

class TestDotLayout : public QObject {
    Q_OBJECT

private slots:
    void theGeneratorDrawsThePublishedNumbers_data();
    void theGeneratorDrawsThePublishedNumbers();
    void aDrawIsAFractionOfOne();

    void theFieldsOfTheScreensAreAlwaysTheSame_data();
    void theFieldsOfTheScreensAreAlwaysTheSame();
    void theSameArgumentsGiveTheSameList();
    void anotherSeedGivesAnotherList();

    void anAreaLowerThanACellIsEmpty();
    void anAreaNarrowerThanACellIsEmpty();
    void whatIsLeftOfTheAreaStandsHalfOnEachSide();
    void aCountOfCellsThatIsNoNumberEndsTheProcess_data();
    void aCountOfCellsThatIsNoNumberEndsTheProcess();

    void aCellIsKeptWhenItsDrawDoesNotExceedItsChance();
    void withoutDensityOnlyADrawOfZeroIsKept();
    void theChanceRisesAlongTheRamp_data();
    void theChanceRisesAlongTheRamp();
    void withoutARampTheChanceIsFullAtTheMargin();
    void withoutAZoneTheRampDoesNotMatter();
    void theNearestZoneDecides();

    void theDrawsChooseTheFirstMark();
    void theLastRowStartsNoUprightBarAndTheLastColumnNoLevelOne();
    void aBarStopsBeforeATakenCell();
    void aBarEntersACellAtTheMarginButNoneWithin();
    void marksComeRowByRow();

    void aZoneOverEverythingLeavesNothing();
    void cellsWithinAMarginConsumeNoDraws();
    void everyFieldKeepsTheRules();
};

void TestDotLayout::theGeneratorDrawsThePublishedNumbers_data()
{
    using Numbers = QList<quint32>;
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<Numbers>("numbers");
    QTest::newRow("0") << 0U << Numbers{1144304738, 1416247, 958946056, 627933444, 2007157716, 2340967985};
    QTest::newRow("1") << 1U << Numbers{2693262067, 11749833, 2265367787, 4213581821, 4159151403, 1207330352};
    QTest::newRow("8") << 8U << Numbers{671282643, 2685180315, 1291344547, 2989100903, 2512594957, 1930154016};
    QTest::newRow("21") << 21U << Numbers{1856676659, 1919975191, 1216695650, 1642336016, 2047449597, 3831063962};
    QTest::newRow("the last") << 0xFFFFFFFFU
                              << Numbers{3850105811, 813802916, 3073704848, 4054706436, 3630262831, 2315588663};
}

void TestDotLayout::theGeneratorDrawsThePublishedNumbers()
{
    QFETCH(quint32, seed);
    QFETCH(QList<quint32>, numbers);
    Mulberry32 generator(seed);
    for (const quint32 number : numbers)
        QCOMPARE(generator.nextMultiple(), number);
}

void TestDotLayout::aDrawIsAFractionOfOne()
{
    Mulberry32 generator(knownSeed);
    QCOMPARE(generator.next(), knownDraw);
    QCOMPARE(generator.next(), 0.0003297457005828619);
    QCOMPARE(generator.next(), 0.2232720274478197);
    QCOMPARE(Mulberry32(seedOfZero).next(), 0.0);
}

void TestDotLayout::theFieldsOfTheScreensAreAlwaysTheSame_data()
{
    QTest::addColumn<bool>("loud");
    QTest::addColumn<quint32>("seed");
    QTest::newRow("step-8") << false << 8U;
    QTest::newRow("step-1234") << false << 1234U;
    QTest::newRow("loud-21") << true << 21U;
    QTest::newRow("loud-4294967295") << true << 4294967295U;
}

void TestDotLayout::theFieldsOfTheScreensAreAlwaysTheSame()
{
    QFETCH(bool, loud);
    QFETCH(quint32, seed);
    QFile file(QStringLiteral(":/fields/%1.txt").arg(QLatin1String(QTest::currentDataTag())));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTextStream text(&file);
    const Marks marks = (loud ? loudScreen(seed) : stepPanel(seed)).layout();
    for (const QRectF &mark : marks) {
        const QStringList numbers = text.readLine().split(' ');
        QCOMPARE(numbers.size(), 4);
        // To the last bit, where QRectF would compare with a tolerance.
        QVERIFY(mark.x() == numbers[0].toDouble());
        QVERIFY(mark.y() == numbers[1].toDouble());
        QVERIFY(mark.width() == numbers[2].toDouble());
        QVERIFY(mark.height() == numbers[3].toDouble());
    }
    QVERIFY(text.atEnd());
    QVERIFY(marks.size() > 30);
}

void TestDotLayout::theSameArgumentsGiveTheSameList()
{
    const Marks first = loudScreen(7).layout();
    (void)loudScreen(8).layout();
    QCOMPARE(loudScreen(7).layout(), first);
}

void TestDotLayout::anotherSeedGivesAnotherList()
{
    std::set<QString> seen;
    for (quint32 seed = 0; seed < 50; ++seed) {
        QString text;
        for (const QRectF &mark : stepPanel(seed).layout())
            text += QStringLiteral("%1 %2 %3 %4;").arg(mark.x()).arg(mark.y()).arg(mark.width()).arg(mark.height());
        seen.insert(text);
    }
    QCOMPARE(seen.size(), 50U);
}

void TestDotLayout::anAreaLowerThanACellIsEmpty()
{
    QCOMPARE((Field{{200, 9.99}, 10, 1, 1}.layout()), Marks());
    QCOMPARE((Field{{200, 0}, 10, 1, 1}.layout()), Marks());
    QCOMPARE((Field{{200, -20}, 10, 1, 1}.layout()), Marks());
    QVERIFY(!(Field{{200, 10}, 10, 1, 1}.layout()).isEmpty());
}

void TestDotLayout::anAreaNarrowerThanACellIsEmpty()
{
    QCOMPARE((Field{{9.99, 200}, 10, 1, 1}.layout()), Marks());
    QCOMPARE((Field{{-20, 200}, 10, 1, 1}.layout()), Marks());
}

void TestDotLayout::whatIsLeftOfTheAreaStandsHalfOnEachSide()
{
    // 3.9 cells wide, 2.4 high.
    const Field field{{39, 24}, 10, 1, 1};
    std::set<int> columns;
    for (const QRectF &mark : field.layout()) {
        for (const auto &[row, column] : field.cells(mark)) {
            QVERIFY(column >= 0 && column < 3);
            QVERIFY(row >= 0 && row < 2);
            columns.insert(column);
        }
    }
    QCOMPARE(columns.size(), 3U);
    const QRectF first = field.layout().constFirst();
    QCOMPARE(first.x(), 4.5 + 5 - 3);
    QCOMPARE(first.y(), 2.0 + 5 - 3);
}

void TestDotLayout::aCountOfCellsThatIsNoNumberEndsTheProcess_data()
{
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("cell");
    QTest::newRow("a cell of no size") << "100"
                                       << "0";
    QTest::newRow("nothing in a cell of no size") << "0"
                                                  << "0";
    QTest::newRow("an endless area") << "inf"
                                     << "10";
    QTest::newRow("a cell that is no number") << "100"
                                              << "nan";
    QTest::newRow("more cells than can be counted") << "1e300"
                                                    << "1";
}

void TestDotLayout::aCountOfCellsThatIsNoNumberEndsTheProcess()
{
    QFETCH(QString, width);
    QFETCH(QString, cell);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"tst_dotlayout", "--layout", width, cell});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    QVERIFY(child.readAllStandardError().contains("A dot field cannot be"));
}

void TestDotLayout::aCellIsKeptWhenItsDrawDoesNotExceedItsChance()
{
    Field field = strip(1, 1, knownSeed);
    field.density = knownDraw;
    QCOMPARE(field.layout(), Marks{QRectF(2, 2, 6, 6)});
    field.density = std::nextafter(knownDraw, 0);
    QCOMPARE(field.layout(), Marks());
}

void TestDotLayout::withoutDensityOnlyADrawOfZeroIsKept()
{
    Field field = strip(1, 1, seedOfZero);
    field.density = 0;
    QCOMPARE(field.layout().size(), 1);
    field = Field{};
    field.density = 0;
    QCOMPARE(field.layout(), Marks());
}

void TestDotLayout::theChanceRisesAlongTheRamp_data()
{
    QTest::addColumn<Zone>("zone");
    QTest::addColumn<double>("part");
    // The only cell's centre is at (5, 5); the margin is 10 and the ramp 80 points.
    QTest::newRow("half way, below a disc") << Zone{5, -95, 0, 50} << 0.5;
    QTest::newRow("half way, beside a disc") << Zone{-95, 5, 0, 50} << 0.5;
    QTest::newRow("half way, beside a stadium") << Zone{115, 5, 40, 20} << 0.5;
    QTest::newRow("half way, within the length of a stadium") << Zone{35, -95, 40, 50} << 0.5;
    QTest::newRow("half way, aslant of a stadium") << Zone{75, 45, 40, 0} << 0.5;
    QTest::newRow("a quarter of the way") << Zone{5, -75, 0, 50} << 0.25;
    QTest::newRow("at its end") << Zone{5, -135, 0, 50} << 1.0;
    QTest::newRow("beyond") << Zone{5, -1000, 0, 50} << 1.0;
}

void TestDotLayout::theChanceRisesAlongTheRamp()
{
    QFETCH(Zone, zone);
    QFETCH(double, part);
    Field field{{10, 10}, 10, knownSeed, knownDraw / part, 80, 10, {zone}};
    QCOMPARE(field.layout().size(), 1);
    field.density = std::nextafter(field.density, 0);
    QCOMPARE(field.layout().size(), 0);
}

void TestDotLayout::withoutARampTheChanceIsFullAtTheMargin()
{
    Field field{{10, 10}, 10, knownSeed, knownDraw, 0, 10, {{5, -15, 0, 9.5}}};
    QCOMPARE(field.layout().size(), 1);
    field.density = std::nextafter(field.density, 0);
    QCOMPARE(field.layout().size(), 0);
}

void TestDotLayout::withoutAZoneTheRampDoesNotMatter()
{
    for (const double ramp : {0.0, 1.0, 1e9}) {
        Field field;
        field.ramp = ramp;
        QCOMPARE(field.layout(), Field{}.layout());
    }
}

void TestDotLayout::theNearestZoneDecides()
{
    const Zone near{5, -95, 0, 50};
    const Zone far{5, 200, 0, 50};
    for (const auto &zones : {QList{near, far}, QList{far, near}}) {
        Field field{{10, 10}, 10, knownSeed, 2 * knownDraw, 80, 10, zones};
        QCOMPARE(field.layout().size(), 1);
        field.density = std::nextafter(field.density, 0);
        QCOMPARE(field.layout().size(), 0);
    }
}

// In a field where every cell gets a mark, the first draw only passes, the second is for the kind and the third for the
// length of a bar.
void TestDotLayout::theDrawsChooseTheFirstMark()
{
    int dots = 0;
    int bars = 0;
    for (quint32 seed = 0; seed < 3000; ++seed) {
        Mulberry32 draws(seed);
        draws.next();
        const double kind = draws.next();
        const int cells = draws.next() < 0.3 ? 3 : 2;
        const QRectF first = strip(5, 5, seed).layout().constFirst();
        const QSizeF expected = kind < 0.2 ? mark(1, cells) : kind < 0.34 ? mark(cells, 1) : mark(1, 1);
        QCOMPARE(first, QRectF(QPointF(2, 2), expected));
        (kind < 0.34 ? bars : dots) += 1;
    }
    QVERIFY(dots > 1500 && bars > 500);
}

void TestDotLayout::theLastRowStartsNoUprightBarAndTheLastColumnNoLevelOne()
{
    for (quint32 seed = 0; seed < 2000; ++seed) {
        Mulberry32 draws(seed);
        draws.next();
        const double kind = draws.next();
        const int cells = draws.next() < 0.3 ? 3 : 2;
        // Where an upright bar has no room, the same draw asks for a level one.
        QCOMPARE(strip(5, 1, seed).layout().constFirst().size(), kind < 0.34 ? mark(cells, 1) : mark(1, 1));
        QCOMPARE(strip(1, 5, seed).layout().constFirst().size(), kind < 0.2 ? mark(1, cells) : mark(1, 1));
        QCOMPARE(strip(1, 1, seed).layout().constFirst().size(), mark(1, 1));
        // A long bar without room for its third cell is a short one.
        QCOMPARE(strip(2, 1, seed).layout().constFirst().size(), kind < 0.34 ? mark(2, 1) : mark(1, 1));
        QCOMPARE(strip(1, 2, seed).layout().constFirst().size(), kind < 0.2 ? mark(1, 2) : mark(1, 1));
    }
}

void TestDotLayout::aBarStopsBeforeATakenCell()
{
    // In a square of four: the first mark is a dot, the second an upright bar over the right column, the third begins
    // below the dot, where a level bar has no room any more.
    int found = 0;
    for (quint32 seed = 0; seed < 5000; ++seed) {
        Mulberry32 draws(seed);
        draws.next();
        const double first = draws.next();
        draws.next();
        const double second = draws.next();
        draws.next();
        draws.next();
        const double third = draws.next();
        if (first < 0.34 || second >= 0.2 || third >= 0.34)
            continue;
        ++found;
        const Marks marks = strip(2, 2, seed).layout();
        QCOMPARE(marks, (Marks{QRectF(2, 2, 6, 6), QRectF(12, 2, 6, 16), QRectF(2, 12, 6, 6)}));
    }
    QVERIFY(found > 50);
}

void TestDotLayout::aBarEntersACellAtTheMarginButNoneWithin()
{
    int level = 0;
    int upright = 0;
    for (quint32 seed = 0; seed < 2000; ++seed) {
        Mulberry32 draws(seed);
        draws.next();
        const double kind = draws.next();
        // The second cell's centre is 10 points from the disc.
        Field across{{20, 10}, 10, seed, 1, 0, 10, {{75, 5, 0, 50}}};
        QCOMPARE(across.layout().constFirst().size(), kind < 0.34 ? mark(2, 1) : mark(1, 1));
        level += kind < 0.34;
        across.calm[0].r = 50.001;
        QCOMPARE(across.layout().constFirst().size(), mark(1, 1));
        Field down{{10, 20}, 10, seed, 1, 0, 10, {{5, 75, 0, 50}}};
        QCOMPARE(down.layout().constFirst().size(), kind < 0.2 ? mark(1, 2) : mark(1, 1));
        upright += kind < 0.2;
        down.calm[0].r = 50.001;
        QCOMPARE(down.layout().constFirst().size(), mark(1, 1));
    }
    QVERIFY(level > 500 && upright > 300);
}

void TestDotLayout::marksComeRowByRow()
{
    const Field field = loudScreen(5);
    std::pair before(-1, -1);
    for (const QRectF &mark : field.layout()) {
        const auto here = field.cells(mark).constFirst();
        QVERIFY(here > before);
        before = here;
    }
}

void TestDotLayout::aZoneOverEverythingLeavesNothing()
{
    Field field;
    field.margin = 0;
    field.calm = {{100, 100, 0, 150}};
    QCOMPARE(field.layout(), Marks());
}

void TestDotLayout::cellsWithinAMarginConsumeNoDraws()
{
    // However many rows lie within the zone, the open ones below it look the same.
    Field plain{{200, 60}, 10, 3, 0.7, 1e-9, 2};
    const Marks expected = plain.layout();
    for (const int covered : {1, 2, 7}) {
        Field field = plain;
        field.size.rheight() += covered * 10;
        field.calm = {{100, 0, 500, covered * 10 - 0.5}};
        Marks moved;
        for (const QRectF &mark : field.layout())
            moved.append(mark.translated(0, -covered * 10));
        QCOMPARE(moved, expected);
    }
}

void TestDotLayout::everyFieldKeepsTheRules()
{
    std::mt19937 random(20);
    const auto between = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    qsizetype count = 0;
    for (int round = 0; round < 300; ++round) {
        Field field{{between(0, 600), between(0, 500)},
                    between(4, 40),
                    quint32(random()),
                    between(0, 1),
                    between(0, 100),
                    between(0, 20)};
        for (int zone = round % 5; zone > 0; --zone)
            field.calm.append({between(-50, 650), between(-50, 550), between(0, 120), between(0, 90)});
        std::set<std::pair<int, int>> taken;
        const Marks marks = field.layout();
        for (const QRectF &mark : marks) {
            QVERIFY(std::min(mark.width(), mark.height()) == 0.6 * field.cell);
            const auto cells = field.cells(mark);
            QVERIFY(cells.size() <= 3);
            for (const auto &[row, column] : cells) {
                QVERIFY(row >= 0 && row < field.rows() && column >= 0 && column < field.columns());
                QVERIFY(taken.insert({row, column}).second);
                QVERIFY(field.distance(field.center(row, column)) >= field.margin);
            }
        }
        QCOMPARE(field.layout(), marks);
        count += marks.size();
    }
    QVERIFY(count > 10000);
}

static int runDotLayout(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 4 && qstrcmp(argv[1], "--layout") == 0)
        return int(DotLayout::layout({atof(argv[2]), 100}, atof(argv[3]), 1, 0.7, 50, 2, {}).size());
    return runTest<TestDotLayout>(argc, argv);
}

CORVANE_TEST_MAIN(runDotLayout)

#include "tst_dotlayout.moc"
