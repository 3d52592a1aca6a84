#include "EBKit.h"
#include "Glyph.h"
#include "OverlayView.h"
#include "TestProgram.h"
#include "WindowFace.h"

#include <QFont>

class FakeWindowTest : public QObject {
    Q_OBJECT
private slots:
    void itsTextsAreACaptionAndALabelOnAChip();
    void itsGlyphStandsBesideTheCaption();
    void itIsACardWithABorderAndRoundCorners_data();
    void itIsACardWithABorderAndRoundCorners();
    void theCornersAreSmallerInTheCompactForm();
    void contentStaysInsideAtEverySize_data();
    void contentStaysInsideAtEverySize();
    void aLongTitleIsCutOff();
    void itFollowsTheAppearance();
    void itIsAbsentFromAccessibility();
    void fromRightToLeftItLooksTheSame();

private:
    static QVariantMap properties(bool compact, QSizeF size = {200, 112})
    {
        return {{"app", "Browser"},
                {"title", "Start page"},
                {"compact", compact},
                {"width", size.width()},
                {"height", size.height()}};
    }
    /// How far the corner cuts into the diagonal: 0.29 radii for a circular corner.
    static int cut(OverlayView &view)
    {
        const QImage image = view.picture();
        int place = 0;
        while (isNear(image.pixelColor(20 + place, 20 + place), Qt::magenta))
            ++place;
        return place;
    }
};

void FakeWindowTest::itsTextsAreACaptionAndALabelOnAChip()
{
    OverlayView view("FakeWindow", properties(false), 0);
    QQuickItem *caption = view.textItem("BROWSER");
    QVERIFY(caption);
    QVERIFY(isNear(caption->property("color").value<QColor>(), EBKit::inkMuted().current()));
    QVERIFY(caption->property("font").value<QFont>().letterSpacing() > 0);
    QQuickItem *label = view.textItem("Start page");
    QVERIFY(label);
    QVERIFY(isNear(label->property("color").value<QColor>(), EBKit::ink().current()));
    QCOMPARE(label->property("font").value<QFont>().weight(), QFont::DemiBold);
    QVERIFY(isNear(view.pixel(label, {-3, label->height() / 2}),
                   over(EBKit::chip().current(), EBKit::surface().current())));
    QVERIFY(view.rectOf(caption).bottom() <= view.rectOf(label).top());
}

void FakeWindowTest::itsGlyphStandsBesideTheCaption()
{
    OverlayView plain("FakeWindow", properties(true, {128, 74}), 0);
    QVERIFY(plain.all<Glyph>().isEmpty());
    QVariantMap withGlyph = properties(true, {128, 74});
    withGlyph.insert("glyph", "globe");
    OverlayView view("FakeWindow", withGlyph, 0);
    const auto glyphs = view.all<Glyph>();
    QCOMPARE(glyphs.size(), 1);
    QCOMPARE(glyphs.constFirst()->property("name").toString(), "globe");
    QVERIFY(isNear(glyphs.constFirst()->property("color").value<QColor>(), EBKit::inkMuted().current()));
    const QRectF caption = view.rectOf(view.textItem("BROWSER"));
    const QRectF glyph = view.rectOf(glyphs.constFirst());
    QCOMPARE(glyph.right(), 128.0 - view.all<WindowFace>().constFirst()->margin());
    QVERIFY(std::abs(glyph.center().y() - caption.center().y()) <= 1);
    QVERIFY(caption.right() < glyph.left());
}

void FakeWindowTest::itIsACardWithABorderAndRoundCorners_data()
{
    QTest::addColumn<bool>("compact");
    QTest::newRow("full") << false;
    QTest::newRow("compact") << true;
}

