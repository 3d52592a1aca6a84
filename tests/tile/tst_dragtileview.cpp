#include "AnimationClock.h"
#include "DragTilePanel.h"
#include "DragTileView.h"
#include "FakePlatform.h"
#include "Glyph.h"
#include "IconImage.h"
#include "Motion.h"
#include "OnDesktop.h"
#include "TestProgram.h"
#include "Views.h"
#include "Wrapping.h"

#include <QAccessible>
#include <QDrag>
#include <QElapsedTimer>
#include <QMimeData>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

namespace {

const QUrl product = QUrl::fromLocalFile("/opt/Corvane.app");

QElapsedTimer started()
{
    QElapsedTimer timer;
    timer.start();
    return timer;
}

QIcon square(int side)
{
    QPixmap red(side, side);
    red.fill(Qt::red);
    return QIcon(red);
}

/// Accepts the pointer everywhere.
class Greedy : public QQuickItem {
public:
    explicit Greedy(QQuickItem *parent) : QQuickItem(parent)
    {
        setAcceptedMouseButtons(Qt::LeftButton);
        setSize(parent->size());
    }

protected:
    void mousePressEvent(QMouseEvent *event) override { event->accept(); }
};

}

/// The tile itself: what it shows and what is dragged. Only a real display has drags.
class DragTileViewTest : public QObject {
    Q_OBJECT
public:
    explicit DragTileViewTest(const Desktop &) { }

private slots:
    void init();
    void cleanup() { m_panel.reset(); }

    void theTileHasItsSizeAndTheContentFillsIt();
    void theIconTheTextsAndTheArrowStandWhereTheyShould();
    void whereTextRunsTheOtherWayTheTileIsMirrored();
    void theGroundIsARoundedCard();
    void whereWindowsAreBlendedItHasASoftShadow();
    void whereTheyAreNotEverythingInItsShapeIsOpaque();
    void theTextsFitWithAWiderFace();
    void theArrowBobsBySixPointsWhileTheTileIsShown();
    void oneWayTakesTheArrowSevenTenthsOfASecond();
    void withLessMotionTheArrowStandsStillInTheMiddle();
    void itIsOneElementNamedByItsTexts();

    void itNeverTakesTheKeyboard();
    void thePointerHitsTheTileItselfEverywhere_data();
    void thePointerHitsTheTileItselfEverywhere();
    void theCursorIsAnOpenHand();
    void aDragCarriesTheApplicationAsAFile();
    void aDragOffersACopyAndNothingElse();
    void theDraggedPictureIsTheIconWhereItStood_data();
    void theDraggedPictureIsTheIconWhereItStood();
    void aDragBeginsWithTheFirstMove();
    void anotherButtonDragsNothing();
    void disposedOfInTheMiddleOfADragThePanelGoesWhenItEnds();
    void aPictureFillsItsSquareWhateverSizeTheIconHas_data();
    void aPictureFillsItsSquareWhateverSizeTheIconHas();

private:
    DragTileView &view() const { return *m_panel->view(); }
    QQuickItem &content() const { return *Views::visible(&view(), "DragTileContent").constFirst(); }
    FoundItem text(const QString &text) const { return Views::text(&content(), text); }
    QRectF frame(const QQuickItem *item) const;
    void show();

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<DragTilePanel> m_panel;
};

void DragTileViewTest::init()
{
    m_platform = &FakePlatform::install();
    m_platform->look.setReduceMotion(true);
    m_platform->space.fileIcons.insert("/opt/Corvane.app", square(256));
    m_panel = std::make_unique<DragTilePanel>(product);
}

QRectF DragTileViewTest::frame(const QQuickItem *item) const
{
    return item->mapRectToItem(&view(), item->boundingRect());
}

void DragTileViewTest::show()
{
    m_panel->orderFront();
    REQUIRE(QTest::qWaitForWindowExposed(m_panel.get()));
}

