#include "DragTileController.h"
#include "DragTilePanel.h"
#include "DragTileView.h"
#include "FakePlatform.h"
#include "GuideVisibility.h"
#include "TestProgram.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>

namespace {

constexpr double tick = 0.25; // seconds
const QUrl inProduct = QUrl::fromLocalFile("/opt/Corvane.app/Contents/Helpers/Corvane Settings.app");

/// A window of System Settings whose lower edge is 400 points below the top of the screen.
OnScreenWindow settingsWindow(QPointF topLeft = {100, 100})
{
    return {0, true, QRectF(topLeft, QSizeF(500, 300))};
}

}

/// The controller on a desktop whose windows and whose time the test sets; the one screen has 800 by 800 points.
class DragTileControllerTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void theProductIsTheBundleAroundThisOne_data();
    void theProductIsTheBundleAroundThisOne();
    void theProductStaysTheOneItWasAtTheBeginning();

    void nothingIsShownToBeginWith();
    void theTileAppearsBelowSystemSettings();
    void nearTheLowerEdgeItStandsInsideTheWindow();
    void anAuxiliaryWindowIsIgnored();
    void theFrameIsToldFromTheLowerEdgeUpwards();
    void itFollowsTheWindowAtTheNextTick();
    void itDoesNotMoveNeedlessly();
    void whileSystemSettingsIsAwayItIsHiddenAndKept();
    void onEveryAppearanceItFloatsOnAllSpaces();
    void itCarriesTheIconOfTheProduct();
    void whereNothingShinesThroughTheTileIsCutOut();
    void aCompositorThatComesAndGoesIsFollowed();

    void whenSystemSettingsNeverOpensItGivesUpAfterFortyEightLooks();
    void whenSystemSettingsIsClosedItGivesUpAtTheSixthEmptyTick();
    void aTickWithTheWindowStartsTheCountAnew();
    void afterGivingUpItCountsFromTheBeginning();
    void givingUpAtTheFirstLookLeavesNothingBehind();

    void showingTwiceIsShowingOnce();
    void hidingWhatIsHiddenDoesNothing();
    void hidingEndsTheTicks();
    void hidingAndShowingKeepsTheCounts();
    void repositioningWithoutAPanelDoesNothing();
    void aControllerThatIsGoneIsNotTicked();

private:
    bool isVisible() const { return m_tile->panel() && m_tile->panel()->isVisible(); }
    void put(const OnScreenWindow &window) { m_platform->windows.windows = {window}; }
    void putNothing() { m_platform->windows.windows.clear(); }
    void pass(int ticks) { m_platform->queue.advance(ticks * tick); }
    QVariantList posted() const;

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<DragTileController> m_tile;
    std::unique_ptr<QSignalSpy> m_posts;
};

void DragTileControllerTest::initTestCase()
{
    QCOMPARE(QGuiApplication::primaryScreen()->geometry(), QRect(0, 0, 800, 800));
    QCOMPARE(QGuiApplication::primaryScreen()->availableGeometry(), QRect(0, 0, 800, 800));
}

void DragTileControllerTest::init()
{
    m_platform = &FakePlatform::install();
    m_platform->main.url = inProduct;
    m_platform->look.setReduceMotion(true);
    m_tile = std::make_unique<DragTileController>();
    m_posts = std::make_unique<QSignalSpy>(&NotificationCenter::defaultCenter(), &NotificationCenter::posted);
}

void DragTileControllerTest::cleanup()
{
    m_tile.reset();
}

/// The values of the notifications about the guide.
QVariantList DragTileControllerTest::posted() const
{
    QVariantList objects;
    for (const QVariantList &post : std::as_const(*m_posts)) {
        if (post.at(0) == "cv.guide.visible")
            objects.append(post.at(1).value<QVariant>());
    }
    return objects;
}

