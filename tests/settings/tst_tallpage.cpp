#include "SettingsWindow.h"
#include "TestProgram.h"

#include <QScreen>
#include <QWheelEvent>

namespace {

const QUrl tallPage(QStringLiteral("qrc:/pages/TallPage.qml"));

/// Two pages that are higher than the screen.
QList<EBSettingsPage> tallPages()
{
    return {{"one", "One", GlyphName::gear, {}, tallPage}, {"two", "Two", GlyphName::apps, {}, tallPage}};
}

/// The settings window on the first of them.
class TallWindow : public SettingsWindow {
public:
    TallWindow() : SettingsWindow({}, tallPages()) { }

    QQuickItem *area()
    {
        QQuickItem *item = heading(controller.model()->title());
        while (item && !item->inherits("QQuickFlickable"))
            item = item->parentItem();
        return item;
    }

    /// How far the page is scrolled, and how far it can be.
    qreal position() { return area()->property("contentY").toReal(); }
    qreal end() { return area()->property("contentHeight").toReal() - area()->height(); }

    void turnWheel(int notches)
    {
        const QPointF middle(400, 300);
        QWheelEvent event(middle, window().mapToGlobal(middle), {}, {0, notches * 120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window(), &event);
    }

    bool isOnScreen(const QQuickItem *item) { return QRectF(QPointF(), window().size()).contains(frame(item)); }
};

}

/// A page for which the screen is too low.
class TestTallPage : public QObject {
    Q_OBJECT

private slots:
    void theWindowIsAsHighAsTheScreenAndShowsTheTopOfThePage();
    void theWheelScrolls();
    void theWheelStopsAtBothEnds();
    void thePageKeysScroll();
    void theHomeAndEndKeysGoToTheEnds();
    void theFocusIsFollowed();
    void losingTheFocusMovesNothing();
    void anotherPageBeginsAtItsTop();
    void aPageThatFitsDoesNotScroll();
};

void TestTallPage::theWindowIsAsHighAsTheScreenAndShowsTheTopOfThePage()
{
    TallWindow settings;
    QCOMPARE(settings.window().height(), settings.window().screen()->availableGeometry().height());
    QCOMPARE(settings.position(), 0.0);
    QVERIFY(settings.end() > 1000);
    QVERIFY(settings.isOnScreen(settings.item("First", QAccessible::Button)));
    QVERIFY(!settings.isOnScreen(settings.item("Last", QAccessible::Button)));
}

void TestTallPage::theWheelScrolls()
{
    TallWindow settings;
    settings.turnWheel(-1);
    QTRY_VERIFY(settings.position() > 0);
    const qreal afterOne = settings.position();
    QVERIFY(afterOne < settings.window().height());
    settings.turnWheel(-1);
    QTRY_VERIFY(settings.position() > afterOne);
    settings.turnWheel(2);
    QTRY_COMPARE(settings.position(), 0.0);
}

void TestTallPage::theWheelStopsAtBothEnds()
{
    TallWindow settings;
    settings.turnWheel(3);
    QCOMPARE(settings.position(), 0.0);
    for (int i = 0; i < 100; ++i)
        settings.turnWheel(-1);
    QTRY_COMPARE(settings.position(), settings.end());
    // The page ends 16 points above the edge of the window.
    settings.waitForFrame();
    const QRectF last = SettingsWindow::frame(settings.item("Last", QAccessible::Button));
    QVERIFY(qAbs(settings.window().height() - 16 - last.bottom()) <= 1);
}

void TestTallPage::thePageKeysScroll()
{
    TallWindow settings;
    QTest::keyClick(&settings.window(), Qt::Key_PageDown);
    QTRY_VERIFY(settings.position() > 0);
    const qreal page = settings.position();
    // What stood at the bottom is still there, at the top.
    QVERIFY(page > settings.area()->height() / 2 && page < settings.area()->height());
    QTest::keyClick(&settings.window(), Qt::Key_PageDown);
    QTRY_COMPARE(settings.position(), qMin(2 * page, settings.end()));
    QTest::keyClick(&settings.window(), Qt::Key_PageUp);
    QTRY_VERIFY(settings.position() < 2 * page);
}

void TestTallPage::theHomeAndEndKeysGoToTheEnds()
{
    TallWindow settings;
    QTest::keyClick(&settings.window(), Qt::Key_End);
    QTRY_COMPARE(settings.position(), settings.end());
    QTest::keyClick(&settings.window(), Qt::Key_Home);
    QTRY_COMPARE(settings.position(), 0.0);
}

void TestTallPage::theFocusIsFollowed()
{
    TallWindow settings;
    QQuickItem *first = settings.item("First", QAccessible::Button);
    QQuickItem *last = settings.item("Last", QAccessible::Button);
    first->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(settings.position(), 0.0);
    QTest::keyClick(&settings.window(), Qt::Key_Tab);
    QVERIFY(last->hasActiveFocus());
    QTRY_VERIFY(settings.isOnScreen(last));
    QTest::keyClick(&settings.window(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(first->hasActiveFocus());
    QTRY_VERIFY(settings.isOnScreen(first));
}

void TestTallPage::losingTheFocusMovesNothing()
{
    TallWindow settings;
    settings.item("Last", QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);
    QTRY_VERIFY(settings.position() > 0);
    const qreal before = settings.position();
    QWindow other;
    other.show();
    other.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    settings.waitForFrame();
    QCOMPARE(settings.position(), before);
}

void TestTallPage::anotherPageBeginsAtItsTop()
{
    TallWindow settings;
    settings.turnWheel(-5);
    QTRY_VERIFY(settings.position() > 0);
    settings.controller.model()->setSelection("two");
    settings.waitForFrame();
    QVERIFY(settings.heading("Two"));
    QCOMPARE(settings.position(), 0.0);
    QVERIFY(settings.isOnScreen(settings.item("First", QAccessible::Button)));
}

void TestTallPage::aPageThatFitsDoesNotScroll()
{
    SettingsWindow settings;
    const QRectF before = SettingsWindow::frame(settings.heading("General"));
    QWheelEvent event({400, 300}, settings.window().mapToGlobal(QPointF(400, 300)), {}, {0, -360}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&settings.window(), &event);
    QTest::keyClick(&settings.window(), Qt::Key_PageDown);
    QTest::keyClick(&settings.window(), Qt::Key_End);
    settings.waitForFrame();
    QCOMPARE(SettingsWindow::frame(settings.heading("General")), before);
}

CORVANE_TEST(TestTallPage, runInGui)
#include "tst_tallpage.moc"
