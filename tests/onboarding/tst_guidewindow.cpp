#include "Accessibility.h"
#include "EBKit.h"
#include "FakePlatform.h"
#include "GuideVisibility.h"
#include "GuideWindowController.h"
#include "Hotkey.h"
#include "NamedItems.h"
#include "Shared.h"
#include "TestProgram.h"
#include "ViewEngine.h"
#include "Views.h"

#include <QGuiApplication>
#include <QSignalSpy>

#include <memory>

class TestGuideWindow : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theWindowHasTheSizeAndTheTitleOfTheGuide();
    void theWindowIsCentredAndNotShownYet();
    void theWindowCannotBeMiniaturizedOrResized();
    void theCloseButtonStandsOutOnALoudScreen();
    void theGroundIsPaper();
    void whereTextRunsTheOtherWayEveryScreenIsMirrored_data();
    void whereTextRunsTheOtherWayEveryScreenIsMirrored();
    void theButtonsStandInLineWithTheTextsAndClearOfThem_data();
    void theButtonsStandInLineWithTheTextsAndClearOfThem();
    void theCloseButtonHasARingThatIsSeen_data();
    void theCloseButtonHasARingThatIsSeen();
    void escapeEndsTheOnboardingOnEveryStep_data();
    void escapeEndsTheOnboardingOnEveryStep();
    void everyOtherKeyPassesThrough();
    void onThePracticeNoShortcutClosesOrQuits_data();
    void onThePracticeNoShortcutClosesOrQuits();
    void onEveryOtherStepTheyDo_data();
    void onEveryOtherStepTheyDo();
    void closingTheWindowEndsTheOnboarding();
    void closingAndEscapeEndItOnce();
    void theFlowEndsItToo();
    void falseHidesTheWindowAndEverythingElseShowsIt_data();
    void falseHidesTheWindowAndEverythingElseShowsIt();
    void afterTheEndNothingBringsItBack();

private:
    void make();
    void showGuide();
    /// Where the first item of that accessible name stands; empty when there is none.
    QRectF frame(const QString &name);
    /// Whether the window's shortcut with that key has ended the guide, or asks the process to end.
    bool closes(Qt::Key key);
    EBWindow &window() { return m_guide->window(); }

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<ViewEngine> m_engine;
    std::unique_ptr<GuideWindowController> m_guide;
    int m_finished = 0;
};

void TestGuideWindow::init()
{
    m_platform = &FakePlatform::install();
    installKitAccessibility();
    QAccessible::setActive(true);
    m_platform->look.setReduceMotion(true);
    make();
}

void TestGuideWindow::make()
{
    m_finished = 0;
    m_guide.reset();
    m_engine = std::make_unique<ViewEngine>();
    m_guide = std::make_unique<GuideWindowController>(*m_engine, OnboardingFlow::Run::first, [this] { ++m_finished; });
}

