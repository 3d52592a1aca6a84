#include "EBKitButton.h"
#include "EBKitIconButton.h"
#include "EBKitMenuRow.h"
#include "EBKitSwitch.h"
#include "FakePlatform.h"
#include "KeyboardRing.h"
#include "KitEnvironment.h"
#include "Picture.h"
#include "TestProgram.h"

namespace {

/// A window with a switch and an icon button, neither of which has the focus.
struct Window : EBKitView {
    Window()
    {
        KitEnvironment::setEbApp(*this, EBApp::parcelo);
        resize(200, 100);
        first.move(20, 20);
        second.move(20, 60);
        show();
        setFocus();
        activateWindow();
    }

    QList<KeyboardRing *> rings() const { return findChildren<KeyboardRing *>(); }

    EBKitSwitch first{false, EBKitApps::of(EBApp::corvane), QStringLiteral("Show"), {}, this};
    EBKitIconButton second{EBKitGlyph::close, QStringLiteral("Close"), {}, this};
};

}

class TestKeyboardRing : public QObject {
    Q_OBJECT

private slots:
    void tabBringsARingAndTakesItAlong()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.first.setFocus(Qt::TabFocusReason);
        QCOMPARE(window.rings().size(), 1);
        QCOMPARE(window.rings().constFirst()->geometry(), QRect(16, 16, 44, 30));
        QTest::keyClick(&window.first, Qt::Key_Tab);
        QVERIFY(window.second.hasFocus());
        QCOMPARE(window.rings().size(), 1);
        QCOMPARE(window.rings().constFirst()->geometry(), QRect(16, 56, 36, 36));
        QTest::keyClick(&window.second, Qt::Key_Tab, Qt::ShiftModifier);
        QVERIFY(window.first.hasFocus());
    }

    // Two points thick, two points away.
    void itIsDrawnInTheProductsColor()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.first.setFocus(Qt::TabFocusReason);
        const Picture around(window, ground);
        COMPARE_COLOR(around.at(38, 16.5), EBKit::indigo().current());
        COMPARE_COLOR(around.at(38, 17.5), EBKit::indigo().current());
        COMPARE_COLOR(around.at(38, 18.5), ground);
        COMPARE_COLOR(around.at(38, 19.5), ground);
        COMPARE_COLOR(around.at(38, 15.5), ground);
        window.second.setFocus(Qt::TabFocusReason);
        COMPARE_COLOR(Picture(window, ground).at(34, 56.8), EBKit::teal().current());
    }

    void thePointerBringsNone()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.second.setFocus(Qt::MouseFocusReason);
        QVERIFY(window.second.hasFocus());
        QCOMPARE(window.rings().size(), 0);
    }

    void itIsBackWhenTheWindowIs()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.first.setFocus(Qt::TabFocusReason);
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QTRY_COMPARE(window.rings().size(), 0);
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_COMPARE(window.rings().size(), 1);
    }

    void itFollowsTheControl()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.second.setFocus(Qt::TabFocusReason);
        window.second.setGeometry(100, 30, 40, 40);
        QCOMPARE(window.rings().constFirst()->geometry(), QRect(96, 26, 48, 48));
        window.second.hide();
        for (const KeyboardRing *ring : window.rings())
            QVERIFY(ring->geometry() != QRect(96, 26, 48, 48));
    }

    void clicksGoThroughIt()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.first.setFocus(Qt::TabFocusReason);
        QCOMPARE(window.childAt(22, 30), &window.first);
    }

    void itGoesWithTheControl()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto *passing = new EBKitIconButton(EBKitGlyph::close, QStringLiteral("Close"), {}, &window);
        passing->show();
        passing->setFocus(Qt::TabFocusReason);
        QCOMPARE(window.rings().size(), 1);
        delete passing;
        QVERIFY(window.rings().size() <= 1);
        for (const KeyboardRing *ring : window.rings())
            QVERIFY(ring->geometry() != QRect(-4, -4, 36, 36));
    }

    void everyControlTakesTheFocusByTab()
    {
        EBKitView window;
        const QList<EBKitControl *> controls = {
            new EBKitSwitch(false, EBKitApps::of(EBApp::corvane), QStringLiteral("Show"), {}, &window),
            new EBKitButton(titleText(QStringLiteral("Continue")), EBKitButton::Variant::primary, 32, {}, &window),
            new EBKitIconButton(EBKitGlyph::close, QStringLiteral("Close"), {}, &window),
            new EBKitMenuRow({}, titleText(QStringLiteral("Quit")), {}, {}, &window)};
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        controls.constFirst()->setFocus(Qt::TabFocusReason);
        for (EBKitControl *control : controls) {
            QVERIFY(control->hasFocus());
            QTest::keyClick(control, Qt::Key_Tab);
        }
    }

private:
    FakePlatform &m_platform = FakePlatform::install();
};

CORVANE_TEST(TestKeyboardRing, runInWidgets)
#include "tst_keyboardring.moc"
