#include "FakePlatform.h"
#include "Motion.h"
#include "TestProgram.h"

#include <QPointF>

#include <cmath>
#include <numbers>

class MotionTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_platform = &FakePlatform::install(); }

    void durationsAreMillisecondsAndNoneWithReducedMotion()
    {
        QCOMPARE(Motion::duration(0.15), 150);
        m_platform->look.setReduceMotion(true);
        QCOMPARE(Motion::duration(0.15), 0);
        m_platform->look.setReduceMotion(false);
        QCOMPARE(Motion::duration(0.15), 150);
    }

    void durationsThatAreNoneAreZero()
    {
        QCOMPARE(Motion::duration(-1), 0);
        QCOMPARE(Motion::duration(std::nan("")), 0);
        QCOMPARE(Motion::duration(INFINITY), 0);
    }

    void easeOutStartsFastAndEndsSlowly()
    {
        const QEasingCurve curve = Motion::easeOut();
        QCOMPARE(curve.valueForProgress(0), 0.0);
        QCOMPARE(curve.valueForProgress(1), 1.0);
        QVERIFY(curve.valueForProgress(0.1) > 0.1);
        QVERIFY(1 - curve.valueForProgress(0.9) < 0.05);
    }

    void easeInOutStartsAndEndsSlowlyAndIsSymmetrical()
    {
        const QEasingCurve curve = Motion::easeInOut();
        QCOMPARE(curve.valueForProgress(0), 0.0);
        QCOMPARE(curve.valueForProgress(1), 1.0);
        QVERIFY(curve.valueForProgress(0.1) < 0.05);
        QVERIFY(std::abs(curve.valueForProgress(0.5) - 0.5) < 0.001);
        QVERIFY(std::abs(curve.valueForProgress(0.8) + curve.valueForProgress(0.2) - 1) < 0.001);
    }

    void springFollowsTheDampedOscillator_data()
    {
        QTest::addColumn<qreal>("response");
        QTest::addColumn<qreal>("damping");
        QTest::newRow("the loud screen's") << 0.5 << 0.8;
        QTest::newRow("bouncy") << 0.4 << 0.3;
        QTest::newRow("the preview's") << 0.3 << 0.8;
        QTest::newRow("the practice's") << 0.45 << 0.78;
        QTest::newRow("almost critical") << 0.5 << 0.9999;
        QTest::newRow("critical") << 0.5 << 1.0;
        QTest::newRow("overdamped") << 0.5 << 1.3;
    }
    void springFollowsTheDampedOscillator()
    {
        QFETCH(const qreal, response);
        QFETCH(const qreal, damping);
        const MotionSpring spring = Motion::spring(response, damping);
        qreal worst = 0;
        for (int i = 0; i <= 1000; ++i) {
            const qreal progress = i / 1000.0;
            const qreal exact = oscillator(response, damping, progress * spring.seconds);
            worst = std::max(worst, std::abs(spring.easing.valueForProgress(progress) - exact));
        }
        QVERIFY2(worst < 0.005, qPrintable(QString::number(worst)));
    }

    // With more the curve writes beyond the ten pieces that Qt has room for.
    void springHasTenPiecesAtMost_data() { springFollowsTheDampedOscillator_data(); }
    void springHasTenPiecesAtMost()
    {
        QFETCH(const qreal, response);
        QFETCH(const qreal, damping);
        // Three points a piece.
        QVERIFY(Motion::spring(response, damping).easing.toCubicSpline().size() <= 10 * 3);
    }

    void springStaysWithinAThousandthOnceItHasCome()
    {
        const MotionSpring spring = Motion::spring(0.5, 0.8);
        for (qreal time = spring.seconds; time < 3; time += 0.01)
            QVERIFY(std::abs(oscillator(0.5, 0.8, time) - 1) <= 0.001);
        QVERIFY(spring.seconds < 1);
        QCOMPARE(spring.easing.valueForProgress(1), 1.0);
    }

    void springWithoutResponseIsAtRest()
    {
        QCOMPARE(Motion::spring(0, 0.8).seconds, 0.0);
        QCOMPARE(Motion::spring(-1, 0.8).seconds, 0.0);
        QCOMPARE(Motion::spring(std::nan(""), 0.8).seconds, 0.0);
    }

private:
    /// The position at `time` of an oscillator let go at 0, at rest at 1, from the textbook.
    static qreal oscillator(qreal response, qreal damping, qreal time)
    {
        const qreal omega = 2 * std::numbers::pi / response;
        if (damping == 1.0)
            return 1 - (1 + omega * time) * std::exp(-omega * time);
        if (damping < 1) {
            const qreal omegaD = omega * std::sqrt(1 - damping * damping);
            return 1
                - std::exp(-damping * omega * time)
                * (std::cos(omegaD * time) + damping * omega / omegaD * std::sin(omegaD * time));
        }
        const qreal root = std::sqrt(damping * damping - 1);
        const qreal slow = -omega * (damping - root);
        const qreal fast = -omega * (damping + root);
        return 1 - (slow * std::exp(fast * time) - fast * std::exp(slow * time)) / (slow - fast);
    }

    FakePlatform *m_platform = nullptr;
};

CORVANE_TEST(MotionTest, runInCore)

#include "tst_motion.moc"
