#include "ClickInVain.h"
#include "EBKitIconButton.h"
#include "FakePlatform.h"
#include "Picture.h"
#include "TestProgram.h"

#include <QHoverEvent>

namespace {

void hover(QWidget &view, QEvent::Type type, QPointF place)
{
    QHoverEvent event(type, place, place, QPointF());
    QCoreApplication::sendEvent(&view, &event);
}

}

class TestEBKitIconButton : public QObject {
    Q_OBJECT

private slots:
    void init() { m_count = 0; }

    void itIs28PointsWide()
    {
        QCOMPARE(EBKitIconButton(EBKitGlyph::close, QStringLiteral("Close"), {}).sizeHint(), QSize(28, 28));
    }

    // The glyph "close" reaches from 7 to 17 on the grid of 24 units, and its stroke is 1.6 wide with round caps.
    void theGlyphStandsInASquareOfAShareOfTheWidth_data()
    {
        QTest::addColumn<int>("side");
        QTest::newRow("28") << 28;
        QTest::newRow("50") << 50;
    }
    void theGlyphStandsInASquareOfAShareOfTheWidth()
    {
        QFETCH(const int, side);
        EBKitIconButton button(EBKitGlyph::close, QStringLiteral("Close"), {});
        button.resize(side, side);
        const QRectF found = Picture(button, ground).inked(button.rect(), ground);
        const qreal expected = side * 0.58 / 24 * (17 - 7 + 1.6);
        QVERIFY2(std::abs(found.width() - expected) <= 0.6, qPrintable(QString::number(found.width())));
        QVERIFY(std::abs(found.center().x() - side / 2.0) <= 0.26);
        QVERIFY(std::abs(found.center().y() - side / 2.0) <= 0.26);
        COMPARE_COLOR(Picture(button, ground).at(side / 2.0, side / 2.0), EBKit::inkMuted().current());
    }

    void thePointerOverItsCircleShowsAChip()
    {
        EBKitIconButton button(EBKitGlyph::close, QStringLiteral("Close"), {});
        hover(button, QEvent::HoverEnter, {1, 1});
        QVERIFY(!button.hover());
        hover(button, QEvent::HoverMove, {14, 4});
        QVERIFY(button.hover());
        COMPARE_COLOR(Picture(button, ground).at(14, 1), over(EBKit::chip().current(), ground));
        COMPARE_COLOR(Picture(button, ground).at(1, 1), ground);
        hover(button, QEvent::HoverLeave, {-1, -1});
        QVERIFY(!button.hover());
        COMPARE_COLOR(Picture(button, ground).at(14, 1), ground);
    }

    void aClickInACornerMisses()
    {
        EBKitIconButton button(EBKitGlyph::close, QStringLiteral("Close"), [this] { ++m_count; });
        QTest::mouseClick(&button, Qt::LeftButton, {}, {1, 1});
        QTest::mouseClick(&button, Qt::LeftButton, {}, {26, 26});
        QCOMPARE(m_count, 0);
        QTest::mouseClick(&button, Qt::LeftButton, {}, {14, 2});
        QCOMPARE(m_count, 1);
    }

    void itHasNoPressedLook()
    {
        EBKitIconButton button(EBKitGlyph::close, QStringLiteral("Close"), [this] { ++m_count; });
        const Picture before(button);
        QTest::keyPress(&button, Qt::Key_Space);
        QVERIFY(Picture(button) == before);
        QTest::keyRelease(&button, Qt::Key_Space);
        QTest::keyClick(&button, Qt::Key_Return);
        QCOMPARE(m_count, 2);
    }

    void aDisabledOneForgetsThePointer()
    {
        EBKitIconButton button(EBKitGlyph::close, QStringLiteral("Close"), [this] { ++m_count; });
        button.setHover(true);
        button.setEnabled(false);
        QVERIFY(!button.hover());
        clickInVain(button);
        QCOMPARE(m_count, 0);
    }

private:
    FakePlatform &m_platform = FakePlatform::install();
    int m_count = 0;
};

CORVANE_TEST(TestEBKitIconButton, runInWidgets)
#include "tst_ebkiticonbutton.moc"
