#include "FakePlatform.h"
#include "GuideVisibility.h"
#include "GuideWindowController.h"
#include "Hotkey.h"
#include "Shared.h"
#include "TestProgram.h"
#include "ViewEngine.h"

#include <QGuiApplication>
#include <QRegularExpression>

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
    void escapeEndsTheOnboardingOnEveryStep_data();
    void escapeEndsTheOnboardingOnEveryStep();
    void everyOtherKeyPassesThrough();
    void closingTheWindowEndsTheOnboarding();
    void closingAndEscapeEndItOnce();
    void theFlowEndsItToo();
    void falseHidesTheWindowAndEverythingElseShowsIt_data();
    void falseHidesTheWindowAndEverythingElseShowsIt();
    void afterTheEndNothingBringsItBack();

private:
    void showGuide();
    EBWindow &window() { return m_guide->window(); }

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<ViewEngine> m_engine;
    std::unique_ptr<GuideWindowController> m_guide;
    int m_finished = 0;
};

void TestGuideWindow::init()
{
    QTest::failOnWarning(QRegularExpression("^(?!This plugin does not support)"));
    m_platform = &FakePlatform::install();
    m_finished = 0;
    m_engine = std::make_unique<ViewEngine>();
    m_guide = std::make_unique<GuideWindowController>(*m_engine, OnboardingFlow::Run::first, [this] { ++m_finished; });
}

void TestGuideWindow::cleanup()
{
    m_guide.reset();
    m_engine.reset();
}

void TestGuideWindow::showGuide()
{
    window().makeKeyAndOrderFront();
    QVERIFY(QTest::qWaitForWindowExposed(&window()));
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
    const QPoint insideTheDisc(29, 18);
    const QPoint besideIt(29, 12);
    const QImage picture = window().grabWindow();
    const qreal scale = picture.devicePixelRatio();
    QVERIFY(picture.pixelColor(besideIt * scale).saturation() > 100);
    QVERIFY(picture.pixelColor(insideTheDisc * scale).saturation() < 20);
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