void TestGuideWindow::cleanup()
{
    m_guide.reset();
    m_engine.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

QRectF TestGuideWindow::frame(const QString &name)
{
    const QQuickItem *item = NamedItems::all(window().contentItem(), name).value(0);
    return item ? item->mapRectToScene(item->boundingRect()) : QRectF();
}

bool TestGuideWindow::closes(Qt::Key key)
{
    const QSignalSpy quits(m_engine.get(), &QQmlEngine::quit);
    QTest::keyClick(&window(), key, Qt::ControlModifier);
    return m_finished > 0 || !quits.isEmpty();
}

void TestGuideWindow::showGuide()
{
    window().makeKeyAndOrderFront();
    REQUIRE(QTest::qWaitForWindowActive(&window()));
}

void TestGuideWindow::theWindowHasTheSizeAndTheTitleOfTheGuide()
{
    QCOMPARE(window().size(), QSize(560, 388));
    QCOMPARE(window().title(), "Welcome to Corvane");
}

void TestGuideWindow::theWindowIsCentredAndNotShownYet()
{
    QVERIFY(!window().isVisible());
    QCOMPARE(window().geometry().center(), window().screen()->availableGeometry().center());
}

void TestGuideWindow::theWindowCannotBeMiniaturizedOrResized()
{
    QVERIFY(!window().miniaturizeButtonEnabled());
    QCOMPARE(window().minimumSize(), QSize(560, 388));
    QCOMPARE(window().maximumSize(), QSize(560, 388));
}

void TestGuideWindow::theCloseButtonStandsOutOnALoudScreen()
{
    showGuide();
    const QPoint insideTheDisc(35, 14);
    const QPoint besideIt(35, 9);
    const QImage picture = window().grabWindow();
    const qreal scale = picture.devicePixelRatio();
    QVERIFY(picture.pixelColor(besideIt * scale).saturation() > 100);
    QVERIFY(picture.pixelColor(insideTheDisc * scale).saturation() < 20);
}

void TestGuideWindow::theGroundIsPaper()
{
    for (const AppearanceName name : {AppearanceName::Aqua, AppearanceName::DarkAqua}) {
        m_platform->look.setName(name);
        QCOMPARE(window().color(), EBKit::paper().current());
    }
}

void TestGuideWindow::whereTextRunsTheOtherWayEveryScreenIsMirrored_data()
{
    QTest::addColumn<OnboardingStep>("step");
    QTest::addColumn<QString>("name");
    QTest::newRow("welcome") << OnboardingStep::welcome << "Get started";
    QTest::newRow("practice") << OnboardingStep::tryIt << "Browser window, Start page";
    QTest::newRow("its reset button") << OnboardingStep::tryIt << "Reset windows";
    QTest::newRow("permission") << OnboardingStep::access << "Open System Settings";
    QTest::newRow("its list") << OnboardingStep::access << "Step 1 of 5, Welcome, done";
    QTest::newRow("look") << OnboardingStep::customize << "Looks Good";
    QTest::newRow("its tiles") << OnboardingStep::customize << "Classic look";
    QTest::newRow("end") << OnboardingStep::done << "Open Mission Control";
}

void TestGuideWindow::whereTextRunsTheOtherWayEveryScreenIsMirrored()
{
    QFETCH(OnboardingStep, step);
    QFETCH(QString, name);
    showGuide();
    m_guide->flow().go(step);
    window().grabWindow();
    const QRectF usual = frame(name);
    QVERIFY(!usual.isEmpty());
    const QRectF usualClose = frame("Close");
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    make();
    showGuide();
    m_guide->flow().go(step);
    window().grabWindow();
    const auto mirrored = [](const QRectF &rect) {
        return QRectF(560 - rect.right(), rect.top(), rect.width(), rect.height());
    };
    QCOMPARE(frame(name), mirrored(usual));
    QCOMPARE(frame("Close"), mirrored(usualClose));
}

void TestGuideWindow::theButtonsStandInLineWithTheTextsAndClearOfThem_data()
{
    QTest::addColumn<OnboardingStep>("step");
    QTest::newRow("the practice") << OnboardingStep::tryIt;
    QTest::newRow("the look") << OnboardingStep::customize;
}

void TestGuideWindow::theButtonsStandInLineWithTheTextsAndClearOfThem()
{
    QFETCH(OnboardingStep, step);
    showGuide();
    m_guide->flow().go(step);
    window().grabWindow();
    const QRectF close = frame("Close");
    const QRectF text = frame(m_guide->flow().kicker(OnboardingSteps::caseName(step)));
    QVERIFY(!close.isEmpty() && !text.isEmpty());
    QCOMPARE(close.left(), text.left());
    QVERIFY2(text.top() - close.bottom() >= 8, qPrintable(QString::number(text.top() - close.bottom())));
}

void TestGuideWindow::theCloseButtonHasARingThatIsSeen_data()
{
    QTest::addColumn<OnboardingStep>("step");
    QTest::addColumn<bool>("loud");
    QTest::newRow("welcome") << OnboardingStep::welcome << true;
    QTest::newRow("tryIt") << OnboardingStep::tryIt << false;
    QTest::newRow("access") << OnboardingStep::access << true;
    QTest::newRow("customize") << OnboardingStep::customize << false;
    QTest::newRow("done") << OnboardingStep::done << true;
}

void TestGuideWindow::theCloseButtonHasARingThatIsSeen()
{
    QFETCH(const OnboardingStep, step);
    QFETCH(const bool, loud);
    m_guide->flow().go(step);
    showGuide();
    QQuickItem *close = NamedItems::first(window().contentItem(), "Close", QAccessible::Button);
    QVERIFY(close);
    close->forceActiveFocus(Qt::TabFocusReason);
    // On its own colour the product's ring would not be seen.
    const QString ring = (loud ? EBKit::onLoudIndigo() : EBKit::indigo()).current().name();
    QTRY_COMPARE(Views::pixel(window(), close, {7, -3}).name(), ring);
    QVERIFY(Views::pixel(window(), close, {7, -6}).name() != ring);
}

void TestGuideWindow::escapeEndsTheOnboardingOnEveryStep_data()
{
    QTest::addColumn<OnboardingStep>("step");
    for (const OnboardingStep step : OnboardingSteps::allCases)
        QTest::newRow(qPrintable(OnboardingSteps::caseName(step))) << step;
}

void TestGuideWindow::escapeEndsTheOnboardingOnEveryStep()
{
    QFETCH(OnboardingStep, step);
    showGuide();
    m_guide->flow().go(step);
    QVERIFY(m_platform->pressKey({53, 0, false}));
    QVERIFY(!window().isVisible());
    QCOMPARE(m_finished, 1);
    QVERIFY(m_guide->finished());
    QCOMPARE(m_platform->notifications.posts.size(), 0);
    QVERIFY(!m_platform->pressKey({53, 0, false}));
}

void TestGuideWindow::everyOtherKeyPassesThrough()
{
    showGuide();
    QVERIFY(!m_platform->pressKey({13, Hotkeys::commandFlag, false}));
    QVERIFY(!m_platform->pressKey({36, 0, false}));
    QVERIFY(window().isVisible());
    QCOMPARE(m_finished, 0);
}

void TestGuideWindow::onThePracticeNoShortcutClosesOrQuits_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Ctrl+W") << Qt::Key_W;
    QTest::newRow("Ctrl+Q") << Qt::Key_Q;
}

