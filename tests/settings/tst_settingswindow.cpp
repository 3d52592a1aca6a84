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
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

using namespace std::chrono_literals;

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
    void theFirstFitOfAShownWindowIsNotAnimatedAndCentersIt();
    void aPageWithoutRoomBelowMovesTheWindowUpByWhatIsMissing();
    void theMoveIsAnimatedWithTheHeight();
    void theWindowThatMovedUpStaysThere();
    void aWindowThatWasMovedFitsAgainOnceItStandsStill();
    void aWindowThatIsStillMovedIsLeftAlone();
    void aWindowThatWasMovedFarDownKeepsItsFirstHeight();
    void onAnotherScreenTheWindowFitsAgain();
    void whereThePlaceIsUnknownTheWindowGrowsAsFarAsInTheMiddle();
    void whereThePlaceIsUnknownTheFirstPageHasTheScreen();
    void theBackgroundFollowsTheAppearance();
    void theViewFillsTheWindow();
    void aPageIsMadeInItsPlaceAndNotLaidOutAgain();
    void aPageIsPaintedBeforeTheOneItFollowsIsTakenDown();
    void aPageForWhichTheWindowMovesUpIsNeverTakenForOneThatScrolls();

private:
    void make(const std::optional<QString> &initial = {});
    void makeOn(const QList<EBSettingsPage> &pages);
    void show();
    EBWindow &window() { return *m_controller->window(); }
    int screenHeight() { return window().screen()->availableGeometry().height(); }
    /// Moves the window's upper edge, and waits until the window has heard of it.
    void moveTo(int top);
    /// A page whose content is that high.
    EBSettingsPage page(const QString &id, int height);
    EBSettingsPage page(const QString &id, const QString &content);

    QTemporaryDir m_folder;
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