void DragTileControllerTest::theProductIsTheBundleAroundThisOne_data()
{
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("product");
    const QString elsewhere = "/Applications/Corvane.app";
    QTest::newRow("in the product") << "/opt/Corvane.app/Contents/Helpers/Corvane Settings.app"
                                    << "/opt/Corvane.app";
    QTest::newRow("with a slash at the end") << "/opt/Corvane.app/Contents/Helpers/Settings.app/"
                                             << "/opt/Corvane.app";
    QTest::newRow("product of another name")
        << "/a b/Ünï #1.app/Contents/Helpers/S.app" << QStringLiteral("/a b/Ünï #1.app");
    QTest::newRow("in Helpers itself") << "/opt/Corvane.app/Contents/Helpers" << elsewhere;
    QTest::newRow("beside the product") << "/opt/Corvane Settings.app" << elsewhere;
    QTest::newRow("in another folder") << "/opt/Corvane.app/Contents/MacOS/Settings.app" << elsewhere;
    QTest::newRow("other letters") << "/opt/Corvane.app/contents/helpers/Settings.app" << elsewhere;
    QTest::newRow("no bundle") << "/home/me/build/bin" << elsewhere;
}

void DragTileControllerTest::theProductIsTheBundleAroundThisOne()
{
    QFETCH(QString, own);
    QFETCH(QString, product);
    m_platform->main.url = QUrl::fromLocalFile(own);
    const DragTileController tile;
    QCOMPARE(tile.appURL(), QUrl::fromLocalFile(product));
}

void DragTileControllerTest::theProductStaysTheOneItWasAtTheBeginning()
{
    m_platform->main.url = QUrl::fromLocalFile("/elsewhere");
    QCOMPARE(m_tile->appURL(), QUrl::fromLocalFile("/opt/Corvane.app"));
    m_tile->show();
    QCOMPARE(m_tile->panel()->view()->appURL(), QUrl::fromLocalFile("/opt/Corvane.app"));
}

void DragTileControllerTest::nothingIsShownToBeginWith()
{
    put(settingsWindow());
    QVERIFY(!m_tile->panel());
    QVERIFY(!m_tile->seen());
    QCOMPARE(m_tile->missing(), 0);
    QCOMPARE(m_platform->queue.waiting(), 0);
}

void DragTileControllerTest::theTileAppearsBelowSystemSettings()
{
    put(settingsWindow());
    m_tile->show();
    QVERIFY(isVisible());
    QCOMPARE(m_tile->panel()->tile(), QRect(185, 412, 330, 76));
    QVERIFY(m_tile->seen());
    QCOMPARE(m_tile->missing(), 0);
}

void DragTileControllerTest::nearTheLowerEdgeItStandsInsideTheWindow()
{
    put(settingsWindow({100, 408}));
    m_tile->show();
    QCOMPARE(m_tile->panel()->tile(), QRect(185, 720, 330, 76));
    put(settingsWindow({100, 409}));
    pass(1);
    QCOMPARE(m_tile->panel()->tile(), QRect(185, 617, 330, 76));
    put(settingsWindow({100, 500}));
    pass(1);
    QCOMPARE(m_tile->panel()->tile(), QRect(185, 708, 330, 76));
}

void DragTileControllerTest::anAuxiliaryWindowIsIgnored()
{
    put({0, true, QRectF(100, 100, 300, 400)});
    m_tile->show();
    QVERIFY(!isVisible());
    QVERIFY(!DragTileController::settingsWindowFrame());
    put({0, true, QRectF(100, 100, 301, 400)});
    pass(1);
    QVERIFY(isVisible());
}

void DragTileControllerTest::theFrameIsToldFromTheLowerEdgeUpwards()
{
    QVERIFY(!DragTileController::settingsWindowFrame());
    put(settingsWindow());
    QCOMPARE(DragTileController::settingsWindowFrame(), std::optional(QRectF(100, 400, 500, 300)));
}

void DragTileControllerTest::itFollowsTheWindowAtTheNextTick()
{
    put(settingsWindow());
    m_tile->show();
    put(settingsWindow({120, 130}));
    m_platform->queue.advance(0.24);
    QCOMPARE(m_tile->panel()->tile().topLeft(), QPoint(185, 412));
    m_platform->queue.advance(0.01);
    QCOMPARE(m_tile->panel()->tile().topLeft(), QPoint(205, 442));
    put(settingsWindow({-50, 0}));
    pass(1);
    QCOMPARE(m_tile->panel()->tile().topLeft(), QPoint(35, 312));
}

