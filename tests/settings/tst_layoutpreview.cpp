#include "FakePlatform.h"
#include "LayoutPreview.h"
#include "TestProgram.h"

#include <QQuickItemGrabResult>
#include <QQuickWindow>

#include <limits>

namespace {

SavedLayout::Window window(const QString &app, const UnitRect &rect, std::optional<QString> display = {})
{
    return {app, app, QString(), rect, std::move(display)};
}

SavedLayout layout(const QList<SavedLayout::Window> &windows)
{
    return {QUuid::createUuid(), "Layout", windows, 0};
}

}

class TestLayoutPreview : public QObject {
    Q_OBJECT

private slots:
    void init();
    void onlyTheFirstWindowsDisplayIsShown();
    void onlyTheFirstWindowsDisplayIsDrawn();
    void windowsWithoutADisplayBelongTogether();
    void aLayoutWithoutWindowsShowsNone();
    void aShapeIsScaledToTheAreaInsideTheMargin();
    void aShapeIsNeverLowerOrNarrowerThanAPoint();
    void noNumberIsTooLarge();
    void theLabelCountsTheWindowsAndNamesTheApplications();
    void aShapeIsDrawnAtLeastAPointWideAndHigh();
    void theIconStandsInTheMiddleWhereThereIsRoom_data();
    void theIconStandsInTheMiddleWhereThereIsRoom();
    void anApplicationThatIsNotInstalledHasNoIcon();
    void theIconIs12PointsLarge();

private:
    QImage picture(const SavedLayout &layout, QSize size);
    /// The pixel at a point.
    static QColor at(const QImage &image, QPointF point)
    {
        return image.pixelColor((point * image.devicePixelRatio()).toPoint());
    }

    FakePlatform *m_platform = nullptr;
};

void TestLayoutPreview::init()
{
    m_platform = &FakePlatform::install();
    QPixmap red(64, 64);
    red.fill(Qt::red);
    m_platform->space.icons.insert("known", QIcon(red));
}

QImage TestLayoutPreview::picture(const SavedLayout &layout, QSize size)
{
    QQuickWindow window;
    window.resize(size);
    LayoutPreview preview(window.contentItem());
    preview.setSize(size);
    preview.setProperty("color", QColor(Qt::black));
    preview.setProperty("windowColor", QColor(Qt::white));
    preview.setProperty("borderColor", QColor(Qt::blue));
    preview.setLayout(QVariant::fromValue(layout));
    window.show();
    QImage image = QTest::qWaitForWindowExposed(&window) ? window.grabWindow() : QImage();
    image.setDevicePixelRatio(window.effectiveDevicePixelRatio());
    return image;
}

void TestLayoutPreview::onlyTheFirstWindowsDisplayIsShown()
{
    const auto first = window("a", {0, 0, 1, 1}, "left");
    const auto other = window("b", {0, 0, 1, 1}, "right");
    const auto without = window("c", {0, 0, 1, 1});
    const auto last = window("d", {0, 0, 1, 1}, "left");
    QCOMPARE(LayoutPreviews::shown(layout({first, other, without, last})), (QList{first, last}));
}

void TestLayoutPreview::onlyTheFirstWindowsDisplayIsDrawn()
{
    const auto left = window("a", {0, 0, 0.5, 1}, "first");
    const auto right = window("b", {0.5, 0, 0.5, 1}, "second");
    const QImage image = picture(layout({left, right}), QSize(72, 42));
    QCOMPARE(at(image, {18, 21}), QColor(Qt::white));
    QCOMPARE(at(image, {54, 21}), QColor(Qt::black));
    const QImage both = picture(layout({left, window("b", {0.5, 0, 0.5, 1}, "first")}), QSize(72, 42));
    QCOMPARE(at(both, {54, 21}), QColor(Qt::white));
}

void TestLayoutPreview::windowsWithoutADisplayBelongTogether()
{
    const auto first = window("a", {0, 0, 1, 1});
    const auto other = window("b", {0, 0, 1, 1}, "right");
    const auto last = window("c", {0, 0, 1, 1});
    QCOMPARE(LayoutPreviews::shown(layout({first, other, last})), (QList{first, last}));
}

void TestLayoutPreview::aLayoutWithoutWindowsShowsNone()
{
    QVERIFY(LayoutPreviews::shown(layout({})).isEmpty());
    const QImage image = picture(layout({}), QSize(72, 45));
    QCOMPARE(at(image, {36, 22}), QColor(Qt::black));
}

