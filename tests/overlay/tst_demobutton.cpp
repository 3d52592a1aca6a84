#include "Colors.h"
#include "DemoButton.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QGuiApplication>
#include <QPainter>
#include <QQuickWindow>

namespace {

/// Device pixels a point: enough to measure hundredths of a point.
constexpr int zoom = 40;
const QColor ground(0, 0, 200);

QImage drawn(OverlayButton kind, Theme theme, qreal size, bool dim = false, int scale = zoom)
{
    const int side = int(size * scale);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintDemoButton(&painter, QRectF(0, 0, size, size), kind, theme, size, dim);
    return image;
}

/// The colour at a point of the picture.
QColor at(const QImage &image, qreal x, qreal y)
{
    return image.pixelColor(int(x * zoom), int(y * zoom));
}

QColor clear(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

/// How many points of the column at `x` have a colour.
qreal measured(const QImage &image, qreal x, const QColor &color, qreal from, qreal to)
{
    int count = 0;
    for (int y = int(from * zoom); y < int(to * zoom); ++y)
        count += isNear(image.pixelColor(int(x * zoom), y), color) ? 1 : 0;
    return qreal(count) / zoom;
}

}

class DemoButtonTest : public QObject {
    Q_OBJECT
private slots:
    void init() { FakePlatform::install(); }
    void theDiscHasItsFillAndLeavesTheCornersFree();
    void theLineOfTheGlyphFollowsTheSizeDownToAFloor_data();
    void theLineOfTheGlyphFollowsTheSizeDownToAFloor();
    void theEndsOfTheLinesAreRound();
    void theBarRunsAlongPixels_data();
    void theBarRunsAlongPixels();
    void aTranslucentButtonShinesOverItsGround();
    void theRingLiesInsideTheEdge_data();
    void theRingLiesInsideTheEdge();
    void aDimmedButtonIsFadedUnderAWhiteRing_data();
    void aDimmedButtonIsFadedUnderAWhiteRing();
    void whereLinesCrossATranslucentGlyphIsNoDenser();
    void anItemIsAsLargeAsItsButtonAndDrawsWhatItIsTold();
    void unknownTextsDrawTheDefaultThemeAndNoButton();
};

void DemoButtonTest::theDiscHasItsFillAndLeavesTheCornersFree()
{
    const QImage image = drawn(OverlayButton::close, Theme::classic, 20);
    QVERIFY(isNear(at(image, 10, 3), QColor("#EC4640")));
    QVERIFY(isNear(at(image, 10, 10), Qt::white));
    QVERIFY(isNear(at(image, 0.5, 0.5), ground));
    QVERIFY(isNear(at(image, 2.6, 2.6), ground));
    QVERIFY(!isNear(at(image, 3.3, 3.3), ground));
}

void DemoButtonTest::theLineOfTheGlyphFollowsTheSizeDownToAFloor_data()
{
    QTest::addColumn<qreal>("size");
    QTest::addColumn<qreal>("width");
    QTest::newRow("a tile's") << 14.0 << 1.3;
    QTest::newRow("just below the floor") << 19.0 << 1.3;
    QTest::newRow("just above the floor") << 20.0 << 20.0 / 15;
    QTest::newRow("large") << 32.0 << 32.0 / 15;
}

void DemoButtonTest::theLineOfTheGlyphFollowsTheSizeDownToAFloor()
{
    QFETCH(const qreal, size);
    QFETCH(const qreal, width);
    const QImage image = drawn(OverlayButton::minimize, Theme::classic, size);
    const qreal found = measured(image, size / 2, Qt::white, size * 0.3, size * 0.7);
    QVERIFY2(std::abs(found - width) <= 2.0 / zoom, qPrintable(QString::number(found)));
}

void DemoButtonTest::theEndsOfTheLinesAreRound()
{
    // A bar of 30 points reaches 6.9 points from the middle and is 2 points thick.
    const QImage image = drawn(OverlayButton::minimize, Theme::classic, 30);
    QVERIFY(isNear(at(image, 15 + 6.9 + 0.9, 15), Qt::white));
    QVERIFY(isNear(at(image, 15 + 6.9 + 0.9, 15 - 0.9), QColor("#F5BF4F")));
}

void DemoButtonTest::theBarRunsAlongPixels_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("rows");
    QTest::newRow("a compact tile's") << 12 << 1;
    QTest::newRow("a tile's") << 14 << 1;
    QTest::newRow("in the practice") << 16 << 1;
    QTest::newRow("small") << 20 << 1;
    QTest::newRow("large") << 32 << 2;
}

void DemoButtonTest::theBarRunsAlongPixels()
{
    QFETCH(const int, size);
    QFETCH(const int, rows);
    const QImage image = drawn(OverlayButton::minimize, Theme::classic, size, false, 1);
    int full = 0;
    for (int y = 2; y < size - 2; ++y)
        full += isNear(image.pixelColor(size / 2, y), Qt::white) ? 1 : 0;
    QCOMPARE(full, rows);
}