void DragTileControllerTest::itDoesNotMoveNeedlessly()
{
    put(settingsWindow());
    m_tile->show();
    const QSignalSpy sideways(m_tile->panel(), &QWindow::xChanged);
    const QSignalSpy upwards(m_tile->panel(), &QWindow::yChanged);
    pass(10);
    QCOMPARE(sideways.size() + upwards.size(), 0);
    // Somebody moved the tile away: it comes back.
    m_tile->panel()->setPosition(3, 4);
    pass(1);
    QCOMPARE(m_tile->panel()->tile().topLeft(), QPoint(185, 412));
}

void DragTileControllerTest::whileSystemSettingsIsAwayItIsHiddenAndKept()
{
    put(settingsWindow());
    m_tile->show();
    const DragTilePanel *panel = m_tile->panel();
    putNothing();
    pass(1);
    QVERIFY(!isVisible());
    QCOMPARE(m_tile->panel(), panel);
    QVERIFY(m_tile->seen());
    QCOMPARE(m_tile->missing(), 1);
    put(settingsWindow({120, 100}));
    pass(1);
    QVERIFY(isVisible());
    QCOMPARE(m_tile->panel(), panel);
    QCOMPARE(panel->tile().topLeft(), QPoint(205, 412));
    QCOMPARE(m_tile->missing(), 0);
    QCOMPARE(posted(), QVariantList());
}

void DragTileControllerTest::onEveryAppearanceItFloatsOnAllSpaces()
{
    put(settingsWindow());
    m_tile->show();
    pass(3);
    QCOMPARE(m_platform->space.floating, QList<QWindow *>{m_tile->panel()});
    putNothing();
    pass(1);
    put(settingsWindow());
    pass(1);
    QCOMPARE(m_platform->space.floating.size(), 2);
}

void DragTileControllerTest::itCarriesTheIconOfTheProduct()
{
    QPixmap red(48, 48);
    red.fill(Qt::red);
    m_platform->space.fileIcons.insert("/opt/Corvane.app", QIcon(red));
    put(settingsWindow());
    m_tile->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_tile->panel()));
    const QImage picture = m_tile->panel()->grabWindow().copy({{24, 24}, QSize(330, 76)});
    QCOMPARE(picture.pixelColor(12, 14), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(59, 61), QColor(Qt::red));
    QVERIFY(picture.pixelColor(11, 38) != QColor(Qt::red));
    QVERIFY(picture.pixelColor(60, 38) != QColor(Qt::red));
}

void DragTileControllerTest::whereNothingShinesThroughTheTileIsCutOut()
{
    m_platform->space.blends = false;
    put(settingsWindow());
    m_tile->show();
    QCOMPARE(m_tile->panel()->mask().boundingRect(), QRect(25, 25, 328, 74));
    QVERIFY(!m_tile->panel()->mask().contains(QPoint(25, 25)));
    QVERIFY(!m_tile->panel()->mask().contains(QPoint(352, 98)));
}

void DragTileControllerTest::aCompositorThatComesAndGoesIsFollowed()
{
    put(settingsWindow());
    m_tile->show();
    m_platform->space.blends = false;
    pass(1);
    QVERIFY(!m_tile->panel()->mask().isEmpty());
    m_platform->space.blends = true;
    pass(1);
    QVERIFY(m_tile->panel()->mask().isEmpty());
    QCOMPARE(m_tile->panel()->tile(), QRect(185, 412, 330, 76));
}

void DragTileControllerTest::whenSystemSettingsNeverOpensItGivesUpAfterFortyEightLooks()
{
    m_tile->show();
    QVERIFY(!isVisible());
    // The first look was taken when it was shown.
    for (int look = 2; look < 48; ++look) {
        pass(1);
        QVERIFY(!isVisible());
        QCOMPARE(m_tile->missing(), look);
    }
    QVERIFY(m_tile->panel());
    QCOMPARE(posted(), QVariantList());
    pass(1);
    QCOMPARE(posted(), QVariantList{true});
    QVERIFY(!m_tile->panel());
    QCOMPARE(m_platform->queue.waiting(), 0);
}

void DragTileControllerTest::whenSystemSettingsIsClosedItGivesUpAtTheSixthEmptyTick()
{
    put(settingsWindow());
    m_tile->show();
    pass(100);
    putNothing();
    pass(5);
    QVERIFY(m_tile->panel());
    QCOMPARE(posted(), QVariantList());
    pass(1);
    QCOMPARE(posted(), QVariantList{true});
    QVERIFY(!m_tile->panel());
    QCOMPARE(m_platform->queue.waiting(), 0);
}