void DragTileViewTest::theTileHasItsSizeAndTheContentFillsIt()
{
    QCOMPARE(m_panel->tile().size(), QSize(330, 76));
    QCOMPARE(m_panel->minimumSize(), m_panel->size());
    QCOMPARE(m_panel->maximumSize(), m_panel->size());
    QCOMPARE(view().size(), QSizeF(330, 76));
    QCOMPARE(content().size(), QSizeF(330, 76));
    view().setSize({400, 100});
    QCOMPARE(content().size(), QSizeF(400, 100));
}

void DragTileViewTest::theIconTheTextsAndTheArrowStandWhereTheyShould()
{
    show();
    const auto *icon = content().findChild<IconImage *>();
    const auto *arrow = content().findChild<Glyph *>();
    const QQuickItem *title = text("Not in the list? Drag me in.");
    const QQuickItem *hint = text("Drop Corvane onto the Accessibility list above.");
    QVERIFY(icon && arrow && title && hint);
    QCOMPARE(frame(icon), QRectF(12, 14, 48, 48));
    QCOMPARE(arrow->property("name").toString(), "arrow");
    QCOMPARE(arrow->property("size").toReal(), 16.0);
    QCOMPARE(arrow->rotation(), -90.0);
    QCOMPARE(frame(arrow), QRectF(302, 30, 16, 16));
    QCOMPARE(frame(title).left(), 72.0);
    QCOMPARE(frame(hint).left(), 72.0);
    QCOMPARE(frame(hint).top() - frame(title).bottom(), 1.0);
    QVERIFY(std::abs((frame(title).top() + frame(hint).bottom()) / 2 - 38) <= 1);
    QCOMPARE(title->property("font").value<QFont>().pixelSize(), 13);
    QCOMPARE(title->property("font").value<QFont>().weight(), QFont::DemiBold);
    QCOMPARE(hint->property("font").value<QFont>().pixelSize(), 11);
    QCOMPARE(hint->property("font").value<QFont>().weight(), QFont::Normal);
    QVERIFY2(lastLine(*hint).contains(u' '), qPrintable(lastLine(*hint)));
}

void DragTileViewTest::whereTextRunsTheOtherWayTheTileIsMirrored()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    m_panel = std::make_unique<DragTilePanel>(product);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    show();
    QCOMPARE(frame(content().findChild<IconImage *>()), QRectF(270, 14, 48, 48));
    QCOMPARE(frame(content().findChild<Glyph *>()), QRectF(12, 30, 16, 16));
    QCOMPARE(frame(text("Not in the list? Drag me in.")).right(), 258.0);
}

void DragTileViewTest::theGroundIsARoundedCard()
{
    show();
    const QImage picture = m_panel->grabWindow().copy({{24, 24}, QSize(330, 76)});
    const QColor surface(Qt::white);
    QCOMPARE(picture.pixelColor(165, 6), surface);
    QCOMPARE(picture.pixelColor(6, 38), surface);
    QVERIFY(picture.pixelColor(0, 0) != surface);
    QVERIFY(picture.pixelColor(329, 75) != surface);
    // The line lies inside the edge and is one point wide.
    QVERIFY(picture.pixelColor(165, 0) != surface);
    QCOMPARE(picture.pixelColor(165, 0).alpha(), 255);
    QCOMPARE(picture.pixelColor(165, 1), surface);
    QVERIFY(picture.pixelColor(0, 38) != surface);
    QCOMPARE(picture.pixelColor(1, 38), surface);
    QCOMPARE(content().property("radius").toReal(), 16.0);
}

void DragTileViewTest::whereWindowsAreBlendedItHasASoftShadow()
{
    m_panel->followCompositor();
    show();
    QVERIFY(m_panel->mask().isEmpty());
    const QImage picture = m_panel->grabWindow();
    QCOMPARE(picture.size(), QSize(378, 124));
    const auto shade = [&](int x, int y) { return picture.pixelColor(x, y).alpha(); };
    // It fades out before it reaches the edges, and falls downwards.
    QCOMPARE(shade(189, 0), 0);
    QCOMPARE(shade(0, 62), 0);
    QCOMPARE(shade(0, 123), 0);
    QVERIFY(shade(189, 101) > shade(189, 108));
    QVERIFY(shade(189, 108) > shade(189, 115));
    QVERIFY(shade(189, 115) > 0);
    QVERIFY(shade(189, 101) > shade(189, 22));
    QVERIFY(shade(189, 101) < 80);
}

