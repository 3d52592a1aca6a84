#include "EBSettingsWindowController.h"
#include "FakePlatform.h"
#include "SettingsModel.h"
#include "SettingsPages.h"
#include "TestProgram.h"
#include "ViewEngine.h"
#include "Views.h"

#include <QQuickItem>
#include <QScreen>
#include <QSignalSpy>

#include <memory>

class TestSettingsWindow : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theWindowIsOfFixedWidthWithItsTitleAndButtons();
    void theFirstFitIsNotAnimatedAndCentersTheWindow();
    void theWindowIsAsHighAsItsPageBeforeItIsShown();
    void aReportWithoutHeightChangesNothing_data();
    void aReportWithoutHeightChangesNothing();
    void aChangeOfHalfAPointOrLessChangesNothing_data();
    void aChangeOfHalfAPointOrLessChangesNothing();
    void aChangeOfMoreThanHalfAPointCounts_data();
    void aChangeOfMoreThanHalfAPointCounts();
    void aPartOfAPointIsRoundedUp();
    void theReportedWidthDoesNotCount();
    void aLaterFitIsAnimatedAndKeepsTheTopLeftCorner();
    void withReducedMotionAFitIsNeverAnimated();
    void aFitOfAWindowThatIsNotShownIsNotAnimated();
    void aNewHeightDuringTheAnimationWins();
    void theWindowIsNeverHigherThanTheScreen();
    void theBackgroundFollowsTheAppearance();
    void theViewFillsTheWindow();

private:
    void make(const std::optional<QString> &initial = {});
    void show();
    EBWindow &window() { return *m_controller->window(); }

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<ViewEngine> m_engine;
    std::unique_ptr<EBSettingsWindowController> m_controller;
};

void TestSettingsWindow::init()
{
    m_platform = &FakePlatform::install();
    m_engine = std::make_unique<ViewEngine>();
    make();
}

void TestSettingsWindow::cleanup()
{
    m_controller.reset();
    m_engine.reset();
}

void TestSettingsWindow::make(const std::optional<QString> &initial)
{
    m_controller =
        std::make_unique<EBSettingsWindowController>(*m_engine, EBApp::corvane, "1.4", SettingsPages::make(), initial);
}

void TestSettingsWindow::show()
{
    m_controller->showWindow();
    REQUIRE(QTest::qWaitForWindowExposed(&window()));
}

void TestSettingsWindow::theWindowIsOfFixedWidthWithItsTitleAndButtons()
{
    QCOMPARE(window().title(), "Corvane Settings");
    QCOMPARE(window().width(), 620);
    QCOMPARE(window().minimumSize(), window().size());
    QCOMPARE(window().maximumSize(), window().size());
    QVERIFY(window().flags() & Qt::FramelessWindowHint);
    QVERIFY(window().miniaturizeButtonEnabled());
    QVERIFY(!window().isVisible());
}

void TestSettingsWindow::theFirstFitIsNotAnimatedAndCentersTheWindow()
{
    const QPoint middle = window().screen()->availableGeometry().center();
    const QPoint off = window().geometry().center() - middle;
    QVERIFY2(off.manhattanLength() <= 1, qPrintable(QString("%1, %2").arg(off.x()).arg(off.y())));
}

void TestSettingsWindow::theWindowIsAsHighAsItsPageBeforeItIsShown()
{
    const int before = window().height();
    QVERIFY(before > 200);
    show();
    QSignalSpy frames(&window(), &QQuickWindow::frameSwapped);
    window().update();
    QTRY_VERIFY(frames.count() > 0);
    QCOMPARE(window().height(), before);
}

void TestSettingsWindow::aReportWithoutHeightChangesNothing_data()
{
    QTest::addColumn<qreal>("height");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -10.0;
    QTest::newRow("no number") << qQNaN();
}

void TestSettingsWindow::aReportWithoutHeightChangesNothing()
{
    QFETCH(qreal, height);
    const QRect before = window().geometry();
    m_controller->fit(QSizeF(620, height));
    QCOMPARE(window().geometry(), before);
}