void TestGuideWindow::onThePracticeNoShortcutClosesOrQuits()
{
    QFETCH(Qt::Key, key);
    showGuide();
    m_guide->flow().go(OnboardingStep::tryIt);
    // Typed as letters, which in other layouts lie where no shortcut of the practice does.
    QVERIFY(!closes(key));
    QVERIFY(window().isVisible());
    m_guide->flow().next();
    QVERIFY(closes(key));
}

void TestGuideWindow::onEveryOtherStepTheyDo_data()
{
    QTest::addColumn<OnboardingStep>("step");
    QTest::addColumn<Qt::Key>("key");
    for (const OnboardingStep step : OnboardingSteps::allCases) {
        if (step == OnboardingStep::tryIt)
            continue;
        QTest::newRow(qPrintable("Ctrl+W on " + OnboardingSteps::caseName(step))) << step << Qt::Key_W;
        QTest::newRow(qPrintable("Ctrl+Q on " + OnboardingSteps::caseName(step))) << step << Qt::Key_Q;
    }
}

void TestGuideWindow::onEveryOtherStepTheyDo()
{
    QFETCH(OnboardingStep, step);
    QFETCH(Qt::Key, key);
    showGuide();
    m_guide->flow().go(step);
    QVERIFY(closes(key));
}

void TestGuideWindow::closingTheWindowEndsTheOnboarding()
{
    showGuide();
    window().close();
    QCOMPARE(m_finished, 1);
    QVERIFY(!window().isVisible());
}

void TestGuideWindow::closingAndEscapeEndItOnce()
{
    showGuide();
    window().close();
    m_platform->pressKey({53, 0, false});
    m_guide->finish();
    QCOMPARE(m_finished, 1);
}

void TestGuideWindow::theFlowEndsItToo()
{
    showGuide();
    m_guide->flow().skipSetup();
    QCOMPARE(m_finished, 1);
    QVERIFY(!window().isVisible());
}

void TestGuideWindow::falseHidesTheWindowAndEverythingElseShowsIt_data()
{
    QTest::addColumn<QVariant>("object");
    QTest::addColumn<bool>("visible");
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("nothing") << QVariant() << true;
    QTest::newRow("a text") << QVariant("false") << true;
    QTest::newRow("a number") << QVariant(0) << true;
}

void TestGuideWindow::falseHidesTheWindowAndEverythingElseShowsIt()
{
    QFETCH(QVariant, object);
    QFETCH(bool, visible);
    for (const bool shown : {true, false}) {
        window().setVisible(shown);
        NotificationCenter::defaultCenter().post("cv.guide.visible", object);
        QCOMPARE(window().isVisible(), visible);
        NotificationCenter::defaultCenter().post("cv.guide.other", !visible);
        QCOMPARE(window().isVisible(), visible);
    }
    QCOMPARE(m_finished, 0);
}

void TestGuideWindow::afterTheEndNothingBringsItBack()
{
    showGuide();
    m_guide->finish();
    GuideVisibility::post(true);
    QVERIFY(!window().isVisible());
    GuideVisibility::post(false);
    QVERIFY(!window().isVisible());
    QCOMPARE(m_finished, 1);
}

CORVANE_TEST(TestGuideWindow, runInGui)
#include "tst_guidewindow.moc"
