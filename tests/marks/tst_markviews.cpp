#include "ConstructionDrawing.h"
#include "DotField.h"
#include "EBEnvironment.h"
#include "EBKit.h"
#include "EBType.h"
#include "FakePlatform.h"
#include "Fonts.h"
#include "MarkGeometry.h"
#include "TestProgram.h"

#include <QAccessible>
#include <QPaintEngine>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

namespace {

constexpr QSize room(700, 480);

/// One view in the corner of a window whose ground is white.
class View {
public:
    explicit View(const QByteArray &source)
    {
        m_engine.addImportPath(QStringLiteral(":/"));
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport Embera.Tokens\nimport Embera.Marks\n" + source, {});
        m_item.reset(qobject_cast<QQuickItem *>(component.create()));
        if (!m_item)
            throw TestFailure{component.errorString().toUtf8()};
        m_window.setColor(Qt::white);
        m_window.resize(room);
        m_item->setParentItem(m_window.contentItem());
        m_window.show();
        REQUIRE(QTest::qWaitForWindowExposed(&m_window));
    }

    QQuickItem &item() { return *m_item; }
    QImage picture() { return m_window.grabWindow(); }
    QAccessibleInterface *accessible() { return QAccessible::queryAccessibleInterface(m_item.get()); }
    void set(const char *property, const QVariant &value) { REQUIRE(m_item->setProperty(property, value)); }

private:
    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_item;
};

/// The smallest rectangle around everything that is not white.
QRect inked(const QImage &image)
{
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white))
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

int count(const QImage &image, const QColor &color)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            found += image.pixel(x, y) == color.rgb();
    }
    return found;
}

/// A token as it is on the screen, where a component has 8 bits.
QColor shown(const EBKitColor &token)
{
    return QColor(token.current().rgb());
}

class CountedField : public DotField {
public:
    int paintings = 0;

protected:
    void paint(QPainter *painter) override
    {
        ++paintings;
        DotField::paint(painter);
    }
};

class OpenDrawing : public ConstructionDrawing {
public:
    using ConstructionDrawing::paint;
};

struct Writing {
    QString text;
    QFont font;
    QColor color;
};

/// Keeps what is written with a painter and drops what is drawn.
class WritingDevice : public QPaintDevice, public QPaintEngine {
public:
    WritingDevice() : QPaintEngine(AllFeatures) { }

    QList<Writing> writings;

    QPaintEngine *paintEngine() const override { return const_cast<WritingDevice *>(this); }
    Type type() const override { return User; }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override { }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
    void drawPath(const QPainterPath &) override { }
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override { }
    void drawTextItem(const QPointF &, const QTextItem &item) override
    {
        writings.append({item.text(), item.font(), painter()->pen().color()});
    }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return room.width();
        case PdmHeight:
            return room.height();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 96;
        }
    }
};

/// What a construction drawing of this size looks like.
QByteArray construction(const char *app, int width, int height)
{
    return QStringLiteral("MarkConstruction { app: \"%1\"; width: %2; height: %3 }")
        .arg(QLatin1String(app))
        .arg(width)
        .arg(height)
        .toUtf8();
}

}

class TestMarkViews : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { m_platform->look.setName(AppearanceName::Aqua); }

    void aMarkIsFilledInItsColorInsideItsSize();
    void aMarkKeepsItsSizeInTheMiddleOfAnotherItem();
    void aSmallMarkStandsOnPixels_data();
    void aSmallMarkStandsOnPixels();
    void aMarkFollowsItsFields();
    void aMarkWithoutFieldsIsTheProductsInInk();
    void anUnknownProductDrawsNothing();
    void aMarkIsReadAloudByTheProductsName_data();
    void aMarkIsReadAloudByTheProductsName();
    void aMarkCanBeHiddenFromAccessibility();

    void aDotFieldHasTheDotColorOfTheProduct_data();
    void aDotFieldHasTheDotColorOfTheProduct();
    void aDotFieldDrawsItsLayout();
    void dotsHaveFullyRoundEnds();
    void aDotFieldFollowsItsFields();
    void aDotFieldIsDrawnOnceForEachChange();
    void aDotFieldIsAbsentFromAccessibility();

    void theDrawingFillsItsWellWithTheSunkColor();
    void theGridIsDrawnInInk();
    void theDrawingShowsTheMarkUnstretched_data();
    void theDrawingShowsTheMarkUnstretched();
    void theDrawingHasCirclesAndNotesInThreeColors_data();
    void theDrawingHasCirclesAndNotesInThreeColors();
    void theDrawingSaysWhatTheMarkIsBuiltOf_data();
    void theDrawingSaysWhatTheMarkIsBuiltOf();
    void theDrawingUsesTheWholeWidthForItsNotes();
    void withoutRoomForThemThereAreNoNotes();
    void theDrawingFollowsTheAppearance();
    void theDrawingOfAnUnknownProductIsAnEmptyGrid();
    void theDrawingIsOneElementWithALabel_data();
    void theDrawingIsOneElementWithALabel();