void DragTileViewTest::whereTheyAreNotEverythingInItsShapeIsOpaque()
{
    m_platform->space.blends = false;
    m_panel->followCompositor();
    show();
    const QImage picture = m_panel->grabWindow();
    const QRegion shape = m_panel->mask();
    QCOMPARE(shape.boundingRect(), QRect(25, 25, 328, 74));
    for (const QRect &part : shape) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x)
                QCOMPARE(picture.pixelColor(x, y).alpha(), 255);
        }
    }
    // The tile keeps its line, a pixel further inside.
    QVERIFY(picture.pixelColor(189, 25) != QColor(Qt::white));
    QCOMPARE(picture.pixelColor(189, 26), QColor(Qt::white));
}

void DragTileViewTest::theTextsFitWithAWiderFace()
{
    show();
    for (QQuickItem *item :
         {text("Not in the list? Drag me in."), text("Drop Corvane onto the Accessibility list above.")}) {
        QFont font = item->property("font").value<QFont>();
        font.setFamilies({"DejaVu Sans"});
        item->setProperty("font", font);
        item->ensurePolished();
        QVERIFY(!item->property("truncated").toBool());
        QVERIFY(item->property("contentWidth").toReal() <= item->width());
    }
    QTRY_VERIFY(frame(text("Not in the list? Drag me in.")).top() >= 4);
    QVERIFY(frame(text("Drop Corvane onto the Accessibility list above.")).bottom() <= 72);
}

void DragTileViewTest::theArrowBobsBySixPointsWhileTheTileIsShown()
{
    m_platform->look.setReduceMotion(false);
    auto *arrow = content().findChild<Glyph *>();
    qreal highest = 100;
    qreal lowest = -100;
    const QObject watch;
    connect(arrow, &QQuickItem::yChanged, &watch, [&] {
        const qreal y = arrow->y() - 30;
        highest = std::min(highest, y);
        lowest = std::max(lowest, y);
    });
    show();
    QTRY_COMPARE(highest, -3.0);
    // From there on it takes 0.7 seconds down and as long up again.
    const QElapsedTimer sinceTop = started();
    lowest = -100;
    QTRY_COMPARE(lowest, 3.0);
    highest = 100;
    QTRY_COMPARE(highest, -3.0);
    QVERIFY(sinceTop.elapsed() > 1200);
    m_panel->hide();
    QCOMPARE(arrow->y(), 33.0);
    QVERIFY(!content().property("nudge").toBool());
    m_panel->orderFront();
    QTRY_VERIFY(arrow->y() < 28);
}

void DragTileViewTest::oneWayTakesTheArrowSevenTenthsOfASecond()
{
    m_platform->look.setReduceMotion(false);
    AnimationClock clock;
    const auto *arrow = content().findChild<Glyph *>();
    show();
    // From where it turns at the top.
    for (qreal before = 100; arrow->y() < before; clock.advance(1))
        before = arrow->y();
    const QEasingCurve curve = Motion::easeInOut();
    int now = 1;
    for (const int time : {175, 350, 525, 700, 875, 1050, 1225, 1400}) {
        clock.advance(time - now);
        now = time;
        const qreal share = time <= 700 ? time / 700.0 : (1400 - time) / 700.0;
        const qreal drop = 6 * curve.valueForProgress(share) - 3;
        QVERIFY2(std::abs(arrow->y() - (30 + drop)) < 0.06,
                 qPrintable(QStringLiteral("%1 ms: %2 instead of %3").arg(time).arg(arrow->y() - 30).arg(drop)));
    }
}

void DragTileViewTest::withLessMotionTheArrowStandsStillInTheMiddle()
{
    show();
    auto *arrow = content().findChild<Glyph *>();
    QCOMPARE(arrow->y(), 30.0);
    QVERIFY(!content().property("nudge").toBool());
    m_platform->look.setReduceMotion(false);
    QVERIFY(content().property("nudge").toBool());
    QTRY_VERIFY(arrow->y() < 28);
    m_platform->look.setReduceMotion(true);
    QTRY_COMPARE(arrow->y(), 30.0);
}

