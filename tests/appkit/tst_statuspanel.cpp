#include "EBKitMenuRow.h"
#include "EBKitPanelHeader.h"
#include "EBKitRow.h"
#include "EBKitStatusPanel.h"
#include "EBStatusPanel.h"
#include "FakePlatform.h"
#include "PanelWindow.h"
#include "Picture.h"
#include "TestProgram.h"

#include <QMenu>
#include <QPushButton>
#include <QQuickWindow>

namespace {

const QDateTime noon(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);

/// Counts a controller's callbacks and sets its clock.
struct Watch {
    explicit Watch(StatusPanelController &controller)
    {
        controller.onOpen = [this] { ++opened; };
        controller.onClose = [this] { ++closed; };
        controller.now = [this] { return time; };
    }

    QDateTime time = noon;
    int opened = 0;
    int closed = 0;
};

/// The window of the only panel there is.
PanelWindow *panel()
{
    QList<PanelWindow *> found;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<PanelWindow *>(widget))
            found.append(window);
    }
    return found.size() == 1 ? found.constFirst() : nullptr;
}

QList<EBKitView *> someViews()
{
    return {new EBKitPanelHeader(EBKitApps::of(EBApp::corvane), {}, titleText(QStringLiteral("Corvane"))),
            new EBKitRow(EBKitApps::of(EBApp::corvane), {}, true, titleText(QStringLiteral("Row")), {}),
            new EBKitMenuRow({}, titleText(QStringLiteral("Quit")), {}, {})};
}

}

