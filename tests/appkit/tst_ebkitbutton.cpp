#include "ClickInVain.h"
#include "EBKitButton.h"
#include "FakePlatform.h"
#include "Picture.h"
#include "TestProgram.h"

namespace {

using Variant = EBKitButton::Variant;

EBKitText label(const EBKitColor &color = EBKit::onInk(), const QString &string = QStringLiteral("Continue"))
{
    return KitText::make(string, EBTypeRole::bodyStrong, color);
}

QColor faded(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

}

class TestEBKitButton : public QObject {
    Q_OBJECT

private slots:
    void init() { m_count = 0; }

    void itIsAsLargeAsTheDeclarativeButtonOfItsHeight_data()
    {
        QTest::addColumn<qreal>("height");
        QTest::addColumn<int>("padding");
        QTest::newRow("md") << 40.0 << 20;
        QTest::newRow("sm") << 32.0 << 15;
        QTest::newRow("xs") << 24.0 << 11;
        QTest::newRow("between") << 36.0 << 15;
        QTest::newRow("lower") << 20.0 << 11;
    }
    void itIsAsLargeAsTheDeclarativeButtonOfItsHeight()
    {
        QFETCH(const qreal, height);
        QFETCH(const int, padding);
        const EBKitButton button(label(), Variant::primary, height, {});
        QCOMPARE(button.height(), height);
        QCOMPARE(button.size(), QSize(KitText::size(label()).width() + 2 * padding, int(height)));
    }

    void thePrimaryOneIsFilledWithInk()
    {
        EBKitButton button(label(), Variant::primary, 40, {});
        QCOMPARE(button.variant(), Variant::primary);
        QCOMPARE(button.title().string, QStringLiteral("Continue"));
        COMPARE_COLOR(Picture(button, ground).at(10, 20), EBKit::ink().current());
        COMPARE_COLOR(Picture(button, ground).at(0.5, 20), EBKit::ink().current());
        COMPARE_COLOR(Picture(button, ground).at(1, 1), ground);
        button.setPressed(true);
        QVERIFY(button.pressed());
        COMPARE_COLOR(Picture(button, ground).at(10, 20), over(faded(EBKit::ink().current(), 0.82F), ground));
    }

    void theSecondaryOneHasABorder()
    {
        EBKitButton button(label(EBKit::ink()), Variant::secondary, 40, {});
        const QColor border = over(EBKit::lineStrong().current(), ground);
        COMPARE_COLOR(Picture(button, ground).at(40, 0.5), border);
        COMPARE_COLOR(Picture(button, ground).at(40, 1.5), ground);
        button.setPressed(true);
        COMPARE_COLOR(Picture(button, ground).at(10, 20), over(EBKit::chip().current(), ground));
        COMPARE_COLOR(Picture(button, ground).at(40, 0.4),
                      over(EBKit::lineStrong().current(), over(EBKit::chip().current(), ground)));
    }

    void theTitleStandsInTheMiddle()
    {
        EBKitButton button(label(), Variant::primary, 40, {});
        const QRectF found =
            Picture(button, ground).inked(QRectF(8, 4, button.width() - 16, 32), EBKit::ink().current());
        QVERIFY(std::abs(found.center().x() - button.width() / 2.0) < 1);
        QVERIFY(found.width() > KitText::size(label()).width() - 4);
    }

    void aTitleWithoutRoomIsCutShort()
    {
        EBKitButton button(label(), Variant::primary, 40, {});
        button.resize(70, 40);
        const QRectF found = Picture(button, ground).inked(QRectF(4, 8, 62, 24), EBKit::ink().current());
        QVERIFY(found.left() >= 19 && found.right() <= 51);
    }

    void itsPressRunsTheAction()
    {
        EBKitButton button(label(), Variant::primary, 40, [this] { ++m_count; });
        QTest::mousePress(&button, Qt::LeftButton);
        QVERIFY(button.pressed());
        QCOMPARE(m_count, 0);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QVERIFY(!button.pressed());
        QCOMPARE(m_count, 1);
        QTest::keyPress(&button, Qt::Key_Space);
        QVERIFY(button.pressed());
        QTest::keyRelease(&button, Qt::Key_Space);
        QVERIFY(!button.pressed());
        QTest::keyClick(&button, Qt::Key_Return);
        QCOMPARE(m_count, 3);
    }

    void aPressThatLeavesTheButtonIsNone()
    {
        EBKitButton button(label(), Variant::primary, 40, [this] { ++m_count; });
        QTest::mousePress(&button, Qt::LeftButton);
        QTest::mouseMove(&button, {-20, 20});
        QVERIFY(!button.pressed());
        QTest::mouseMove(&button, {20, 20});
        QVERIFY(button.pressed());
        QTest::mouseMove(&button, {-20, 20});
        QTest::mouseRelease(&button, Qt::LeftButton, {}, {-20, 20});
        QCOMPARE(m_count, 0);
    }

    void losingTheFocusLetsGo()
    {
        EBKitButton button(label(), Variant::primary, 40, [this] { ++m_count; });
        QTest::keyPress(&button, Qt::Key_Space);
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&button, &out);
        QVERIFY(!button.pressed());
        QTest::keyRelease(&button, Qt::Key_Space);
        QCOMPARE(m_count, 0);
    }

    void aDisabledButtonLetsGoToo()
    {
        EBKitButton button(label(), Variant::primary, 40, [this] { ++m_count; });
        QTest::mousePress(&button, Qt::LeftButton);
        button.setEnabled(false);
        QVERIFY(!button.pressed());
        clickInVain(button);
        button.press();
        QCOMPARE(m_count, 0);
        COMPARE_COLOR(Picture(button, Qt::white).at(10, 20), over(faded(EBKit::ink().current(), 0.4F), Qt::white));
    }

    void itsActionMayEndIt()
    {
        auto *button = new EBKitButton(label(), Variant::primary, 40, {});
        button->action = [this, button] {
            delete button;
            ++m_count;
        };
        button->press();
        QCOMPARE(m_count, 1);
    }

    void withoutAnActionNothingHappens()
    {
        EBKitButton button(label(), Variant::primary, 40, {});
        DOES_NO_HARM(QTest::mouseClick(&button, Qt::LeftButton));
    }

private:
    FakePlatform &m_platform = FakePlatform::install();
    int m_count = 0;
};

CORVANE_TEST(TestEBKitButton, runInWidgets)
#include "tst_ebkitbutton.moc"