void TestSettingsWindow::makeOn(const QList<EBSettingsPage> &pages)
{
    m_controller = std::make_unique<EBSettingsWindowController>(*m_engine, EBApp::corvane, "1.4", pages, std::nullopt);
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

void TestSettingsWindow::moveTo(int top)
{
    QSignalSpy moves(&window(), &QWindow::yChanged);
    window().setPosition(window().x(), top);
    QTRY_VERIFY(!moves.isEmpty());
}

EBSettingsPage TestSettingsWindow::page(const QString &id, int height)
{
    return page(id, QString("Item { implicitHeight: %1 }").arg(height));
}

EBSettingsPage TestSettingsWindow::page(const QString &id, const QString &content)
{
    QFile file(m_folder.filePath(id + ".qml"));
    if (file.open(QIODevice::WriteOnly))
        file.write("import QtQuick\nimport Embera.Tokens\n" + content.toUtf8());
    return {id, id, GlyphName::gear, {}, QUrl::fromLocalFile(file.fileName())};
}

void TestSettingsWindow::theFirstFitOfAShownWindowIsNotAnimatedAndCentersIt()
{
    makeOn({page("any", 600)});
    const int around = window().height() - 600;
    // A page as high as the window is from the beginning: nothing is fitted before the window is shown.
    makeOn({page("same", 410 - around), page("higher", 560 - around)});
    show();
    QCOMPARE(window().height(), 410);
    window().setPosition(40, 50);
    QSignalSpy heights(&window(), &QWindow::heightChanged);
    m_controller->model()->setSelection("higher");
    QTRY_VERIFY(!heights.isEmpty());
    QCOMPARE(window().height(), 560);
    QCOMPARE(heights.size(), 1);
    const QPoint off = window().geometry().center() - window().screen()->availableGeometry().center();
    QVERIFY(off.manhattanLength() <= 1);
    // The next one is.
    m_controller->model()->setSelection("same");
    QTRY_COMPARE(window().height(), 410);
    QVERIFY(heights.size() > 2);
}

void TestSettingsWindow::aPageWithoutRoomBelowMovesTheWindowUpByWhatIsMissing()
{
    show();
    m_platform->look.setReduceMotion(true);
    const int x = window().x();
    window().setPosition(x, 300);
    m_controller->fit(QSizeF(620, screenHeight() - 300));
    QCOMPARE(window().geometry(), QRect(x, 300, 620, screenHeight() - 300));
    m_controller->fit(QSizeF(620, screenHeight() - 120));
    QCOMPARE(window().geometry(), QRect(x, 120, 620, screenHeight() - 120));
    m_controller->fit(QSizeF(620, screenHeight()));
    QCOMPARE(window().geometry(), QRect(x, 0, 620, screenHeight()));
}

void TestSettingsWindow::theMoveIsAnimatedWithTheHeight()
{
    show();
    const int x = window().x();
    window().setPosition(x, 300);
    QSignalSpy places(&window(), &QWindow::yChanged);
    m_controller->fit(QSizeF(620, screenHeight() - 120));
    QCOMPARE(window().y(), 300);
    QTRY_COMPARE(window().geometry(), QRect(x, 120, 620, screenHeight() - 120));
    QVERIFY(places.size() > 1);
}

void TestSettingsWindow::theWindowThatMovedUpStaysThere()
{
    show();
    m_platform->look.setReduceMotion(true);
    window().setPosition(90, 300);
    m_controller->fit(QSizeF(620, screenHeight() - 120));
    m_controller->fit(QSizeF(620, 320));
    QCOMPARE(window().geometry(), QRect(90, 120, 620, 320));
}

void TestSettingsWindow::aWindowThatWasMovedFitsAgainOnceItStandsStill()
{
    make("layouts");
    show();
    m_platform->look.setReduceMotion(true);
    const QRect first = window().geometry();
    QVERIFY(first.height() > 500);
    moveTo(screenHeight() - 500);
    QCOMPARE(window().height(), first.height());
    m_platform->queue.advance(0.3);
    QCOMPARE(window().geometry(), QRect(first.x(), screenHeight() - 500, 620, 500));
    moveTo(first.y());
    m_platform->queue.advance(0.3);
    QCOMPARE(window().geometry(), first);
    QCOMPARE(m_platform->queue.waiting(), 0);
}

void TestSettingsWindow::aWindowThatIsStillMovedIsLeftAlone()
{
    make("layouts");
    show();
    m_platform->look.setReduceMotion(true);
    const int height = window().height();
    for (int step = 0; step < 5; ++step) {
        moveTo(screenHeight() - 500 + step);
        m_platform->queue.advance(0.2);
        QCOMPARE(window().height(), height);
    }
    m_platform->queue.advance(0.1);
    QCOMPARE(window().height(), 496);
}

void TestSettingsWindow::aWindowThatWasMovedFarDownKeepsItsFirstHeight()
{
    make("layouts");
    show();
    m_platform->look.setReduceMotion(true);
    moveTo(screenHeight() - 100);
    m_platform->queue.advance(0.3);
    QCOMPARE(window().size(), QSize(620, 410));
    QCOMPARE(window().y(), screenHeight() - 100);
}

void TestSettingsWindow::onAnotherScreenTheWindowFitsAgain()
{
    make("layouts");
    show();
    m_platform->look.setReduceMotion(true);
    window().setPosition(90, screenHeight() - 500);
    emit window().screenChanged(window().screen());
    QCOMPARE(window().geometry(), QRect(90, screenHeight() - 500, 620, 500));
}

void TestSettingsWindow::whereThePlaceIsUnknownTheWindowGrowsAsFarAsInTheMiddle()
{
    m_platform->space.places = false;
    m_platform->look.setReduceMotion(true);
    QCOMPARE(screenHeight(), 800);
    m_controller->fit(QSizeF(620, 310));
    show();
    window().setPosition(90, 300);
    m_controller->fit(QSizeF(620, 531));
    QCOMPARE(window().geometry(), QRect(90, 300, 620, 531));
    // A bar at the edge of the screen is kept free, which nobody tells either.
    m_controller->fit(QSizeF(620, 532));
    QCOMPARE(window().geometry(), QRect(90, 300, 620, 531));
    // Who is hidden gets a new place.
    m_controller->fit(QSizeF(620, 411));
    window().hide();
    show();
    m_controller->fit(QSizeF(620, 5000));
    QCOMPARE(window().height(), 581);
}

void TestSettingsWindow::whereThePlaceIsUnknownTheFirstPageHasTheScreen()
{
    m_platform->space.places = false;
    m_controller = std::make_unique<EBSettingsWindowController>(*m_engine, EBApp::corvane, "1.4",
                                                                QList{page("high", 5000)}, std::nullopt);
    QCOMPARE(window().height(), 704);
    show();
    m_controller->fit(QSizeF(620, 5000));
    QCOMPARE(window().height(), 704);
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
    const QQuickItem *view = Views::visible(window().contentItem(), "EBSettingsView").constFirst();
    QTRY_COMPARE(view->size(), QSizeF(620, 555));
}

// Laying texts out is what takes longest of a start.
void TestSettingsWindow::aPageIsMadeInItsPlaceAndNotLaidOutAgain()
{
    const EBSettingsPage recording = page("recording", R"(Item {
        property real firstWidth: 0
        property string firstProduct
        property int changes: 0

        objectName: "recording"
        implicitHeight: 100
        onWidthChanged: changes += firstWidth > 0
        Component.onCompleted: {
            firstProduct = EBEnvironment.ebApp;
            firstWidth = width;
        }
    })");
    makeOn({recording});
    show();
    const auto *item = window().contentItem()->findChild<QQuickItem *>("recording");
    QVERIFY(item);
    QCOMPARE(item->property("firstProduct").toString(), "corvane");
    QCOMPARE(item->property("firstWidth").toReal(), item->width());
    QCOMPARE(item->property("changes").toInt(), 0);
}