/// Both controllers: the column "lean" chooses.
class TestStatusPanel : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QGuiApplication::setQuitOnLastWindowClosed(false); }
    void init()
    {
        m_host.resize(400, 300);
        m_host.move(100, 0);
        m_button.setGeometry(150, 0, 60, 24);
        m_host.show();
        m_host.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_host));
    }

    void thePanelIsBorderlessFloatingAndClear()
    {
        EBKitStatusPanel controller;
        QVERIFY(panel());
        QCOMPARE(panel()->geometry().size(), QSize(300, 200));
        QCOMPARE(panel()->windowFlags() & Qt::WindowType_Mask, Qt::Tool);
        QVERIFY(panel()->windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(panel()->windowFlags() & Qt::WindowStaysOnTopHint);
        QVERIFY(!(panel()->windowFlags() & Qt::NoDropShadowWindowHint));
        QVERIFY(!(panel()->windowFlags() & Qt::WindowDoesNotAcceptFocus));
        QVERIFY(panel()->testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(panel()->testAttribute(Qt::WA_MacAlwaysShowToolWindow));
        QVERIFY(!panel()->testAttribute(Qt::WA_DeleteOnClose));
        QVERIFY(!panel()->testAttribute(Qt::WA_QuitOnClose));
        QCOMPARE(controller.content().window(), panel());
    }

    void atFirstItIsClosedAndWasNeverOpen()
    {
        const EBKitStatusPanel controller;
        QVERIFY(!controller.isOpen());
        QVERIFY(!panel()->isVisible());
        QCOMPARE(controller.closedAt().date(), QDate(1, 1, 1));
        QCOMPARE(controller.button(), nullptr);
        QVERIFY(controller.build().isEmpty());
        QVERIFY(!controller.onOpen);
        QVERIFY(!controller.onClose);
    }

    void theLeanOneHasContentOfAGivenSize()
    {
        auto *content = new QWidget;
        EBStatusPanel controller(content, QSize(220, 140));
        QCOMPARE(controller.size(), QSize(220, 140));
        controller.open(m_button);
        QCOMPARE(panel()->size(), QSize(220, 140));
        QCOMPARE(content->size(), QSize(220, 140));
        QVERIFY(content->isVisible());
    }

    void openingBuildsTheViewsAnew()
    {
        EBKitStatusPanel controller;
        int built = 0;
        controller.build = [&built] {
            ++built;
            return someViews();
        };
        controller.open(m_button);
        QCOMPARE(built, 1);
        const QList<EBKitView *> views = controller.content().views();
        QCOMPARE(views.size(), 3);
        QVERIFY(views.constFirst()->isVisible());
        // As high as what it holds.
        QCOMPARE(panel()->width(), 300);
        QCOMPARE(panel()->height(), views.constLast()->geometry().bottom() + 1 + 6);
        QCOMPARE(panel()->windowTitle(), QStringLiteral("Corvane"));
        controller.close();
        controller.build = {[] { return QList<EBKitView *>{new EBKitMenuRow({}, titleText({}), {}, {})}; }};
        controller.open(m_button);
        QCOMPARE(controller.content().views().size(), 1);
        QCOMPARE(panel()->height(), 30 + 12);
        QCOMPARE(panel()->windowTitle(), QString());
    }

    void itStandsUnderTheButton_data() { bothControllers(); }
    void itStandsUnderTheButton()
    {
        const auto controller = made();
        controller->open(m_button);
        QTRY_VERIFY(panel()->isVisible());
        const QPoint corner = m_button.mapToGlobal(QPoint());
        QCOMPARE(panel()->y(), corner.y() + 24 + 4);
        QCOMPARE(panel()->geometry().center().x(), corner.x() + 30 - 1);
    }

    void itStandsInsideTheScreen()
    {
        const auto controller = std::make_unique<EBStatusPanel>(new QWidget, QSize(220, 140));
        const QRect screen = m_button.screen()->availableGeometry();
        m_host.move(screen.right() - 160, screen.bottom() - 24);
        controller->open(m_button);
        QVERIFY(screen.contains(panel()->geometry()));
        QVERIFY(panel()->geometry().bottom() < m_host.y());
        m_host.move(100, 0);
    }

    void itOpensUnderATrayIconToo()
    {
        const auto controller = std::make_unique<EBStatusPanel>(new QWidget, QSize(220, 140));
        controller->open(QRect(400, 0, 20, 20));
        QCOMPARE(panel()->geometry(), QRect(300, 24, 220, 140));
        QCOMPARE(controller->button(), nullptr);
        controller->close();
        QVERIFY(!controller->isOpen());
        controller->toggle(QRect(40000, 0, 20, 20));
        QVERIFY(!controller->isOpen());
    }

    void withoutAPlaceItOpensUnderThePointer()
    {
        const auto controller = std::make_unique<EBStatusPanel>(new QWidget, QSize(220, 140));
        QCursor::setPos(400, 30);
        controller->open(QRect());
        QCOMPARE(panel()->geometry(), QRect(291, 35, 220, 140));
    }

    void whileOpenTheButtonIsHighlighted_data() { bothControllers(); }
    void whileOpenTheButtonIsHighlighted()
    {
        const auto controller = made();
        QVERIFY(!m_button.isDown());
        controller->open(m_button);
        QVERIFY(m_button.isDown());
        QCOMPARE(controller->button(), &m_button);
        controller->close();
        QVERIFY(!m_button.isDown());
    }

    void eachTimeItOpensItIsOnEveryWorkspace_data() { bothControllers(); }
    void eachTimeItOpensItIsOnEveryWorkspace()
    {
        const auto controller = made();
        m_platform.space.floating.clear();
        controller->open(m_button);
        QCOMPARE(m_platform.space.floating, QList<QWindow *>{panel()->windowHandle()});
        controller->close();
        controller->open(m_button);
        QCOMPARE(m_platform.space.floating.size(), 2);
    }

    void whereNothingShinesThroughItsCornersAreCutOff()
    {
        EBKitStatusPanel controller;
        controller.build = someViews;
        controller.open(m_button);
        QVERIFY(panel()->mask().isEmpty());
        controller.close();
        m_platform.space.blends = false;
        controller.open(m_button);
        const QRect card = panel()->rect();
        QCOMPARE(panel()->mask().boundingRect(), card);
        QVERIFY(panel()->mask().contains(QPoint(0, card.center().y())));
        for (const QPoint &corner : {card.topLeft(), card.topRight(), card.bottomLeft(), card.bottomRight()})
            QVERIFY(!panel()->mask().contains(corner));
        controller.close();
        m_platform.space.blends = true;
        controller.open(m_button);
        QVERIFY(panel()->mask().isEmpty());
    }

    void anyWidgetCanBeTheButton()
    {
        const auto controller = std::make_unique<EBStatusPanel>(new QWidget, QSize(220, 140));
        QWidget plain(&m_host);
        controller->open(plain);
        QVERIFY(plain.property("highlighted").toBool());
        controller->close();
        QVERIFY(!plain.property("highlighted").toBool());
    }

    void itHoldsTheButtonWeakly_data() { bothControllers(); }
    void itHoldsTheButtonWeakly()
    {
        const auto controller = made();
        Watch watch(*controller);
        auto button = std::make_unique<QPushButton>(&m_host);
        controller->open(*button);
        button.reset();
        QCOMPARE(controller->button(), nullptr);
        controller->close();
        QVERIFY(!controller->isOpen());
        QCOMPARE(watch.closed, 1);
    }

    void openingTellsOnceItIsOpen_data() { bothControllers(); }
    void openingTellsOnceItIsOpen()
    {
        const auto controller = made();
        Watch watch(*controller);
        bool wasOpen = false;
        controller->onOpen = [&] { wasOpen = panel()->isVisible(); };
        controller->open(m_button);
        QVERIFY(wasOpen);
        Watch again(*controller);
        controller->open(m_button);
        QCOMPARE(again.opened, 0);
    }

    void closingAClosedPanelDoesNothing_data() { bothControllers(); }
    void closingAClosedPanelDoesNothing()
    {
        const auto controller = made();
        Watch watch(*controller);
        controller->close();
        QCOMPARE(watch.closed, 0);
        QCOMPARE(controller->closedAt().date(), QDate(1, 1, 1));
    }

    void closingIsToldOnceAndDated_data() { bothControllers(); }
    void closingIsToldOnceAndDated()
    {
        const auto controller = made();
        Watch watch(*controller);
        controller->open(m_button);
        QVERIFY(QTest::qWaitForWindowActive(panel()));
        QCOMPARE(watch.closed, 0);
        watch.time = noon.addSecs(5);
        controller->close();
        QVERIFY(!controller->isOpen());
        QVERIFY(!panel()->isVisible());
        QCOMPARE(controller->closedAt(), noon.addSecs(5));
        watch.time = noon.addSecs(9);
        controller->close();
        m_host.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_host));
        QCOMPARE(watch.closed, 1);
        QCOMPARE(controller->closedAt(), noon.addSecs(5));
        controller->open(m_button);
        controller->close();
        QCOMPARE(watch.closed, 2);
    }

    void whoeverIsToldFindsItClosed_data() { bothControllers(); }
    void whoeverIsToldFindsItClosed()
    {
        const auto controller = made();
        Watch watch(*controller);
        bool wasOut = false;
        QDateTime date;
        bool wasUp = false;
        controller->onClose = [&] {
            wasOut = !panel()->isVisible();
            date = controller->closedAt();
            wasUp = !m_button.isDown();
        };
        controller->open(m_button);
        controller->close();
        QVERIFY(wasOut);
        QCOMPARE(date, noon);
        QVERIFY(wasUp);
    }

    void whoeverIsToldMayOpenAgain_data() { bothControllers(); }
    void whoeverIsToldMayOpenAgain()
    {
        const auto controller = made();
        controller->onClose = [&] {
            controller->onClose = {};
            controller->open(m_button);
        };
        controller->open(m_button);
        controller->close();
        QVERIFY(panel()->isVisible());
        QVERIFY(m_button.isDown());
        // Of the two monitors the new one is left.
        QTest::mousePress(m_host.windowHandle(), Qt::LeftButton, {}, QPoint(10, 280));
        QVERIFY(!controller->isOpen());
        QTest::mouseRelease(m_host.windowHandle(), Qt::LeftButton, {}, QPoint(10, 280));
    }

    void whoeverIsToldMayCloseAgain()
    {
        const auto controller = std::make_unique<EBStatusPanel>(new QWidget, QSize(220, 140));
        int told = 0;
        controller->onClose = [&] {
            ++told;
            controller->close();
        };
        controller->open(m_button);
        controller->close();
        QCOMPARE(told, 1);
    }

    void itTakesTheKeyboard_data() { bothControllers(); }
    void itTakesTheKeyboard()
    {
        const auto controller = made();
        controller->open(m_button);
        QVERIFY(QTest::qWaitForWindowActive(panel()));
    }

    void escapeClosesIt_data() { bothControllers(); }
    void escapeClosesIt()
    {
        const auto controller = made();
        Watch watch(*controller);
        controller->open(m_button);
        QVERIFY(QTest::qWaitForWindowActive(panel()));
        QTest::keyClick(panel(), Qt::Key_A);
        QVERIFY(controller->isOpen());
        QTest::keyClick(panel(), Qt::Key_Escape);
        QVERIFY(!controller->isOpen());
        QCOMPARE(watch.closed, 1);
    }

    void escapeInAViewOfThePanelClosesItToo()
    {
        EBKitStatusPanel controller;
        controller.build = someViews;
        controller.open(m_button);
        QVERIFY(QTest::qWaitForWindowActive(panel()));
        // Nothing in it has the focus before a key asks for it.
        QCOMPARE(panel()->focusWidget(), &controller.content());
        QTest::keyClick(panel()->focusWidget(), Qt::Key_Tab);
        QCOMPARE(panel()->focusWidget(), controller.content().views().constLast());
        QTest::keyClick(panel()->focusWidget(), Qt::Key_Escape);
        QVERIFY(!controller.isOpen());
    }

    void losingTheKeyboardClosesIt_data() { bothControllers(); }
    void losingTheKeyboardClosesIt()
    {
        const auto controller = made();
        Watch watch(*controller);
        controller->open(m_button);
        QVERIFY(QTest::qWaitForWindowActive(panel()));
        m_host.activateWindow();
        QTRY_VERIFY(!controller->isOpen());
        QVERIFY(!m_button.isDown());
        QCOMPARE(watch.closed, 1);
    }

    void theDesktopMayCloseIt_data() { bothControllers(); }
    void theDesktopMayCloseIt()
    {
        const auto controller = made();
        Watch watch(*controller);
        controller->open(m_button);
        panel()->close();
        QVERIFY(!controller->isOpen());
        QCOMPARE(watch.closed, 1);
    }

    void aClickOutsideClosesIt_data() { bothControllers(); }
    void aClickOutsideClosesIt()
    {
        const auto controller = made();
        Watch watch(*controller);
        controller->open(m_button);
        QTest::mousePress(panel()->windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
        QTest::mouseRelease(panel()->windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(controller->isOpen());
        QTest::mousePress(m_host.windowHandle(), Qt::LeftButton, {}, QPoint(10, 280));
        QVERIFY(!controller->isOpen());
        QCOMPARE(watch.closed, 1);
        QTest::mouseRelease(m_host.windowHandle(), Qt::LeftButton, {}, QPoint(10, 280));
        // The monitor is gone with the panel.
        QTest::mouseClick(m_host.windowHandle(), Qt::LeftButton, {}, QPoint(10, 280));
        QCOMPARE(watch.closed, 1);
    }

    void aClickInAWindowWithoutWidgetsIsOutsideToo()
    {
        QQuickWindow other;
        other.setGeometry(500, 400, 100, 100);
        other.show();
        const auto controller = std::make_unique<EBStatusPanel>(new QWidget, QSize(220, 140));
        controller->open(m_button);
        QTest::mousePress(&other, Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(!controller->isOpen());
        QTest::mouseRelease(&other, Qt::LeftButton, {}, QPoint(20, 20));
    }

    void aViewWithAWindowOfItsOwnIsNotOutside()
    {
        auto *content = new QWidget;
        content->setAttribute(Qt::WA_NativeWindow);
        const auto controller = std::make_unique<EBStatusPanel>(content, QSize(220, 140));
        controller->open(m_button);
        QVERIFY(content->windowHandle() != panel()->windowHandle());
        QTest::mousePress(content->windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(controller->isOpen());
        QTest::mouseRelease(content->windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
    }

    void aMenuOfThePanelIsNotOutside()
    {
        auto *content = new QWidget;
        const auto controller = std::make_unique<EBStatusPanel>(content, QSize(220, 140));
        controller->open(m_button);
        QVERIFY(QTest::qWaitForWindowActive(panel()));
        QMenu menu(content);
        QAction *item = menu.addAction(QStringLiteral("Item"));
        menu.popup(panel()->geometry().bottomRight() + QPoint(50, 50));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, menu.actionGeometry(item).center());
        QVERIFY(controller->isOpen());
    }

    void aClickOnTheButtonOpensAndCloses()
    {
        const auto controller = std::make_unique<EBStatusPanel>(new QWidget, QSize(220, 140));
        Watch watch(*controller);
        const auto wired = connect(&m_button, &QPushButton::clicked, this, [&] { controller->toggle(m_button); });
        const auto click = [this] {
            QTest::mouseClick(m_host.windowHandle(), Qt::LeftButton, {}, m_button.geometry().center());
        };
        click();
        QVERIFY(controller->isOpen());
        QVERIFY(QTest::qWaitForWindowActive(panel()));
        QTRY_VERIFY(m_button.isDown());
        // It is a click outside, which closes the panel before the button hears of it.
        click();
        QVERIFY(!controller->isOpen());
        QVERIFY(!m_button.isDown());
        QCOMPARE(watch.closed, 1);
        watch.time = noon.addMSecs(299);
        click();
        QVERIFY(!controller->isOpen());
        watch.time = noon.addMSecs(300);
        click();
        QVERIFY(controller->isOpen());
        QCOMPARE(watch.opened, 2);
        // As by a key: no click outside has closed the panel before.
        controller->toggle(m_button);
        QVERIFY(!controller->isOpen());
        disconnect(wired);
    }

    void aClockSetBackDoesNotKeepItClosed()
    {
        const auto controller = std::make_unique<EBStatusPanel>(new QWidget, QSize(220, 140));
        Watch watch(*controller);
        controller->open(m_button);
        controller->close();
        watch.time = noon.addSecs(-3600);
        controller->toggle(m_button);
        QVERIFY(controller->isOpen());
    }

    void aControllerThatGoesTakesThePanelAlong_data() { bothControllers(); }
    void aControllerThatGoesTakesThePanelAlong()
    {
        auto controller = made();
        Watch watch(*controller);
        controller->open(m_button);
        controller.reset();
        QVERIFY(!panel());
        QVERIFY(!m_button.isDown());
        QCOMPARE(watch.closed, 0);
    }

    void whoeverIsToldMayEndTheController_data() { bothControllers(); }
    void whoeverIsToldMayEndTheController()
    {
        auto controller = made();
        controller->onClose = [&controller] { controller.reset(); };
        controller->open(m_button);
        QVERIFY(QTest::qWaitForWindowActive(panel()));
        QTest::keyClick(panel(), Qt::Key_Escape);
        QVERIFY(!controller);
        QVERIFY(!panel());
        QVERIFY(!m_button.isDown());
    }

    void anActionInThePanelMayCloseAndReopenIt()
    {
        EBKitStatusPanel controller;
        controller.build = [&controller, this] {
            auto *entry = new EBKitMenuRow({}, titleText(QStringLiteral("Again")), {}, {});
            entry->action = [&controller, this] {
                controller.close();
                controller.open(m_button);
            };
            return QList<EBKitView *>{entry};
        };
        controller.open(m_button);
        auto *entry = controller.content().views().constFirst();
        QTest::mouseClick(entry, Qt::LeftButton);
        QVERIFY(controller.isOpen());
        QVERIFY(controller.content().views().constFirst() != entry);
    }

private:
    static void bothControllers()
    {
        QTest::addColumn<bool>("lean");
        QTest::newRow("EBKitStatusPanel") << false;
        QTest::newRow("EBStatusPanel") << true;
    }
    static std::unique_ptr<StatusPanelController> made()
    {
        QFETCH(const bool, lean);
        if (lean)
            return std::make_unique<EBStatusPanel>(new QWidget, QSize(220, 140));
        auto controller = std::make_unique<EBKitStatusPanel>();
        controller->build = someViews;
        return controller;
    }

    FakePlatform &m_platform = FakePlatform::install();
    QWidget m_host;
    QPushButton m_button{&m_host};
};

CORVANE_TEST(TestStatusPanel, runInWidgets)

#include "tst_statuspanel.moc"
