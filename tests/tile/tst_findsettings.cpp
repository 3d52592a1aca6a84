#include "SettingsWindow.h"
#include "TestProgram.h"

namespace {

constexpr QRectF place(100, 50, 640, 480);
constexpr QRectF otherPlace(7, 8, 700, 500);

OnScreenWindow ofSettings(std::optional<QRectF> bounds = place)
{
    return {0, true, bounds};
}

OnScreenWindow ofAnother(QRectF bounds = place)
{
    return {0, false, bounds};
}

QRectF wide(qreal width)
{
    return {100, 50, width, 480};
}

}

Q_DECLARE_METATYPE(OnScreenWindow)

class FindSettingsTest : public QObject {
    Q_OBJECT
private slots:
    void theFrontmostWindowOfSystemSettingsIsTheOne_data();
    void theFrontmostWindowOfSystemSettingsIsTheOne();
};

void FindSettingsTest::theFrontmostWindowOfSystemSettingsIsTheOne_data()
{
    QTest::addColumn<QList<OnScreenWindow>>("windows");
    QTest::addColumn<std::optional<QRectF>>("frame");
    using Windows = QList<OnScreenWindow>;
    const auto row = [](const char *name, const Windows &windows, std::optional<QRectF> frame) {
        QTest::newRow(name) << windows << frame;
    };
    row("no window", {}, std::nullopt);
    row("alone", {ofSettings()}, place);
    row("others only", {ofAnother(), ofAnother()}, std::nullopt);
    row("behind others", {ofAnother(otherPlace), ofSettings()}, place);
    row("two of its windows", {ofSettings(), ofSettings(otherPlace)}, place);
    row("two of its windows, the other way round", {ofSettings(otherPlace), ofSettings()}, otherPlace);
    row("300 points wide", {ofSettings(wide(300))}, std::nullopt);
    row("just over 300 points wide", {ofSettings(wide(300.5))}, wide(300.5));
    row("301 points wide", {ofSettings(wide(301))}, wide(301));
    row("a small window in front", {ofSettings(wide(200)), ofSettings()}, place);
    row("low and wide", {ofSettings(QRectF(0, 0, 400, 1))}, QRectF(0, 0, 400, 1));
    row("without bounds", {ofSettings(std::nullopt)}, std::nullopt);
    row("without bounds, in front", {ofSettings(std::nullopt), ofSettings()}, place);
    row("without a layer", {OnScreenWindow{std::nullopt, true, place}}, std::nullopt);
    row("above the others", {OnScreenWindow{3, true, otherPlace}, ofSettings()}, place);
    row("below the others", {OnScreenWindow{-1, true, otherPlace}}, std::nullopt);
    row("nothing known", {OnScreenWindow()}, std::nullopt);
}

void FindSettingsTest::theFrontmostWindowOfSystemSettingsIsTheOne()
{
    QFETCH(QList<OnScreenWindow>, windows);
    QFETCH(std::optional<QRectF>, frame);
    QCOMPARE(SettingsWindow::frame(windows), frame);
}

CORVANE_TEST(FindSettingsTest, runBare)

#include "tst_findsettings.moc"