void FakeWindowTest::itIsACardWithABorderAndRoundCorners()
{
    QFETCH(const bool, compact);
    OverlayView view("FakeWindow", properties(compact), 0);
    const QColor card = EBKit::surface().current();
    QQuickItem *root = &view.root();
    QVERIFY(isNear(view.pixel(root, {0, 0}), EBKit::paper().current()));
    QVERIFY(isNear(view.pixel(root, {0, 60}), over(EBKit::lineStrong().current(), card)));
    QVERIFY(isNear(view.pixel(root, {1, 60}), card));
    QVERIFY(isNear(view.pixel(root, {100, 111}), over(EBKit::lineStrong().current(), card)));
    QVERIFY(isNear(view.pixel(root, {100, 110}), card));
    // The title strip.
    QVERIFY(isNear(view.pixel(root, {100, 5}), over(EBKit::chip().current(), card)));
}

void FakeWindowTest::theCornersAreSmallerInTheCompactForm()
{
    OverlayView view("FakeWindow", properties(false), 0);
    view.window().setColor(Qt::magenta);
    const int full = cut(view);
    view.root().setProperty("compact", true);
    const int compact = cut(view);
    // A circular corner of 12 and of 9 points cuts off 3.5 and 2.6 of the diagonal, a continuous one about as much.
    QCOMPARE(full, 3);
    QCOMPARE(compact, 2);
}

void FakeWindowTest::contentStaysInsideAtEverySize_data()
{
    QTest::addColumn<bool>("compact");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("the pane's preview") << false << QSizeF(200, 112);
    QTest::newRow("the guide's preview") << false << QSizeF(128, 76);
    QTest::newRow("the practice") << true << QSizeF(128, 74);
    QTest::newRow("too low for content") << true << QSizeF(128, 40);
}

void FakeWindowTest::contentStaysInsideAtEverySize()
{
    QFETCH(const bool, compact);
    QFETCH(const QSizeF, size);
    OverlayView view("FakeWindow", properties(compact, size), 0);
    const QImage image = view.picture();
    // A frame of bare card inside the border, below the strip.
    const QColor card = EBKit::surface().current();
    for (int y = 24; y < size.height() - 12; ++y) {
        QVERIFY2(isNear(image.pixelColor(20 + 5, 20 + y), card), qPrintable(QString::number(y)));
        QVERIFY2(isNear(image.pixelColor(20 + int(size.width()) - 6, 20 + y), card), qPrintable(QString::number(y)));
    }
    if (size.height() > 60) {
        for (int x = 14; x < size.width() - 14; ++x)
            QVERIFY(isNear(image.pixelColor(20 + x, 20 + int(size.height()) - 4), card));
    }
}

void FakeWindowTest::aLongTitleIsCutOff()
{
    QVariantMap shown = properties(true, {128, 74});
    shown.insert("title", "A title that is much longer than the window is wide");
    OverlayView view("FakeWindow", shown, 0);
    QQuickItem *label = view.textItem("A title that is much longer than the window is wide");
    QVERIFY(label->property("truncated").toBool());
    QVERIFY(view.rectOf(label).right() <= 128 - 10);
}

void FakeWindowTest::itFollowsTheAppearance()
{
    OverlayView view("FakeWindow", properties(false), 0);
    view.platform.look.setName(AppearanceName::DarkAqua);
    QVERIFY(isNear(view.pixel(&view.root(), {2, 60}), QColor("#1B1B1D")));
    view.platform.look.setName(AppearanceName::Aqua);
    QVERIFY(isNear(view.pixel(&view.root(), {2, 60}), QColor("#FFFFFF")));
}

void FakeWindowTest::itIsAbsentFromAccessibility()
{
    OverlayView view("FakeWindow", properties(false), 0);
    QCOMPARE(QAccessible::queryAccessibleInterface(&view.window())->childCount(), 0);
}

void FakeWindowTest::fromRightToLeftItLooksTheSame()
{
    OverlayView view("FakeWindow", properties(false), 0);
    const QImage before = view.picture();
    view.mirror();
    QCOMPARE(view.picture(), before);
}

CORVANE_TEST(FakeWindowTest, runInGui)
#include "tst_fakewindow.moc"