private:
    FakePlatform *m_platform = nullptr;
};

void TestMarkViews::initTestCase()
{
    QAccessible::setActive(true);
    m_platform = &FakePlatform::install();
    if (qEnvironmentVariableIsSet("CORVANE_WITHOUT_FACES"))
        return;
    addFaces(m_platform->main);
    EBKitFonts::registerFonts();
}

void TestMarkViews::aMarkIsFilledInItsColorInsideItsSize()
{
    View view("Mark { app: 'corvane'; size: 128; color: '#c01020' }");
    QCOMPARE(view.item().implicitWidth(), 128.0);
    QCOMPARE(view.item().implicitHeight(), 128.0);
    const QImage picture = view.picture();
    QCOMPARE(inked(picture), QRect(11, 11, 106, 106));
    const QColor color(0xc0, 0x10, 0x20);
    // Inside the left pill, the top pill and the circle; in the gap between them and outside the corner.
    QCOMPARE(picture.pixelColor(26, 64), color);
    QCOMPARE(picture.pixelColor(83, 26), color);
    QCOMPARE(picture.pixelColor(83, 83), color);
    QCOMPARE(picture.pixelColor(45, 64), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(83, 45), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(11, 11), QColor(Qt::white));
}

void TestMarkViews::aMarkKeepsItsSizeInTheMiddleOfAnotherItem()
{
    View view("Mark { app: 'corvane'; size: 64; width: 200; height: 100 }");
    const QRect block = inked(view.picture());
    // The block begins half a pixel in.
    QVERIFY(QRect(73, 23, 54, 54).contains(block));
    QVERIFY(block.contains(QRect(74, 24, 52, 52)));
}

void TestMarkViews::aSmallMarkStandsOnPixels_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {18, 24, 26, 28, 32})
        QTest::addRow("%d", size) << size;
}

/// Across both pills there is ink and ground, and nothing between; the gap is as wide both ways.
void TestMarkViews::aSmallMarkStandsOnPixels()
{
    QFETCH(int, size);
    View view(QStringLiteral("Mark { app: 'corvane'; size: %1; color: 'black' }").arg(size).toUtf8());
    const QImage picture = view.picture();
    const QRect block = inked(picture.copy(0, 0, size, size));
    QVERIFY(std::abs(block.width() - size * 53 / 64.0) <= 1);
    QCOMPARE(block.width(), block.height());
    const int middle = block.left() + block.width() * 3 / 4;
    for (int i = 0; i < block.top() + block.height() / 3; ++i) {
        for (const QRgb pixel : {picture.pixel(i, block.center().y()), picture.pixel(middle, i)})
            QVERIFY2(qGray(pixel) == 0 || qGray(pixel) == 255, qPrintable(QString::number(qGray(pixel))));
    }
}

void TestMarkViews::aMarkFollowsItsFields()
{
    View view("Mark { app: 'corvane'; size: 128; color: 'black' }");
    view.set("app", "quiller");
    QCOMPARE(view.picture().pixelColor(19, 20), QColor(Qt::white));
    QCOMPARE(inked(view.picture()), QRect(11, 11, 106, 106));
    view.set("size", 256.0);
    QCOMPARE(view.item().implicitWidth(), 256.0);
    QCOMPARE(inked(view.picture()), QRect(22, 22, 212, 212));
    view.set("color", QColor(Qt::blue));
    QCOMPARE(view.picture().pixelColor(128, 128), QColor(Qt::blue));
    view.set("size", 0.0);
    QCOMPARE(inked(view.picture()), QRect());
}

