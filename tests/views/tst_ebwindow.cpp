#include "Colors.h"
#include "EBKit.h"
#include "EBWindow.h"
#include "FakePlatform.h"
#include "TestProgram.h"
#include "ViewEngine.h"
#include "Views.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QSignalSpy>

/// The kit's window around a plain content. The whole class runs at several scales.
class EBWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void aHairlineRunsInsideItsEdgesOverTheContent();
    void theEdgeTakesNoClicksAndIsNoElement();
    void afterAShrinkItHasTheHeightItWasGiven();
    void itGrowsByDegreesEachTime();
    void whenItComesBackItIsBroughtToTheFront();
    void aMinimizedWindowThatTheDesktopKeepsIsShownAnew();

private:
    QImage picture() { return m_window->grabWindow(); }

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<ViewEngine> m_engine;
    std::unique_ptr<EBWindow> m_window;
    QQuickItem *m_content = nullptr;
};

void EBWindowTest::init()
{
    m_platform = &FakePlatform::install();
    m_engine = std::make_unique<ViewEngine>();
    QQmlComponent component(m_engine.get());
    component.setData("import QtQuick\nMouseArea { Rectangle { anchors.fill: parent; color: 'yellow' } }", {});
    m_content = qobject_cast<QQuickItem *>(component.create());
    QVERIFY(m_content);
    m_window = std::make_unique<EBWindow>(EBApp::corvane, QSize(200, 120), EBWindow::Style());
    m_window->host(m_content);
    m_window->makeKeyAndOrderFront();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void EBWindowTest::cleanup()
{
    m_window.reset();
    m_engine.reset();
}

void EBWindowTest::aHairlineRunsInsideItsEdgesOverTheContent()
{
    const QImage drawn = picture();
    const qreal scale = m_window->effectiveDevicePixelRatio();
    const int right = drawn.width() - 1;
    const int bottom = drawn.height() - 1;
    const int inside = int(std::ceil(scale));
    const QColor line = over(EBKit::lineStrong().current(), Qt::yellow);
    for (const QPoint corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
        QVERIFY2(isNear(drawn.pixelColor(corner), line), qPrintable(drawn.pixelColor(corner).name()));
    const QList<QPoint> edge = {{0, bottom / 2}, {right, bottom / 2}, {right / 2, 0}, {right / 2, bottom}};
    for (const QPoint place : edge)
        QVERIFY2(isNear(drawn.pixelColor(place), line), qPrintable(drawn.pixelColor(place).name()));
    for (const QPoint place : {QPoint(inside, bottom / 2), QPoint(right - inside, bottom / 2),
                               QPoint(right / 2, inside), QPoint(right / 2, bottom - inside)})
        QCOMPARE(drawn.pixelColor(place), QColor(Qt::yellow));
}

void EBWindowTest::theEdgeTakesNoClicksAndIsNoElement()
{
    const QSignalSpy clicks(m_content, SIGNAL(clicked(QQuickMouseEvent *)));
    QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, {0, 60});
    QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, {199, 60});
    QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, {100, 119});
    QCOMPARE(clicks.size(), 3);
    const QAccessibleInterface *window = QAccessible::queryAccessibleInterface(m_window.get());
    QStringList names;
    for (int place = 0; place < window->childCount(); ++place)
        names.append(window->child(place)->text(QAccessible::Name));
    QCOMPARE(names, QStringList({"Close", "Minimize", "Zoom"}));
}

void EBWindowTest::afterAShrinkItHasTheHeightItWasGiven()
{
    // The window manager's notice of a size on the way comes late.
    QMetaObject::Connection late;
    late = connect(m_window.get(), &QWindow::heightChanged, this, [&](int height) {
        if (height == 80 && disconnect(late))
            m_window->resize(200, 82);
    });
    m_window->setFrame(m_window->y(), 80, true);
    QTRY_COMPARE(m_window->maximumHeight(), 80);
    QCOMPARE(m_window->minimumHeight(), 80);
}

void EBWindowTest::itGrowsByDegreesEachTime()
{
    QList<int> heights;
    connect(m_window.get(), &QWindow::heightChanged, this, [&heights](int height) { heights.append(height); });
    for (const int height : {300, 500}) {
        m_window->setFrame(m_window->y(), height, true);
        QTRY_COMPARE(m_window->minimumHeight(), height);
    }
    QVERIFY(heights.size() > 2);
    QVERIFY2(std::is_sorted(heights.cbegin(), heights.cend()), "it jumped");
}

void EBWindowTest::whenItComesBackItIsBroughtToTheFront()
{
    QCOMPARE(m_platform->space.broughtToFront, QList<QWindow *>());
    m_window->hide();
    m_window->makeKeyAndOrderFront();
    QVERIFY(m_window->isVisible());
    QCOMPARE(m_platform->space.broughtToFront, QList<QWindow *>{m_window.get()});
    m_window->showMinimized();
    m_window->makeKeyAndOrderFront();
    QVERIFY(!(m_window->windowStates() & Qt::WindowMinimized));
    QCOMPARE(m_platform->space.broughtToFront.size(), 2);
}

void EBWindowTest::aMinimizedWindowThatTheDesktopKeepsIsShownAnew()
{
    m_platform->space.places = false;
    m_window->showMinimized();
    // The desktop says nothing of it, and goes on with another window.
    m_window->setWindowState(Qt::WindowNoState);
    QWindow other;
    other.show();
    other.requestActivate();
    QTRY_VERIFY(!m_window->isActive());
    const QSignalSpy shown(m_window.get(), &QWindow::visibleChanged);
    m_window->makeKeyAndOrderFront();
    QCOMPARE(shown.size(), 2);
    QVERIFY(m_window->isVisible());
    m_window->makeKeyAndOrderFront();
    QCOMPARE(shown.size(), 2);
}

// Once for each scale, which holds for a whole process.
CORVANE_TEST(EBWindowTest, runInGui)

#include "tst_ebwindow.moc"
