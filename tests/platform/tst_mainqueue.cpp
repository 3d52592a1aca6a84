#include "ServiceTest.h"

/// What actions that wait for their time promise.
class MainQueueTest : public ServiceTest {
    Q_OBJECT
public:
    using ServiceTest::ServiceTest;

private slots:
    void anActionRunsOnceAndNeverAtOnce();
    void anActionOfAContextThatIsGoneIsDropped();
    void actionsRunInTheOrderOfTheirTimes();
    void aRepetitionRunsUntilItIsLetGo();
    void aRepetitionCanLetGoOfItself();
    void aRepetitionEndsWithItsContext();

private:
    static MainQueue &queue() { return platform().mainQueue(); }
};

void MainQueueTest::anActionRunsOnceAndNeverAtOnce()
{
    int runs = 0;
    for (const double seconds : {0.0, -1.0, qQNaN(), 0.001})
        queue().after(seconds, this, [&] { ++runs; });
    QCOMPARE(runs, 0);
    VERIFY_SOON(runs == 4);
    bool later = false;
    queue().after(0.01, this, [&] { later = true; });
    VERIFY_SOON(later);
    QCOMPARE(runs, 4);
}

void MainQueueTest::anActionOfAContextThatIsGoneIsDropped()
{
    auto context = std::make_unique<QObject>();
    bool dropped = true;
    bool later = false;
    queue().after(0.001, context.get(), [&] { dropped = false; });
    queue().after(0.01, this, [&] { later = true; });
    context.reset();
    VERIFY_SOON(later);
    QVERIFY(dropped);
}

void MainQueueTest::actionsRunInTheOrderOfTheirTimes()
{
    QString order;
    queue().after(0.03, this, [&] { order += 'c'; });
    queue().after(0.001, this, [&] { order += 'a'; });
    queue().after(0.015, this, [&] { order += 'b'; });
    VERIFY_SOON(order.size() == 3);
    QCOMPARE(order, "abc");
}

void MainQueueTest::aRepetitionRunsUntilItIsLetGo()
{
    int runs = 0;
    auto repetition = queue().every(0.001, this, [&] { ++runs; });
    QCOMPARE(runs, 0);
    VERIFY_SOON(runs >= 3);
    repetition.reset();
    runs = 0;
    bool later = false;
    queue().after(0.01, this, [&] { later = true; });
    VERIFY_SOON(later);
    QCOMPARE(runs, 0);
}

void MainQueueTest::aRepetitionCanLetGoOfItself()
{
    int runs = 0;
    std::unique_ptr<MainQueue::Repetition> repetition;
    repetition = queue().every(0.001, this, [&] {
        ++runs;
        repetition.reset();
    });
    bool later = false;
    queue().after(0.02, this, [&] { later = true; });
    VERIFY_SOON(later);
    QCOMPARE(runs, 1);
}

void MainQueueTest::aRepetitionEndsWithItsContext()
{
    auto context = std::make_unique<QObject>();
    int runs = 0;
    auto repetition = queue().every(0.001, context.get(), [&] { ++runs; });
    VERIFY_SOON(runs > 0);
    context.reset();
    runs = 0;
    bool later = false;
    queue().after(0.01, this, [&] { later = true; });
    VERIFY_SOON(later);
    QCOMPARE(runs, 0);
    repetition.reset();
}

CORVANE_TEST(MainQueueTest, runOnDesktop)

#include "tst_mainqueue.moc"