void TestMarkViews::aMarkWithoutFieldsIsTheProductsInInk()
{
    View view(
        "Item { width: 128; height: 128; EBEnvironment.ebApp: 'parcelo'; Mark { anchors.fill: parent; size: 128 } }");
    const QImage picture = view.picture();
    QCOMPARE(inked(picture), QRect(11, 5, 106, 112));
    QCOMPARE(picture.pixelColor(64, 20), shown(EBKit::ink()));
}

void TestMarkViews::anUnknownProductDrawsNothing()
{
    View view("Mark { app: 'embera'; size: 128 }");
    QCOMPARE(inked(view.picture()), QRect());
    QVERIFY(!view.accessible() || view.accessible()->text(QAccessible::Name).isEmpty());
    view.set("app", "corvane");
    QCOMPARE(inked(view.picture()), QRect(11, 11, 106, 106));
}

void TestMarkViews::aMarkIsReadAloudByTheProductsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quiller") << "Quiller";
    QTest::newRow("corvane") << "Corvane";
    QTest::newRow("parcelo") << "Parcelo";
}

void TestMarkViews::aMarkIsReadAloudByTheProductsName()
{
    QFETCH(QString, name);
    View view("Mark {}");
    view.set("app", QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(view.accessible());
    QCOMPARE(view.accessible()->role(), QAccessible::Graphic);
    QCOMPARE(view.accessible()->text(QAccessible::Name), name);
    QCOMPARE(view.accessible()->childCount(), 0);
}

void TestMarkViews::aMarkCanBeHiddenFromAccessibility()
{
    View view("Item { Accessible.role: Accessible.Grouping; Mark { app: 'corvane'; Accessible.ignored: true } }");
    QCOMPARE(view.accessible()->childCount(), 0);
}

void TestMarkViews::aDotFieldHasTheDotColorOfTheProduct_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("quiller") << QColor(0xCC, 0x48, 0x2B);
    QTest::newRow("corvane") << QColor(0x48, 0x4A, 0xC2);
    QTest::newRow("parcelo") << QColor(0x0B, 0x84, 0x79);
    QTest::newRow("embera") << QColor(0xCC, 0x48, 0x2B);
}

void TestMarkViews::aDotFieldHasTheDotColorOfTheProduct()
{
    QFETCH(QColor, color);
    View view("DotField { size: Qt.size(20, 20); cell: 20; density: 1 }");
    view.set("app", QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(view.picture().pixelColor(10, 10), color);
    m_platform->look.setName(AppearanceName::DarkAqua);
    QCOMPARE(view.picture().pixelColor(10, 10), color);
}

void TestMarkViews::aDotFieldDrawsItsLayout()
{
    View view(
        "DotField { app: 'corvane'; size: Qt.size(560, 388); cell: 22; seed: 21; density: 0.7; ramp: 80; margin: 2 }");
    const QList<Zone> calm = {{130, 120, 60, 50}, {400, 280, 0, 70}};
    view.set("calm", QVariant::fromValue(calm));
    QCOMPARE(view.item().implicitWidth(), 560.0);
    QCOMPARE(view.item().implicitHeight(), 388.0);
    QCOMPARE(view.item().property("calm").value<QList<Zone>>(), calm);
    const QImage picture = view.picture();
    const auto marks = DotLayout::layout({560, 388}, 22, 21, 0.7, 80, 2, calm);
    QVERIFY(marks.size() > 50);
    QImage expected(picture.size(), QImage::Format_RGB32);
    expected.fill(Qt::white);
    for (const QRectF &mark : marks) {
        QCOMPARE(picture.pixelColor(mark.center().toPoint()), QColor(0x48, 0x4A, 0xC2));
        QPainter(&expected).fillRect(mark.toAlignedRect(), Qt::black);
    }
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (expected.pixelColor(x, y) == QColor(Qt::white))
                QCOMPARE(picture.pixelColor(x, y), QColor(Qt::white));
        }
    }
}

