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
    void windowsWithoutADisplayBelongTogether();
    void aLayoutWithoutWindowsShowsNone();
    void aShapeIsScaledToTheAreaInsideTheMargin();
    void aShapeIsNeverLowerOrNarrowerThanAPoint();
    void noNumberIsTooLarge();
    void theLabelCountsTheWindowsAndNamesTheApplications();
    void theIconStandsInTheMiddleWhereThereIsRoom();

private:
    QImage picture(const SavedLayout &layout, QSize size);

    FakePlatform *m_platform = nullptr;
};

void TestLayoutPreview::init()
{
    m_platform = &FakePlatform::install();
    QPixmap red(12, 12);
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
    return QTest::qWaitForWindowExposed(&window) ? window.grabWindow() : QImage();
}

void TestLayoutPreview::onlyTheFirstWindowsDisplayIsShown()
{
    const auto first = window("a", {0, 0, 1, 1}, "left");
    const auto other = window("b", {0, 0, 1, 1}, "right");
    const auto without = window("c", {0, 0, 1, 1});
    const auto last = window("d", {0, 0, 1, 1}, "left");
    QCOMPARE(LayoutPreviews::shown(layout({first, other, without, last})), (QList{first, last}));
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
    QCOMPARE(image.pixelColor(36, 22), QColor(Qt::black));
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

void TestLayoutPreview::theIconStandsInTheMiddleWhereThereIsRoom()
{
    const UnitRect whole = {0, 0, 1, 1};
    QCOMPARE(picture(layout({window("known", whole)}), QSize(46, 46)).pixelColor(23, 23), QColor(Qt::red));
    QCOMPARE(picture(layout({window("unknown", whole)}), QSize(46, 46)).pixelColor(23, 23), QColor(Qt::white));
    // 15 points are too few, 16 are enough.
    QCOMPARE(picture(layout({window("known", whole)}), QSize(46, 21)).pixelColor(23, 10), QColor(Qt::white));
    QCOMPARE(picture(layout({window("known", whole)}), QSize(46, 22)).pixelColor(23, 11), QColor(Qt::red));
}

CORVANE_TEST(TestLayoutPreview, runInGui)
#include "tst_layoutpreview.moc"