void TestSettingsWindow::aPageIsPaintedBeforeTheOneItFollowsIsTakenDown()
{
    makeOn({page("first", R"(Item { objectName: "first"; implicitHeight: 100 })"), page("second", 100)});
    show();
    const QPointer<QQuickItem> first = window().contentItem()->findChild<QQuickItem *>("first");
    QVERIFY(first);
    std::optional<bool> wasThere;
    QEventLoop untilPainted;
    QTimer::singleShot(0, &untilPainted, [&] {
        m_controller->model()->setSelection("second");
        connect(&window(), &QQuickWindow::frameSwapped, &untilPainted, [&] {
            wasThere = first != nullptr;
            untilPainted.quit();
        });
    });
    QTimer::singleShot(5s, &untilPainted, &QEventLoop::quit);
    untilPainted.exec();
    QCOMPARE(wasThere, true);
    QTRY_VERIFY(!first);
}

// The bar would have to be made, which takes longer than all the page.
void TestSettingsWindow::aPageForWhichTheWindowMovesUpIsNeverTakenForOneThatScrolls()
{
    makeOn({page("low", 100), page("high", 500), page("too high", 5000)});
    show();
    window().setPosition(90, 300);
    const QQuickItem *view = Views::visible(window().contentItem(), "EBSettingsView").constFirst();
    QSignalSpy overflows(view, SIGNAL(overflowsChanged()));
    m_controller->model()->setSelection("high");
    QTRY_VERIFY(window().y() < 300);
    QCOMPARE(overflows.size(), 0);
    m_controller->model()->setSelection("too high");
    QTRY_COMPARE(overflows.size(), 1);
    QVERIFY(view->property("overflows").toBool());
    m_controller->model()->setSelection("low");
    QTRY_VERIFY(!view->property("overflows").toBool());
}

CORVANE_TEST(TestSettingsWindow, runInGui)
#include "tst_settingswindow.moc"
