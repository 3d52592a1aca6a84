#include "EBKitRow.h"
#include "FakePlatform.h"
#include "Picture.h"
#include "TestProgram.h"

namespace {

const QString longText = QStringLiteral("Adds buttons to the windows in the overview of all windows, also on displays "
                                        "that are not the main one");

std::unique_ptr<EBKitRow> row(std::optional<EBKitGlyph> glyph, bool on, std::optional<EBKitText> detail = {},
                              QSize size = {300, 40}, EBApp app = EBApp::corvane)
{
    auto view = std::make_unique<EBKitRow>(EBKitApps::of(app), glyph, on, titleText(QStringLiteral("Title")), detail);
    view->resize(size);
    // What was never shown is laid out when it is drawn.
    const Picture picture(*view);
    return view;
}

}

class TestEBKitRow : public QObject {
    Q_OBJECT

private slots:
    void init() { m_platform.look.setName(AppearanceName::Aqua); }

    void theRectanglesAreThoseOfADeclarativeRow()
    {
        const auto view = row(EBKitGlyph::gear, false, captionText(QStringLiteral("Detail")), {300, 60});
        const int title = KitText::size(view->title()).height();
        const int detail = KitText::size(*view->detail()).height();
        QCOMPARE(view->discRect(), QRectF(16, 16, 28, 28));
        QCOMPARE(view->titleRect(), QRectF(56, std::round((60 - title - 1 - detail) / 2.0), 300 - 56 - 16, title));
        QCOMPARE(view->detailRect(), QRectF(56, view->titleRect().bottom() + 1, 300 - 56 - 16, detail));
    }

    void withoutAGlyphThereIsNoDisc()
    {
        const auto view = row({}, false);
        QCOMPARE(view->discRect(), QRectF());
        QCOMPARE(view->titleRect().left(), 16);
        QCOMPARE(Picture(*view, ground).inked(QRectF(0, 0, 15, 40), ground), QRectF());
    }

    void withoutADetailThereIsNoDetailRectangle()
    {
        const auto view = row(EBKitGlyph::gear, false);
        QCOMPARE(view->detailRect(), QRectF());
        QVERIFY(std::abs(view->titleRect().center().y() - 20) <= 0.5);
    }

    void aMirroredRowBeginsAtTheRight()
    {
        const auto view = row(EBKitGlyph::gear, false);
        view->setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(view->discRect(), QRectF(300 - 16 - 28, 6, 28, 28));
        QCOMPARE(view->titleRect().left(), 16);
        QVERIFY(Picture(*view, ground).inked(view->titleRect(), ground).right() > 240);
    }

    void itIsFortyHighAndGrowsWithItsTexts()
    {
        QCOMPARE(row(EBKitGlyph::gear, false)->heightForWidth(300), 40);
        QCOMPARE(row({}, false)->heightForWidth(300), 40);
        const auto view = row(EBKitGlyph::gear, false, captionText(longText));
        const int column = 300 - 56 - 16;
        const int texts =
            KitText::size(view->title()).height() + 1 + KitText::size(captionText(longText), column).height();
        QVERIFY(texts + 12 > 40);
        QCOMPARE(view->heightForWidth(300), texts + 2 * 6);
        QCOMPARE(view->sizeHint().width(), 56 + KitText::size(captionText(longText)).width() + 16);
    }

    void aRowThatIsTooLowCutsItsDetail()
    {
        const auto view = row(EBKitGlyph::gear, false, captionText(longText), {300, 50});
        QCOMPARE(view->titleRect().height(), KitText::size(view->title()).height());
        QVERIFY(view->detailRect().height()
                < KitText::size(captionText(longText), view->detailRect().width()).height());
        QVERIFY(view->detailRect().bottom() <= 50 - 6);
        QVERIFY(view->titleRect().top() >= 6);
    }

