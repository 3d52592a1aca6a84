#include "FakeMainQueue.h"
#include "TestProgram.h"

#include <QRegularExpression>

#include <memory>

/// The queue on the event loop, and the one whose time a test moves: both keep the same promises.
class TestMainQueue : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void anActionRunsOnceAndNeverAtOnce();
    void anActionOfAContextThatIsGoneIsDropped();
    void actionsRunInTheOrderOfTheirTimes();
    void aRepetitionRunsUntilItIsLetGo();
    void aRepetitionCanLetGoOfItself();
    void aRepetitionEndsWithItsContext();

    void standingTimeStandsStill();
    void passingTimeRunsWhatFallsDueAtItsMoment();
    void whatWaitsIsCounted();
};

void TestMainQueue::anActionRunsOnceAndNeverAtOnce()
{
    MainQueue queue;
    int runs = 0;
    for (const double seconds : {0.0, -1.0, qQNaN(), 0.001})
        queue.after(seconds, this, [&] { ++runs; });
    QCOMPARE(runs, 0);
    QTRY_COMPARE(runs, 4);
    bool later = false;
    queue.after(0.01, this, [&] { later = true; });
    QTRY_VERIFY(later);
    QCOMPARE(runs, 4);
}

void TestMainQueue::anActionOfAContextThatIsGoneIsDropped()
{
    MainQueue queue;
    auto context = std::make_unique<QObject>();
    bool dropped = true;
    bool later = false;
    queue.after(0.001, context.get(), [&] { dropped = false; });
    queue.after(0.01, this, [&] { later = true; });
    context.reset();
    QTRY_VERIFY(later);
    QVERIFY(dropped);
}

void TestMainQueue::actionsRunInTheOrderOfTheirTimes()
{
    MainQueue queue;
    QString order;
    queue.after(0.03, this, [&] { order += 'c'; });
    queue.after(0.001, this, [&] { order += 'a'; });
    queue.after(0.015, this, [&] { order += 'b'; });
    QTRY_COMPARE(order, "abc");
}

void TestMainQueue::aRepetitionRunsUntilItIsLetGo()
{
    MainQueue queue;
    int runs = 0;
    auto repetition = queue.every(0.001, this, [&] { ++runs; });
    QCOMPARE(runs, 0);
    QTRY_VERIFY(runs >= 3);
    repetition.reset();
    runs = 0;
    bool later = false;
    queue.after(0.01, this, [&] { later = true; });
    QTRY_VERIFY(later);
    QCOMPARE(runs, 0);
}

void TestMainQueue::aRepetitionCanLetGoOfItself()
{
    MainQueue queue;
    int runs = 0;
    std::unique_ptr<MainQueue::Repetition> repetition;
    repetition = queue.every(0.001, this, [&] {
        ++runs;
        repetition.reset();
    });
    bool later = false;
    queue.after(0.02, this, [&] { later = true; });
    QTRY_VERIFY(later);
    QCOMPARE(runs, 1);
}

void TestMainQueue::aRepetitionEndsWithItsContext()
{
    MainQueue queue;
    auto context = std::make_unique<QObject>();
    int runs = 0;
    auto repetition = queue.every(0.001, context.get(), [&] { ++runs; });
    QTRY_VERIFY(runs > 0);
    context.reset();
    runs = 0;
    bool later = false;
    queue.after(0.01, this, [&] { later = true; });
    QTRY_VERIFY(later);
    QCOMPARE(runs, 0);
    repetition.reset();
}

void TestMainQueue::standingTimeStandsStill()
{
    FakeMainQueue queue;
    int runs = 0;
    queue.after(0, this, [&] { ++runs; });
    queue.after(0.45, this, [&] { ++runs; });
    QCoreApplication::processEvents();
    QCOMPARE(runs, 0);
    queue.advance(0);
    QCOMPARE(runs, 1);
    queue.advance(0.449);
    QCOMPARE(runs, 1);
    queue.advance(0.001);
    QCOMPARE(runs, 2);
}

void TestMainQueue::passingTimeRunsWhatFallsDueAtItsMoment()
{
    FakeMainQueue queue;
    QString order;
    auto repetition = queue.every(0.25, this, [&] { order += 'r'; });
    queue.after(0.3, this, [&] {
        order += 'a';
        // 0.4 from the beginning, so before the repetition runs again.
        queue.after(0.1, this, [&] { order += 'b'; });
    });
    queue.after(0.6, this, [&] { repetition.reset(); });
    queue.advance(2);
    QCOMPARE(order, "rabr");
}

void TestMainQueue::whatWaitsIsCounted()
{
    FakeMainQueue queue;
    auto context = std::make_unique<QObject>();
    queue.after(1, context.get(), [] {});
    auto repetition = queue.every(1, this, [] {});
    QCOMPARE(queue.waiting(), 2);
    context.reset();
    QCOMPARE(queue.waiting(), 1);
    queue.advance(5);
    QCOMPARE(queue.waiting(), 1);
    repetition.reset();
    QCOMPARE(queue.waiting(), 0);
}

CORVANE_TEST(TestMainQueue, runInCore)
#include "tst_mainqueue.moc"