void TestLayoutPreview::aShapeIsScaledToTheAreaInsideTheMargin()
{
    QCOMPARE(LayoutPreviews::shape({0, 0, 1, 1}, QSizeF(106, 56)), QRectF(3, 3, 100, 50));
    QCOMPARE(LayoutPreviews::shape({0.5, 0.2, 0.25, 0.4}, QSizeF(106, 56)), QRectF(53, 13, 25, 20));
}

void TestLayoutPreview::aShapeIsNeverLowerOrNarrowerThanAPoint()
{
    QCOMPARE(LayoutPreviews::shape({0, 0, 0, 0.001}, QSizeF(106, 56)).size(), QSizeF(1, 1));
    QCOMPARE(LayoutPreviews::shape({0, 0, -1, 1}, QSizeF(106, 56)).size(), QSizeF(1, 50));
}

void TestLayoutPreview::noNumberIsTooLarge()
{
    const double huge = std::numeric_limits<double>::max();
    const QRectF shape = LayoutPreviews::shape({huge, -huge, huge, huge}, QSizeF(72, 45));
    QVERIFY(qIsFinite(shape.right()) && qIsFinite(shape.bottom()));
    QVERIFY(!picture(layout({window("known", {-huge, -huge, huge, huge})}), QSize(72, 45)).isNull());
}

void TestLayoutPreview::theLabelCountsTheWindowsAndNamesTheApplications()
{
    LayoutPreview preview;
    preview.setLayout(QVariant::fromValue(layout({window("Browser", {}), window("Notes", {}, "right")})));
    QCOMPARE(preview.label(), "2 windows: Browser, Notes");
}

void TestLayoutPreview::aShapeIsDrawnAtLeastAPointWideAndHigh()
{
    // Wherever it stands among the pixels.
    for (int place = 0; place < 24; ++place) {
        const double from = 0.2 + place / 100.0;
        const QImage narrow = picture(layout({window("a", {from, 0, 0, 1})}), QSize(72, 42));
        const QImage low = picture(layout({window("a", {0, from, 1, 0})}), QSize(72, 42));
        int wide = 0;
        for (int x = 0; x < narrow.width(); ++x)
            wide += narrow.pixelColor(x, narrow.height() / 2) == Qt::blue ? 1 : 0;
        int high = 0;
        for (int y = 0; y < low.height(); ++y)
            high += low.pixelColor(low.width() / 2, y) == Qt::blue ? 1 : 0;
        QVERIFY2(wide >= narrow.devicePixelRatio(), qPrintable(QString("%1 pixels wide at %2").arg(wide).arg(from)));
        QVERIFY2(high >= low.devicePixelRatio(), qPrintable(QString("%1 pixels high at %2").arg(high).arg(from)));
    }
}

void TestLayoutPreview::theIconStandsInTheMiddleWhereThereIsRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("hasIcon");
    // 3 points on each side are margin: 16 points are enough, 15 are too few.
    QTest::newRow("large") << QSize(46, 46) << true;
    QTest::newRow("high enough") << QSize(46, 22) << true;
    QTest::newRow("too low") << QSize(46, 21) << false;
    QTest::newRow("wide enough") << QSize(22, 46) << true;
    QTest::newRow("too narrow") << QSize(21, 46) << false;
}

void TestLayoutPreview::theIconStandsInTheMiddleWhereThereIsRoom()
{
    QFETCH(const QSize, size);
    QFETCH(const bool, hasIcon);
    const QImage image = picture(layout({window("known", {0, 0, 1, 1})}), size);
    QCOMPARE(at(image, QPointF(size.width(), size.height()) / 2), QColor(hasIcon ? Qt::red : Qt::white));
}

void TestLayoutPreview::anApplicationThatIsNotInstalledHasNoIcon()
{
    const QImage image = picture(layout({window("unknown", {0, 0, 1, 1})}), QSize(46, 46));
    QCOMPARE(at(image, {23, 23}), QColor(Qt::white));
}

void TestLayoutPreview::theIconIs12PointsLarge()
{
    const QImage image = picture(layout({window("known", {0, 0, 1, 1})}), QSize(46, 46));
    int left = image.width();
    int right = 0;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, image.height() / 2) != Qt::red)
            continue;
        left = std::min(left, x);
        right = std::max(right, x);
    }
    QCOMPARE(right + 1 - left, 12 * image.devicePixelRatio());
    QVERIFY(std::abs((left + right + 1) / 2.0 - image.width() / 2.0) <= 1);
}

CORVANE_TEST(TestLayoutPreview, runInGui)
#include "tst_layoutpreview.moc"