void DragTileControllerTest::aTickWithTheWindowStartsTheCountAnew()
{
    m_tile->show();
    pass(40);
    QCOMPARE(m_tile->missing(), 41);
    for (int round = 0; round < 5; ++round) {
        put(settingsWindow());
        pass(1);
        QCOMPARE(m_tile->missing(), 0);
        putNothing();
        pass(5);
        QCOMPARE(m_tile->missing(), 5);
    }
    QCOMPARE(posted(), QVariantList());
    QVERIFY(m_tile->panel());
}

void DragTileControllerTest::afterGivingUpItCountsFromTheBeginning()
{
    put(settingsWindow());
    m_tile->show();
    putNothing();
    pass(6);
    QVERIFY(!m_tile->panel());
    QVERIFY(!m_tile->seen());
    QCOMPARE(m_tile->missing(), 0);
    m_tile->show();
    pass(46);
    QVERIFY(m_tile->panel());
    pass(1);
    QVERIFY(!m_tile->panel());
    QCOMPARE(posted(), (QVariantList{true, true}));
}

void DragTileControllerTest::givingUpAtTheFirstLookLeavesNothingBehind()
{
    m_tile->show();
    pass(46);
    m_tile->hide();
    QCOMPARE(m_tile->missing(), 47);
    m_tile->show();
    QCOMPARE(posted(), QVariantList{true});
    QVERIFY(!m_tile->panel());
    QCOMPARE(m_platform->queue.waiting(), 0);
}

void DragTileControllerTest::showingTwiceIsShowingOnce()
{
    m_tile->show();
    const QPointer<DragTilePanel> panel = m_tile->panel();
    m_tile->show();
    QVERIFY(panel);
    QCOMPARE(m_tile->panel(), panel.data());
    QCOMPARE(m_tile->missing(), 1);
    QCOMPARE(m_platform->queue.waiting(), 1);
    pass(1);
    QCOMPARE(m_tile->missing(), 2);
}

void DragTileControllerTest::hidingWhatIsHiddenDoesNothing()
{
    m_tile->hide();
    put(settingsWindow());
    m_tile->show();
    m_tile->hide();
    m_tile->hide();
    QVERIFY(!m_tile->panel());
    QCOMPARE(posted(), QVariantList());
}

void DragTileControllerTest::hidingEndsTheTicks()
{
    put(settingsWindow());
    m_tile->show();
    const QPointer<DragTilePanel> panel = m_tile->panel();
    m_tile->hide();
    QVERIFY(!panel);
    QCOMPARE(m_platform->queue.waiting(), 0);
    putNothing();
    pass(100);
    QCOMPARE(m_tile->missing(), 0);
    QCOMPARE(posted(), QVariantList());
}

void DragTileControllerTest::hidingAndShowingKeepsTheCounts()
{
    m_tile->show();
    pass(9);
    m_tile->hide();
    QCOMPARE(m_tile->missing(), 10);
    m_tile->show();
    QCOMPARE(m_tile->missing(), 11);
    put(settingsWindow());
    pass(1);
    m_tile->hide();
    QVERIFY(m_tile->seen());
    putNothing();
    m_tile->show();
    QVERIFY(m_tile->seen());
    pass(4);
    QVERIFY(m_tile->panel());
    pass(1);
    QVERIFY(!m_tile->panel());
}

void DragTileControllerTest::repositioningWithoutAPanelDoesNothing()
{
    m_tile->reposition();
    QCOMPARE(m_tile->missing(), 0);
    put(settingsWindow());
    m_tile->reposition();
    QVERIFY(!m_tile->seen());
    QVERIFY(!m_tile->panel());
}

void DragTileControllerTest::aControllerThatIsGoneIsNotTicked()
{
    m_tile->show();
    m_tile.reset();
    pass(100);
    QCOMPARE(posted(), QVariantList());
    QCOMPARE(m_platform->queue.waiting(), 0);
}

CORVANE_TEST(DragTileControllerTest, runInGui)

#include "tst_dragtilecontroller.moc"