void DemoButtonTest::aTranslucentButtonShinesOverItsGround()
{
    QQuickWindow window;
    window.setColor(Qt::red);
    window.resize(60, 60);
    DemoButton button(window.contentItem());
    button.setProperty("theme", "outline");
    button.setProperty("size", 32);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QColor fill = clear(Qt::black, 0.3F);
    QVERIFY(isNear(window.grabWindow().pixelColor(16, 5), over(fill, Qt::red)));
    button.setProperty("ground", QColor(Qt::white));
    QVERIFY(isNear(window.grabWindow().pixelColor(16, 5), over(fill, Qt::white)));
    QCOMPARE(window.grabWindow().pixelColor(1, 1), QColor(Qt::red));
}

void DemoButtonTest::theRingLiesInsideTheEdge_data()
{
    QTest::addColumn<Theme>("theme");
    QTest::addColumn<QColor>("fill");
    QTest::addColumn<QColor>("ring");
    QTest::addColumn<qreal>("width");
    QTest::newRow("classic") << Theme::classic << QColor("#EC4640") << clear(Qt::black, 0.18F) << 1.0;
    QTest::newRow("graphite") << Theme::graphite << QColor("#2C2C2E") << clear(Qt::white, 0.2F) << 1.0;
    QTest::newRow("outline") << Theme::outline << clear(Qt::black, 0.3F) << clear(Qt::white, 0.85F) << 1.5;
}

void DemoButtonTest::theRingLiesInsideTheEdge()
{
    QFETCH(const Theme, theme);
    QFETCH(const QColor, fill);
    QFETCH(const QColor, ring);
    QFETCH(const qreal, width);
    const QImage image = drawn(OverlayButton::close, theme, 32);
    const QColor disc = over(fill, ground);
    QVERIFY(isNear(at(image, 16, 0.1), over(ring, disc)));
    QVERIFY(isNear(at(image, 16, width - 0.1), over(ring, disc)));
    QVERIFY(isNear(at(image, 16, width + 0.1), disc));
}

void DemoButtonTest::aDimmedButtonIsFadedUnderAWhiteRing_data()
{
    QTest::addColumn<Theme>("theme");
    QTest::addColumn<QColor>("fill");
    QTest::addColumn<QColor>("glyph");
    QTest::newRow("classic") << Theme::classic << clear("#EC4640", 0.18F) << clear(Qt::white, 0.4F);
    QTest::newRow("mono") << Theme::mono << clear("#F5F5F7", 0.18F) << clear("#1C1C1E", 0.4F);
    QTest::newRow("outline") << Theme::outline << clear(Qt::black, 0.3F * 0.18F) << clear(Qt::white, 0.4F);
}

void DemoButtonTest::aDimmedButtonIsFadedUnderAWhiteRing()
{
    QFETCH(const Theme, theme);
    QFETCH(const QColor, fill);
    QFETCH(const QColor, glyph);
    const QImage image = drawn(OverlayButton::close, theme, 32, true);
    const QColor disc = over(fill, ground);
    QVERIFY(isNear(at(image, 16, 4), disc));
    // On one arm of the cross.
    QVERIFY(isNear(at(image, 16 + 4, 16 + 4), over(glyph, disc)));
    QVERIFY(isNear(at(image, 16, 0.1), over(clear(Qt::white, 0.25F), disc)));
    QVERIFY(isNear(at(image, 16, 0.9), over(clear(Qt::white, 0.25F), disc)));
    QVERIFY(isNear(at(image, 16, 1.1), disc));
}

void DemoButtonTest::whereLinesCrossATranslucentGlyphIsNoDenser()
{
    const QImage image = drawn(OverlayButton::close, Theme::classic, 32, true);
    QCOMPARE(at(image, 16, 16), at(image, 16 + 4, 16 + 4));
}

void DemoButtonTest::anItemIsAsLargeAsItsButtonAndDrawsWhatItIsTold()
{
    QQuickWindow window;
    window.setColor(Qt::black);
    window.resize(60, 60);
    DemoButton button(window.contentItem());
    button.setProperty("kind", "minimize");
    button.setProperty("theme", "soft");
    button.setProperty("size", 30);
    QCOMPARE(button.implicitWidth(), 30.0);
    QCOMPARE(button.implicitHeight(), 30.0);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.grabWindow().pixelColor(14, 5), QColor("#E3C47A"));
    QCOMPARE(window.grabWindow().pixelColor(15, 15), QColor(Qt::white));
    button.setProperty("theme", "graphite");
    QCOMPARE(window.grabWindow().pixelColor(14, 5), QColor("#636366"));
    button.setProperty("kind", "close");
    QCOMPARE(window.grabWindow().pixelColor(14, 5), QColor("#2C2C2E"));
    button.setProperty("dim", true);
    QVERIFY(isNear(window.grabWindow().pixelColor(14, 5), over(clear("#2C2C2E", 0.18F), Qt::black)));
    button.setProperty("size", 0);
    QCOMPARE(window.grabWindow().pixelColor(14, 5), QColor(Qt::black));
}

void DemoButtonTest::unknownTextsDrawTheDefaultThemeAndNoButton()
{
    QQuickWindow window;
    window.setColor(Qt::black);
    window.resize(60, 60);
    DemoButton button(window.contentItem());
    button.setProperty("size", 28);
    button.setProperty("theme", "neon");
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.grabWindow().pixelColor(14, 5), QColor("#EC4640"));
    button.setProperty("kind", "zoom");
    QCOMPARE(window.grabWindow().pixelColor(14, 5), QColor(Qt::black));
}

CORVANE_TEST(DemoButtonTest, runInGui)

#include "tst_demobutton.moc"