void TestMarkViews::dotsHaveFullyRoundEnds()
{
    QPainterPath circle;
    circle.addEllipse(QRectF(10, 10, 12, 12));
    const QPainterPath dot = dotOutline({QRectF(10, 10, 12, 12)}, 20);
    QCOMPARE(dot.boundingRect(), circle.boundingRect());
    const QPainterPath bar = dotOutline({QRectF(10, 10, 12, 52)}, 20);
    for (int degrees = 0; degrees < 360; degrees += 5) {
        const QPointF ray(std::cos(qDegreesToRadians(degrees)), std::sin(qDegreesToRadians(degrees)));
        for (const QPainterPath &path : {dot, bar}) {
            // A bar's lower half is another 40 points down.
            const QPointF center(16, &path != &dot && ray.y() > 0 && path.boundingRect().height() > 12 ? 56 : 16);
            QVERIFY(path.contains(center + 5.98 * ray));
            QVERIFY(!path.contains(center + 6.02 * ray));
        }
    }
}

void TestMarkViews::aDotFieldFollowsItsFields()
{
    View view("DotField { app: 'corvane'; size: Qt.size(200, 200); cell: 20; seed: 1; density: 0.5 }");
    QImage before = view.picture();
    const QList<std::pair<const char *, QVariant>> changes = {
        {"app", "parcelo"},         {"seed", 2},
        {"density", 0.9},           {"cell", 25.0},
        {"size", QSizeF(300, 200)}, {"calm", QVariant::fromValue(QList<Zone>{{100, 100, 20, 30}})},
        {"margin", 30.0},           {"ramp", 1.0},
    };
    for (const auto &[property, value] : changes) {
        view.set(property, value);
        const QImage now = view.picture();
        QVERIFY2(now != before, property);
        QVERIFY2(view.picture() == now, property);
        before = now;
    }
}

void TestMarkViews::aDotFieldIsDrawnOnceForEachChange()
{
    QQuickWindow window;
    window.resize(room);
    CountedField field;
    field.setParentItem(window.contentItem());
    field.setProperty("size", QSizeF(200, 200));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.grabWindow();
    int paintings = field.paintings;
    QVERIFY(paintings > 0);

    field.setOpacity(0.5);
    field.setPosition({10, 10});
    field.setProperty("size", QSizeF(200, 200));
    field.setProperty("seed", 0);
    field.setProperty("calm", QVariant::fromValue(QList<Zone>()));
    window.grabWindow();
    QCOMPARE(field.paintings, paintings);

    field.setProperty("seed", 3);
    field.setProperty("density", 0.4);
    field.setProperty("calm", QVariant::fromValue(QList<Zone>{{100, 100, 20, 30}}));
    window.grabWindow();
    QCOMPARE(field.paintings, ++paintings);
    window.grabWindow();
    QCOMPARE(field.paintings, paintings);
}

void TestMarkViews::aDotFieldIsAbsentFromAccessibility()
{
    View view("Item { Accessible.role: Accessible.Grouping; DotField { size: Qt.size(200, 200) } }");
    QCOMPARE(view.accessible()->childCount(), 0);
}

void TestMarkViews::theDrawingFillsItsWellWithTheSunkColor()
{
    View view(construction("corvane", 412, 116));
    const QImage picture = view.picture();
    QCOMPARE(inked(picture), QRect(0, 0, 412, 116));
    // Between two grid lines, near an edge; the corner is cut off.
    QCOMPARE(picture.pixelColor(3, 30), shown(EBKit::sunk()));
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(411, 115), QColor(Qt::white));
}

void TestMarkViews::theGridIsDrawnInInk()
{
    for (const AppearanceName name : {AppearanceName::Aqua, AppearanceName::DarkAqua}) {
        m_platform->look.setName(name);
        View view(construction("embera", 412, 116));
        const QImage picture = view.picture();
        const auto blend = [](qreal opacity) {
            const QColor ink = shown(EBKit::ink());
            const QColor sunk = shown(EBKit::sunk());
            const auto mixed = [opacity](int over, int under) {
                return qRound(over * opacity + under * (1 - opacity));
            };
            return QColor(mixed(ink.red(), sunk.red()), mixed(ink.green(), sunk.green()),
                          mixed(ink.blue(), sunk.blue()));
        };
        const auto hasLine = [&picture](const QColor &color) {
            for (int x = 0; x < 412; ++x) {
                const QColor pixel = picture.pixelColor(x, 30);
                if (qAbs(pixel.red() - color.red()) <= 1 && qAbs(pixel.green() - color.green()) <= 1
                    && qAbs(pixel.blue() - color.blue()) <= 1)
                    return true;
            }
            return false;
        };
        QVERIFY(hasLine(blend(0.08)));
        QVERIFY(hasLine(blend(0.22)));
    }
}