void DragTileViewTest::itIsOneElementNamedByItsTexts()
{
    show();
    QAccessibleInterface *window = QAccessible::queryAccessibleInterface(m_panel.get());
    QVERIFY(window);
    QCOMPARE(window->childCount(), 1);
    QAccessibleInterface *tile = window->child(0);
    QCOMPARE(tile->text(QAccessible::Name), "Not in the list? Drag me in.");
    QCOMPARE(tile->text(QAccessible::Description), "Drop Corvane onto the Accessibility list above.");
    QCOMPARE(tile->childCount(), 0);
}

void DragTileViewTest::itNeverTakesTheKeyboard()
{
    QWindow inFront;
    inFront.resize(200, 200);
    inFront.show();
    inFront.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&inFront));
    show();
    QTest::mouseClick(m_panel.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 38));
    QCOMPARE(QGuiApplication::focusWindow(), &inFront);
    const Qt::WindowFlags flags = m_panel->flags();
    QVERIFY(flags & Qt::WindowDoesNotAcceptFocus);
    QVERIFY(flags & Qt::WindowStaysOnTopHint);
    QVERIFY(flags & Qt::FramelessWindowHint);
}

void DragTileViewTest::thePointerHitsTheTileItselfEverywhere_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::newRow("icon") << QPointF(30, 30);
    QTest::newRow("text") << QPointF(150, 38);
    QTest::newRow("arrow") << QPointF(310, 38);
    QTest::newRow("cut-off corner") << QPointF(0, 0);
    QTest::newRow("last point") << QPointF(329, 75);
}

void DragTileViewTest::thePointerHitsTheTileItselfEverywhere()
{
    QFETCH(QPointF, point);
    new Greedy(&content());
    show();
    QVERIFY(view().contains(point));
    QSignalSpy ended(&view(), &DragTileView::dragEnded);
    QTest::mousePress(m_panel.get(), Qt::LeftButton, Qt::NoModifier, point.toPoint());
    QTimer::singleShot(0, this, [] { QDrag::cancel(); });
    QTest::mouseMove(m_panel.get(), point.toPoint() - QPoint(0, point.y() > 0 ? 1 : -1));
    QCOMPARE(ended.size(), 1);
}

void DragTileViewTest::theCursorIsAnOpenHand()
{
    QCOMPARE(view().cursor().shape(), Qt::OpenHandCursor);
    const auto items = content().findChildren<QQuickItem *>();
    for (const QQuickItem *item : items)
        QCOMPARE(item->cursor().shape(), Qt::ArrowCursor);
}

void DragTileViewTest::aDragCarriesTheApplicationAsAFile()
{
    const std::unique_ptr<QDrag> drag(view().makeDrag({20, 20}));
    QCOMPARE(drag->mimeData()->urls(), QList<QUrl>{product});
    QCOMPARE(drag->mimeData()->formats(), QStringList{"text/uri-list"});
}

void DragTileViewTest::aDragOffersACopyAndNothingElse()
{
    show();
    Qt::DropActions offered;
    Qt::DropAction usual = Qt::IgnoreAction;
    QTest::mousePress(m_panel.get(), Qt::LeftButton, Qt::NoModifier, {150, 38});
    QTimer::singleShot(0, this, [&] {
        const auto *drag = view().findChild<QDrag *>();
        offered = drag->supportedActions();
        usual = drag->defaultAction();
        QDrag::cancel();
    });
    QTest::mouseMove(m_panel.get(), {150, 30});
    QCOMPARE(offered, Qt::DropActions(Qt::CopyAction));
    QCOMPARE(usual, Qt::CopyAction);
}