    void aDiscThatIsOnIsFilledWithTheProductsColor_data()
    {
        QTest::addColumn<EBApp>("app");
        for (const EBApp app : EBApps::allCases)
            QTest::newRow(qPrintable(EBApps::rawValue(app))) << app;
    }
    void aDiscThatIsOnIsFilledWithTheProductsColor()
    {
        QFETCH(const EBApp, app);
        const auto view = row(EBKitGlyph::minus, true, {}, {300, 40}, app);
        const Picture picture(*view, ground);
        const QRectF disc = view->discRect();
        COMPARE_COLOR(picture.at(disc.center().x(), disc.top() + 0.75), EBApps::family(app).accent.current());
        COMPARE_COLOR(picture.at(disc.left() + 0.75, disc.center().y()), EBApps::family(app).accent.current());
        COMPARE_COLOR(picture.at(disc.topLeft() + QPointF(2, 2)), ground);
        COMPARE_COLOR(picture.at(disc.center()), EBApps::family(app).onAccent.current());
    }

    void aDiscThatIsOffIsAnOutlineAPointWideInsideItsEdge()
    {
        const auto view = row(EBKitGlyph::minus, false);
        const Picture picture(*view, ground);
        const QRectF disc = view->discRect();
        const QColor line = over(EBKit::lineStrong().current(), ground);
        COMPARE_COLOR(picture.at(disc.center().x(), disc.top() + 0.3), line);
        COMPARE_COLOR(picture.at(disc.center().x(), disc.top() + 0.8), line);
        COMPARE_COLOR(picture.at(disc.center().x(), disc.top() + 1.3), ground);
        COMPARE_COLOR(picture.at(disc.center().x(), disc.top() - 0.2), ground);
        COMPARE_COLOR(picture.at(disc.center()), EBKit::ink().current());
    }

    // Its dock has the extent 3…21 by 4…20 on the grid of 24 units, and a stroke of 1.6.
    void theGlyphStandsInASquareOfFifteenInTheMiddle()
    {
        const auto view = row(EBKitGlyph::dock, true);
        const QColor disc = EBApps::family(EBApp::corvane).accent.current();
        const QRectF inside = QRectF(0, 0, 18, 18).translated(view->discRect().center() - QPointF(9, 9));
        const QRectF found = Picture(*view, ground).inked(inside, disc);
        constexpr qreal unit = 15.0 / 24;
        QVERIFY(std::abs(found.width() - 19.6 * unit) <= 0.5);
        QVERIFY(std::abs(found.height() - 17.6 * unit) <= 0.5);
        // To the nearest half device pixel.
        QVERIFY(std::abs(found.center().x() - view->discRect().center().x()) <= 0.25);
        QVERIFY(std::abs(found.center().y() - view->discRect().center().y()) <= 0.25);
    }

    void theStrokeIsOneAndSixTenthsOfAUnitWide()
    {
        const auto view = row(EBKitGlyph::minus, true);
        const QColor disc = EBApps::family(EBApp::corvane).accent.current();
        const QPointF middle = view->discRect().center();
        const QRectF found = Picture(*view, ground).inked({middle.x(), middle.y() - 4, 1, 8}, disc);
        QVERIFY(std::abs(found.height() - 1.6 * 15 / 24) <= 0.26);
    }

    void theTextsAreDrawnInTheirRectangles()
    {
        const auto view = row(EBKitGlyph::gear, false, captionText(QStringLiteral("Detail")), {300, 60});
        const Picture picture(*view, ground);
        QVERIFY(!picture.inked(view->titleRect(), ground).isEmpty());
        QVERIFY(!picture.inked(view->detailRect(), ground).isEmpty());
        QVERIFY(view->titleRect().contains(picture.inked(QRectF(50, 0, 250, view->titleRect().bottom()), ground)));
        QCOMPARE(picture.inked(QRectF(50, view->detailRect().bottom(), 250, 10), ground), QRectF());
    }

    void inTheDarkItHasTheDarkColors()
    {
        const auto view = row(EBKitGlyph::minus, true);
        m_platform.look.setName(AppearanceName::DarkAqua);
        const Picture picture(*view, ground);
        const QPointF disc = view->discRect().center() + QPointF(0, 10);
        COMPARE_COLOR(picture.at(disc), EBKit::indigo().resolved(AppearanceName::DarkAqua));
    }

private:
    FakePlatform &m_platform = FakePlatform::install();
};

CORVANE_TEST(TestEBKitRow, runInWidgets)
#include "tst_ebkitrow.moc"