void TestSettingsWindow::aChangeOfHalfAPointOrLessChangesNothing_data()
{
    QTest::addColumn<qreal>("change");
    QTest::newRow("nothing") << 0.0;
    QTest::newRow("0.4 more") << 0.4;
    QTest::newRow("0.5 more") << 0.5;
    QTest::newRow("0.4 less") << -0.4;
}

void TestSettingsWindow::aChangeOfHalfAPointOrLessChangesNothing()
{
    QFETCH(qreal, change);
    m_controller->fit(QSizeF(620, 400));
    const QRect before = window().geometry();
    m_controller->fit(QSizeF(620, 400 + change));
    QCOMPARE(window().geometry(), before);
}

void TestSettingsWindow::aChangeOfMoreThanHalfAPointCounts_data()
{
    QTest::addColumn<qreal>("change");
    QTest::addColumn<int>("height");
    QTest::newRow("0.6 more") << 0.6 << 401;
    QTest::newRow("1 more") << 1.0 << 401;
    QTest::newRow("1 less") << -1.0 << 399;
    QTest::newRow("1.4 less") << -1.4 << 399;
}

void TestSettingsWindow::aChangeOfMoreThanHalfAPointCounts()
{
    QFETCH(qreal, change);
    m_controller->fit(QSizeF(620, 400));
    m_controller->fit(QSizeF(620, 400 + change));
    QTEST(window().height(), "height");
}

void TestSettingsWindow::aPartOfAPointIsRoundedUp()
{
    m_controller->fit(QSizeF(620, 444.6));
    QCOMPARE(window().height(), 445);
}

void TestSettingsWindow::theReportedWidthDoesNotCount()
{
    m_controller->fit(QSizeF(900, 450));
    QCOMPARE(window().size(), QSize(620, 450));
}

void TestSettingsWindow::aLaterFitIsAnimatedAndKeepsTheTopLeftCorner()
{
    show();
    const QRect before = window().geometry();
    m_controller->fit(QSizeF(620, before.height() + 120));
    QVERIFY(window().height() < before.height() + 120);
    QTRY_COMPARE(window().height(), before.height() + 120);
    QCOMPARE(window().position(), before.topLeft());
    QCOMPARE(window().width(), 620);
}

void TestSettingsWindow::withReducedMotionAFitIsNeverAnimated()
{
    show();
    m_platform->look.setReduceMotion(true);
    m_controller->fit(QSizeF(620, 500));
    QCOMPARE(window().height(), 500);
}

void TestSettingsWindow::aFitOfAWindowThatIsNotShownIsNotAnimated()
{
    m_controller->fit(QSizeF(620, 480));
    QCOMPARE(window().height(), 480);
    m_controller->fit(QSizeF(620, 380));
    QCOMPARE(window().height(), 380);
}

void TestSettingsWindow::aNewHeightDuringTheAnimationWins()
{
    show();
    m_controller->fit(QSizeF(620, 600));
    QTRY_VERIFY(window().height() > 400);
    m_controller->fit(QSizeF(620, 350));
    QTRY_COMPARE(window().height(), 350);
}

void TestSettingsWindow::theWindowIsNeverHigherThanTheScreen()
{
    const QPoint before = window().position();
    m_controller->fit(QSizeF(620, 100000));
    QCOMPARE(window().position(), before);
    QCOMPARE(window().geometry().bottom(), window().screen()->availableGeometry().bottom());
}

void TestSettingsWindow::theBackgroundFollowsTheAppearance()
{
    QCOMPARE(window().color().name(), "#f7f6f2");
    m_platform->look.setName(AppearanceName::DarkAqua);
    QCOMPARE(window().color().name(), "#0d0d0e");
}

void TestSettingsWindow::theViewFillsTheWindow()
{
    show();
    m_platform->look.setReduceMotion(true);
    m_controller->fit(QSizeF(620, 555));
    const QQuickItem *view = Views::visible(window().contentItem(), "SettingsRoot").constFirst();
    QTRY_COMPARE(view->size(), QSizeF(620, 555));
}

CORVANE_TEST(TestSettingsWindow, runInGui)
#include "tst_settingswindow.moc"
