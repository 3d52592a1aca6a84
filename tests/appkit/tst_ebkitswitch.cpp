#include "AnimationClock.h"
#include "ClickInVain.h"
#include "EBKitSwitch.h"
#include "FakePlatform.h"
#include "Picture.h"
#include "TestProgram.h"

class TestEBKitSwitch : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_platform.look.setReduceMotion(true);
        m_told.clear();
    }

    void itLooksLikeTheDeclarativeSwitch()
    {
        for (const EBApp app : EBApps::allCases) {
            EBKitSwitch toggle(true, EBKitApps::of(app), QStringLiteral("Show"), {});
            QCOMPARE(toggle.sizeHint(), QSize(36, 22));
            QCOMPARE(toggle.size(), QSize(36, 22));
            const Picture on(toggle, ground);
            COMPARE_COLOR(on.at(4, 11), EBApps::family(app).accent.current());
            COMPARE_COLOR(on.at(30, 11), EBKit::knob().current());
            COMPARE_COLOR(on.at(35, 11), EBApps::family(app).accent.current());
            COMPARE_COLOR(on.at(0.3, 0.3), ground);
            toggle.setIsOn(false);
            const Picture off(toggle, ground);
            COMPARE_COLOR(off.at(4, 11), EBKit::knob().current());
            COMPARE_COLOR(off.at(30, 11), over(EBKit::track().current(), ground));
            COMPARE_COLOR(off.at(2.5, 11), over(EBKit::lineStrong().current(), EBKit::knob().current()));
        }
    }

    void aClickTurnsItAndTells()
    {
        EBKitSwitch toggle = made(false);
        QTest::mouseClick(&toggle, Qt::LeftButton, {}, {30, 11});
        QVERIFY(toggle.isOn());
        QCOMPARE(m_told, QList<bool>({true}));
        QTest::mouseClick(&toggle, Qt::LeftButton, {}, {30, 11});
        QVERIFY(!toggle.isOn());
        QCOMPARE(m_told, QList<bool>({true, false}));
    }

    void onlyAWholeClickCounts()
    {
        EBKitSwitch toggle = made(false);
        QTest::mouseClick(&toggle, Qt::RightButton, {}, {30, 11});
        QTest::mousePress(&toggle, Qt::LeftButton, {}, {30, 11});
        QTest::mouseMove(&toggle, {30, 60});
        QTest::mouseRelease(&toggle, Qt::LeftButton, {}, {30, 60});
        // Cut off by the half circle at the end.
        QTest::mouseClick(&toggle, Qt::LeftButton, {}, {0, 1});
        QVERIFY(!toggle.isOn());
        QCOMPARE(m_told, QList<bool>());
    }

    void spaceAndReturnTurnIt()
    {
        EBKitSwitch toggle = made(false);
        QTest::keyPress(&toggle, Qt::Key_Space);
        QVERIFY(!toggle.isOn());
        QTest::keyRelease(&toggle, Qt::Key_Space);
        QVERIFY(toggle.isOn());
        QTest::keyClick(&toggle, Qt::Key_Return);
        QVERIFY(!toggle.isOn());
        QTest::keyClick(&toggle, Qt::Key_Enter);
        QVERIFY(toggle.isOn());
        QTest::keyClick(&toggle, Qt::Key_A);
        QCOMPARE(m_told, QList<bool>({true, false, true}));
    }

    void aHeldKeyTurnsItOnce()
    {
        EBKitSwitch toggle = made(false);
        for (const bool repeated : {false, true, true}) {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), repeated);
            QCoreApplication::sendEvent(&toggle, &event);
        }
        QCOMPARE(m_told, QList<bool>({true}));
    }

    void settingItTellsNobody()
    {
        EBKitSwitch toggle = made(false);
        toggle.setIsOn(true);
        QVERIFY(toggle.isOn());
        QCOMPARE(m_told, QList<bool>());
    }

    void itNeedsNobodyToTell()
    {
        EBKitSwitch toggle(false, EBKitApps::of(EBApp::corvane), QStringLiteral("Show"), {});
        toggle.press();
        QVERIFY(toggle.isOn());
    }

    void aDisabledSwitchStays()
    {
        EBKitSwitch toggle = made(false);
        toggle.setEnabled(false);
        clickInVain(toggle, {30, 11});
        toggle.press();
        QVERIFY(!toggle.isOn());
        QCOMPARE(m_told, QList<bool>());
    }

    // The Bézier curve of (0, 0) and (0.58, 1) over 0.15 seconds.
    void itSlidesUnlessMotionIsReduced()
    {
        EBKitSwitch toggle = made(true);
        toggle.press();
        COMPARE_COLOR(Picture(toggle, ground).at(4, 11), EBKit::knob().current());

        m_platform.look.setReduceMotion(false);
        AnimationClock clock;
        toggle.press();
        QVERIFY(toggle.isOn());
        int elapsed = 0;
        for (const auto &[after, share] : {std::pair(1, 0.0112), {30, 0.3084}, {75, 0.6846}, {150, 1.0}}) {
            clock.advance(after - elapsed);
            elapsed = after;
            const Picture picture(toggle, ground);
            const QColor track = over(EBKit::indigo().current(), over(EBKit::track().current(), ground), share);
            COMPARE_COLOR(picture.at(1, 11), track);
            const qreal knob = 2 + 8 * share;
            COMPARE_COLOR(picture.at(knob - 0.5, 11), track);
            COMPARE_COLOR(picture.at(knob + 1.5, 11), EBKit::knob().current());
        }
    }

    void aMirroredSwitchIsOnAtTheLeft()
    {
        EBKitSwitch toggle = made(true);
        toggle.setLayoutDirection(Qt::RightToLeft);
        COMPARE_COLOR(Picture(toggle, ground).at(4, 11), EBKit::knob().current());
        COMPARE_COLOR(Picture(toggle, ground).at(32, 11), EBKit::indigo().current());
    }

private:
    EBKitSwitch made(bool isOn)
    {
        return EBKitSwitch(isOn, EBKitApps::of(EBApp::corvane), QStringLiteral("Show"),
                           [this](bool now) { m_told.append(now); });
    }

    FakePlatform &m_platform = FakePlatform::install();
    QList<bool> m_told;
};

CORVANE_TEST(TestEBKitSwitch, runInWidgets)
#include "tst_ebkitswitch.moc"