void TestMarkViews::theDrawingShowsTheMarkUnstretched_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("the well of the About window") << QSize(412, 116);
    QTest::newRow("large") << QSize(640, 400);
    QTest::newRow("tall") << QSize(200, 400);
}

void TestMarkViews::theDrawingShowsTheMarkUnstretched()
{
    QFETCH(QSize, size);
    View view(construction("corvane", size.width(), size.height()));
    const QImage picture = view.picture();
    // The outer circle alone is indigo and 75 units across; in the notes indigo stays within it and the left half.
    const qreal scale = 1.5 * std::min(size.width() / 160.0, size.height() / 120.0);
    const qreal radius = 26.5 * std::sqrt(2) * scale;
    const QPointF center(size.width() / 2.0, size.height() / 2.0);
    const QColor indigo = shown(EBKit::indigo());
    for (int degrees = -80; degrees <= 80; degrees += 10) {
        const QPointF ray(std::cos(qDegreesToRadians(degrees)), std::sin(qDegreesToRadians(degrees)));
        const QPoint at = (center + radius * ray - QPointF(0.5, 0.5)).toPoint();
        int nearest = 999;
        for (int y = -1; y <= 1; ++y) {
            for (int x = -1; x <= 1; ++x) {
                const QColor pixel = picture.pixelColor(at + QPoint(x, y));
                nearest =
                    std::min(nearest, std::abs(pixel.red() - indigo.red()) + std::abs(pixel.blue() - indigo.blue()));
            }
        }
        // A note's line crosses the circle where it has another colour.
        QVERIFY2(nearest < 80, qPrintable(QString::number(degrees)));
    }
    // Across the middle of the left pill, from edge to edge.
    const auto dark = [&](qreal x, qreal y) {
        return picture.pixelColor((center + (QPointF(x, y) - QPointF(60, 60)) * scale).toPoint()).lightness() < 60;
    };
    QVERIFY(dark(36.5, 52) && dark(45.5, 52) && !dark(50.5, 47) && !dark(31, 52));
    QVERIFY(dark(69.5, 36.5) && dark(69.5, 45.5) && !dark(69.5, 31) && !dark(60.5, 50.5));
}

void TestMarkViews::theDrawingHasCirclesAndNotesInThreeColors_data()
{
    QTest::addColumn<AppearanceName>("appearance");
    for (const EBApp app : EBApps::allCases) {
        const QByteArray name = EBApps::rawValue(app).toLatin1();
        QTest::newRow(QByteArray(name + ", light").constData()) << AppearanceName::Aqua;
        QTest::newRow(QByteArray(name + ", dark").constData()) << AppearanceName::DarkAqua;
    }
}

void TestMarkViews::theDrawingHasCirclesAndNotesInThreeColors()
{
    QFETCH(AppearanceName, appearance);
    m_platform->look.setName(appearance);
    const QByteArray app = QByteArray(QTest::currentDataTag()).split(',').constFirst();
    View view(construction(app.constData(), 640, 400));
    const QImage picture = view.picture();
    QVERIFY(count(picture, shown(EBKit::teal())) > 50);
    QVERIFY(count(picture, shown(EBKit::indigo())) > 50);
    QVERIFY(count(picture, shown(EBKit::coral())) > 50);
    QVERIFY(count(picture, shown(EBKit::ink())) > 5000);
    QVERIFY(count(picture, shown(EBKit::sunk())) > 100000);
}

void TestMarkViews::theDrawingSaysWhatTheMarkIsBuiltOf_data()
{
    QTest::addColumn<QStringList>("notes");
    QTest::newRow("quiller") << QStringList{"CIRCLE 15", "GAP 4", "PILL 15 × 53", "PILL 15 × 34"};
    QTest::newRow("corvane") << QStringList{"PILL 15 × 53", "GAP 4", "PILL 34 × 15", "CIRCLE 34"};
    QTest::newRow("parcelo") << QStringList{"PILL 15 × 34", "GAP 4", "CIRCLE 15", "PILL 53 × 15"};
}