void DragTileViewTest::theDraggedPictureIsTheIconWhereItStood_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QPoint>("hotSpot");
    QTest::newRow("at its corner") << QPointF(12, 10) << QPoint(0, 0);
    QTest::newRow("in its middle") << QPointF(40, 38) << QPoint(28, 28);
    QTest::newRow("far from it") << QPointF(312, 60) << QPoint(300, 50);
    QTest::newRow("above it") << QPointF(3, 4) << QPoint(-9, -6);
}

void DragTileViewTest::theDraggedPictureIsTheIconWhereItStood()
{
    QFETCH(QPointF, point);
    QFETCH(QPoint, hotSpot);
    const std::unique_ptr<QDrag> drag(view().makeDrag(point));
    QCOMPARE(drag->hotSpot(), hotSpot);
    QCOMPARE(drag->pixmap().deviceIndependentSize(), QSizeF(56, 56));
    QCOMPARE(drag->pixmap().toImage().pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(drag->pixmap().toImage().pixelColor(55, 55), QColor(Qt::red));
}

void DragTileViewTest::aDragBeginsWithTheFirstMove()
{
    show();
    QTest::mousePress(m_panel.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 38));
    QVERIFY(!view().isDragging());
    bool wasDragging = false;
    QTimer::singleShot(0, this, [&] {
        wasDragging = view().isDragging();
        QDrag::cancel();
    });
    QTest::mouseMove(m_panel.get(), QPoint(101, 38));
    QVERIFY(wasDragging);
    QVERIFY(!view().isDragging());
    // And the next one is as good as the first.
    wasDragging = false;
    QTest::mouseRelease(m_panel.get(), Qt::LeftButton, Qt::NoModifier, QPoint(101, 38));
    QTest::mousePress(m_panel.get(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 38));
    QTimer::singleShot(0, this, [&] {
        wasDragging = view().isDragging();
        QDrag::cancel();
    });
    QTest::mouseMove(m_panel.get(), QPoint(201, 39));
    QVERIFY(wasDragging);
}

void DragTileViewTest::anotherButtonDragsNothing()
{
    show();
    const QSignalSpy ended(&view(), &DragTileView::dragEnded);
    QTest::mousePress(m_panel.get(), Qt::RightButton, Qt::NoModifier, QPoint(100, 38));
    QTest::mouseMove(m_panel.get(), QPoint(140, 38));
    QTest::mouseRelease(m_panel.get(), Qt::RightButton, Qt::NoModifier, QPoint(140, 38));
    // Neither does moving over it.
    QTest::mouseMove(m_panel.get(), QPoint(100, 38));
    QCOMPARE(ended.size(), 0);
}

void DragTileViewTest::disposedOfInTheMiddleOfADragThePanelGoesWhenItEnds()
{
    show();
    const QPointer<DragTilePanel> panel = m_panel.get();
    QTest::mousePress(panel, Qt::LeftButton, Qt::NoModifier, QPoint(100, 38));
    bool wentOn = false;
    QTimer::singleShot(0, this, [&] {
        m_panel.release()->dispose();
        QTimer::singleShot(0, this, [&] {
            wentOn = panel && !panel->isVisible() && panel->view()->isDragging();
            QDrag::cancel();
        });
    });
    QTest::mouseMove(panel, QPoint(101, 38));
    QVERIFY(wentOn);
    QTRY_VERIFY(!panel);
}

void DragTileViewTest::aPictureFillsItsSquareWhateverSizeTheIconHas_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("smaller") << 16;
    QTest::newRow("the same") << 56;
    QTest::newRow("larger") << 512;
}

void DragTileViewTest::aPictureFillsItsSquareWhateverSizeTheIconHas()
{
    QFETCH(int, side);
    for (const qreal scale : {1.0, 2.0}) {
        const QPixmap picture = IconImage::picture(square(side), 56, scale);
        QCOMPARE(picture.size(), QSize(56, 56) * scale);
        QCOMPARE(picture.devicePixelRatio(), scale);
        const QImage image = picture.toImage();
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), QColor(Qt::red));
    }
    QCOMPARE(IconImage::picture(QIcon(), 56, 1).toImage().pixelColor(28, 28).alpha(), 0);
}

CORVANE_TEST(DragTileViewTest, runOnDesktop)

#include "tst_dragtileview.moc"
