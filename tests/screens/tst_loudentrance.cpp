#include "AnimationClock.h"
#include "ScreenView.h"
#include "Spring.h"
#include "TestProgram.h"

namespace {

const QString screen = QStringLiteral("EBLoudScreen { app: 'corvane'; copy: 'Copy'; button: 'Begin'; hero: 'Hero'; "
                                      "seed: 21; counter: 'Count' }");
constexpr QSize size(560, 388);

}

/// How a loud screen comes in.
class TestLoudEntrance : public QObject {
    Q_OBJECT

private slots:
    void beforeItIsDisplayedNothingHasAppeared();
    void oneSpringDrivesEverything();
    void withReducedMotionItEasesOutInAFifthOfASecond();
    void itEntersOnceOnly();
    void aScreenInANewWindowEntersAnew();
    void aScreenMadeInAShownWindowEntersToo();
    void aScreenThatHasAppearedStandsStill();

private:
    /// Lets what is about to move begin, with no time gone by.
    static void begin(AnimationClock &clock) { clock.advance(0); }

    /// The three things that move agree on how much of the entrance is over; 0 to 1, and a little beyond.
    static void compareProgress(const ScreenView &view, qreal expected, qreal tolerance = 0.006);
};

void TestLoudEntrance::compareProgress(const ScreenView &view, qreal expected, qreal tolerance)
{
    const auto isNear = [tolerance](qreal actual, qreal wanted) { return std::abs(actual - wanted) <= tolerance; };
    const QQuickItem *dots = view.typed("DotField").constFirst();
    const QQuickItem *mark = view.typed("Mark").constFirst();
    const QQuickItem *word = view.textItem(QStringLiteral("Hero"));
    const qreal opacity = std::clamp(expected, 0.0, 1.0);
    QVERIFY2(isNear(dots->opacity(), opacity), qPrintable(QString::number(dots->opacity())));
    QVERIFY(isNear(word->opacity(), opacity));
    QVERIFY(isNear(mark->scale(), 0.92 + 0.08 * expected));
    // The top left corner stays where it is.
    QVERIFY(isNear(mark->mapToScene({0, 0}).x(), 24));
    QVERIFY(isNear(mark->mapToScene({0, 0}).y(), 52));
    QCOMPARE(word->x(), -14.0);
    const qreal rise = word->y() + word->height() - size.height();
    QVERIFY2(std::abs(rise - (45 - 24 * expected)) <= 24 * tolerance, qPrintable(QString::number(rise)));
}

void TestLoudEntrance::beforeItIsDisplayedNothingHasAppeared()
{
    AnimationClock clock;
    ScreenView view(screen, size);
    QCoreApplication::processEvents();
    QCOMPARE(view.root().property("appeared").toBool(), false);
    compareProgress(view, 0, 0);
    view.show();
    QCOMPARE(view.root().property("appeared").toBool(), true);
    compareProgress(view, 0, 0);
    // What is read and pressed is there at once.
    QVERIFY(view.textItem(QStringLiteral("COUNT")));
    QCOMPARE(view.textItem(QStringLiteral("Copy"))->opacity(), 1.0);
}

void TestLoudEntrance::oneSpringDrivesEverything()
{
    AnimationClock clock;
    ScreenView view(screen, size);
    view.show();
    begin(clock);
    qreal furthest = 0;
    for (int time = 20; time <= 600; time += 20) {
        clock.advance(20);
        compareProgress(view, sprung(0.5, 0.8, time / 1000.0));
        furthest = std::max(furthest, view.root().property("entrance").toReal());
    }
    // A damping of 0.8 swings a little too far.
    QVERIFY2(furthest > 1.01 && furthest < 1.02, qPrintable(QString::number(furthest)));
    clock.advance(1000);
    compareProgress(view, 1, 0);
}

void TestLoudEntrance::withReducedMotionItEasesOutInAFifthOfASecond()
{
    AnimationClock clock;
    ScreenView view(screen, size);
    view.platform.look.setReduceMotion(true);
    view.show();
    begin(clock);
    compareProgress(view, 0, 0);
    clock.advance(100);
    const qreal half = view.root().property("entrance").toReal();
    QVERIFY2(half > 0.65 && half < 0.75, qPrintable(QString::number(half)));
    compareProgress(view, half);
    clock.advance(99);
    QVERIFY(view.root().property("entrance").toReal() < 1);
    clock.advance(1);
    compareProgress(view, 1, 0);
}

void TestLoudEntrance::itEntersOnceOnly()
{
    AnimationClock clock;
    ScreenView view(screen, size);
    view.show();
    clock.advance(3000);
    compareProgress(view, 1, 0);
    view.window().hide();
    QCoreApplication::processEvents();
    QCOMPARE(view.root().property("appeared").toBool(), true);
    view.show();
    compareProgress(view, 1, 0);
}

void TestLoudEntrance::aScreenInANewWindowEntersAnew()
{
    AnimationClock clock;
    {
        ScreenView first(screen, size);
        first.show();
        clock.advance(3000);
    }
    ScreenView second(screen, size);
    QCOMPARE(second.root().property("appeared").toBool(), false);
    second.show();
    compareProgress(second, 0, 0);
}

void TestLoudEntrance::aScreenMadeInAShownWindowEntersToo()
{
    AnimationClock clock;
    ScreenView view(QStringLiteral("Item { property alias on: loader.active; Loader { id: loader; active: false; "
                                   "anchors.fill: parent; sourceComponent: Component { ")
                        + screen + QStringLiteral(" } } }"),
                    size);
    view.show();
    view.root().setProperty("on", true);
    begin(clock);
    compareProgress(view, 0, 0);
    clock.advance(100);
    compareProgress(view, sprung(0.5, 0.8, 0.1));
    clock.advance(3000);
    compareProgress(view, 1, 0);
}

void TestLoudEntrance::aScreenThatHasAppearedStandsStill()
{
    AnimationClock clock;
    QString settled = screen;
    ScreenView view(settled.replace(QStringLiteral("app:"), QStringLiteral("appeared: true; app:")), size);
    compareProgress(view, 1, 0);
    view.show();
    compareProgress(view, 1, 0);
}

CORVANE_TEST(TestLoudEntrance, runInGui)
#include "tst_loudentrance.moc"