void TestMarkViews::theDrawingSaysWhatTheMarkIsBuiltOf()
{
    QFETCH(QStringList, notes);
    const QString app = QString::fromLatin1(QTest::currentDataTag());
    OpenDrawing drawing;
    drawing.setProperty("app", app);
    drawing.setSize({412, 116});
    WritingDevice device;
    QPainter painter(&device);
    drawing.paint(&painter);
    painter.end();
    QCOMPARE(device.writings.size(), 1 + notes.size());
    const Writing title = device.writings.takeFirst();
    QCOMPARE(title.text, QStringLiteral("The %1 mark").arg(drawing.displayName()));
    QCOMPARE(title.font.families(), EBTypes::font(EBTypeRole::heading).families());
    QCOMPARE(title.color, EBKit::ink().current());
    for (qsizetype i = 0; i < notes.size(); ++i) {
        QCOMPARE(device.writings[i].text, notes[i]);
        QCOMPARE(device.writings[i].font.families(), EBTypes::font(EBTypeRole::mono).families());
        QCOMPARE(device.writings[i].color, EBKit::ink().current());
    }
}

// On the light ground nothing but letters, and the mark, is this dark in every component.
static bool hasLetters(const QImage &picture, const QRect &area)
{
    int dark = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            dark += std::max({pixel.red(), pixel.green(), pixel.blue()}) < 120;
        }
    }
    return dark > 10;
}

void TestMarkViews::theDrawingUsesTheWholeWidthForItsNotes()
{
    for (const EBApp app : EBApps::allCases) {
        View view(construction(EBApps::rawValue(app).toLatin1().constData(), 412, 116));
        const QImage picture = view.picture();
        // Title, two notes at the left, two at the right; each begins or ends 6 units from the edge.
        for (const int y : {9, 52, 83})
            QVERIFY2(hasLetters(picture, QRect(15, y, 60, 18)), qPrintable(EBApps::rawValue(app)));
        for (const int y : {18, 83})
            QVERIFY2(hasLetters(picture, QRect(337, y, 60, 18)), qPrintable(EBApps::rawValue(app)));
        QVERIFY(!hasLetters(picture, QRect(0, 0, 14, 116)));
        QVERIFY(!hasLetters(picture, QRect(398, 0, 14, 116)));
    }
}

void TestMarkViews::withoutRoomForThemThereAreNoNotes()
{
    View view(construction("corvane", 160, 120));
    const QImage picture = view.picture();
    QVERIFY(!hasLetters(picture, QRect(0, 0, 38, 120)));
    QVERIFY(!hasLetters(picture, QRect(122, 0, 38, 120)));
    QVERIFY(hasLetters(picture, QRect(40, 20, 80, 80)));
}

void TestMarkViews::theDrawingFollowsTheAppearance()
{
    View view(construction("corvane", 412, 116));
    const QColor light = shown(EBKit::sunk());
    QCOMPARE(view.picture().pixelColor(3, 30), light);
    m_platform->look.setName(AppearanceName::DarkAqua);
    QVERIFY(shown(EBKit::sunk()) != light);
    QCOMPARE(view.picture().pixelColor(3, 30), shown(EBKit::sunk()));
}

void TestMarkViews::theDrawingOfAnUnknownProductIsAnEmptyGrid()
{
    View view(construction("embera", 412, 116));
    const QImage picture = view.picture();
    QCOMPARE(count(picture, shown(EBKit::ink())), 0);
    QVERIFY(count(picture, shown(EBKit::sunk())) > 10000);
}

void TestMarkViews::theDrawingIsOneElementWithALabel_data()
{
    QTest::addColumn<QString>("label");
    QTest::newRow("quiller") << "The Quiller mark drawn on its grid";
    QTest::newRow("corvane") << "The Corvane mark drawn on its grid";
    QTest::newRow("parcelo") << "The Parcelo mark drawn on its grid";
}

void TestMarkViews::theDrawingIsOneElementWithALabel()
{
    QFETCH(QString, label);
    View view(construction(QTest::currentDataTag(), 412, 116));
    QVERIFY(view.accessible());
    QCOMPARE(view.accessible()->role(), QAccessible::Graphic);
    QCOMPARE(view.accessible()->text(QAccessible::Name), label);
    QCOMPARE(view.accessible()->childCount(), 0);
}

CORVANE_TEST(TestMarkViews, runInGui)
#include "tst_markviews.moc"
