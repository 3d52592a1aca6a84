#include "DemoButton.h"
#include "EBKit.h"
#include "Motion.h"
#include "OverlayView.h"
#include "Spring.h"
#include "TestProgram.h"
#include "WindowFace.h"

class ButtonsPreviewTest : public QObject {
    Q_OBJECT
private slots:
    void theWindowStandsInTheMiddleOfAWellWithRoomForTheButtons();
    void theButtonsHangOverTheCorner_data();
    void theButtonsHangOverTheCorner();
    void theOptionalButtonsFollowInOrder_data();
    void theOptionalButtonsFollowInOrder();
    void aChangeOfSizeIsASpring();
    void anOptionalButtonEasesInAndOut_data();
    void anOptionalButtonEasesInAndOut();
    void theLastButtonMakesRoomForTheMiddleOne();
    void withReducedMotionNothingMoves();
    void unknownTextsShowTheDefaults();
    void itIsOneElementForAccessibility();
    void fromRightToLeftItLooksTheSame();

private:
    static QVariantMap properties(const QString &size, bool minimize = false, bool maximize = false)
    {
        return {{"theme", "classic"},
                {"size", size},
                {"showMinimize", minimize},
                {"showMaximize", maximize},
                {"windowSize", QSizeF(200, 112)},
                {"buttonScale", 1.0}};
    }
    static QStringList kinds(OverlayView &view)
    {
        QStringList list;
        for (const DemoButton *button : view.all<DemoButton>())
            list.append(button->property("kind").toString());
        return list;
    }
};

void ButtonsPreviewTest::theWindowStandsInTheMiddleOfAWellWithRoomForTheButtons()
{
    OverlayView view("ButtonsPreview", properties("medium"), 386);
    // 22 and 18 above, 18 below; 22 at the leading side, and the rest of the width on both sides alike.
    QCOMPARE(view.root().height(), 22 + 18 + 112 + 18.0);
    WindowFace *window = view.all<WindowFace>().constFirst();
    QCOMPARE(view.rectOf(window), QRectF((386 - 22 - 200) / 2 + 22, 40, 200, 112));
    QVERIFY(!window->property("compact").toBool());
    QVERIFY(view.textItem("BROWSER"));
    QVERIFY(view.textItem("Start page"));
    QVERIFY(isNear(view.pixel(&view.root(), {193, 5}), EBKit::sunk().current()));
}

void ButtonsPreviewTest::theButtonsHangOverTheCorner_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<qreal>("diameter");
    QTest::newRow("small") << "small" << 1.0 << 20.0;
    QTest::newRow("medium") << "medium" << 1.0 << 25.0;
    QTest::newRow("large") << "large" << 1.0 << 32.0;
    QTest::newRow("small, scaled") << "small" << 1.15 << 23.0;
    QTest::newRow("medium, scaled") << "medium" << 1.15 << 28.75;
    QTest::newRow("large, scaled") << "large" << 1.15 << 36.8;
}

void ButtonsPreviewTest::theButtonsHangOverTheCorner()
{
    QFETCH(const QString, size);
    QFETCH(const qreal, scale);
    QFETCH(const qreal, diameter);
    QVariantMap shown = properties(size, true, true);
    shown.insert("buttonScale", scale);
    OverlayView view("ButtonsPreview", shown, 386);
    const QPointF corner = view.rectOf(view.all<WindowFace>().constFirst()).topLeft();
    const auto buttons = view.all<DemoButton>();
    QCOMPARE(buttons.size(), 3);
    for (DemoButton *button : buttons) {
        QCOMPARE(button->property("size").toReal(), diameter);
        QCOMPARE(button->property("theme").toString(), "classic");
        QVERIFY(!button->property("dim").toBool());
        QCOMPARE(view.rectOf(button).center().y(), corner.y() - 2);
    }
    QCOMPARE(view.rectOf(buttons.at(0)).center(), corner - QPointF(3, 2));
    // 4 points apart, to the nearest pixel.
    for (int place : {1, 2}) {
        const qreal gap = view.rectOf(buttons.at(place)).left() - view.rectOf(buttons.at(place - 1)).right();
        QVERIFY2(std::abs(gap - 4) <= 0.5, qPrintable(QString::number(gap)));
    }
}

void ButtonsPreviewTest::theOptionalButtonsFollowInOrder_data()
{
    QTest::addColumn<bool>("minimize");
    QTest::addColumn<bool>("maximize");
    QTest::addColumn<QStringList>("kinds");
    QTest::newRow("close alone") << false << false << QStringList{"close"};
    QTest::newRow("minimize") << true << false << QStringList{"close", "minimize"};
    QTest::newRow("maximize") << false << true << QStringList{"close", "maximize"};
    QTest::newRow("both") << true << true << QStringList{"close", "minimize", "maximize"};
}

void ButtonsPreviewTest::theOptionalButtonsFollowInOrder()
{
    QFETCH(const bool, minimize);
    QFETCH(const bool, maximize);
    OverlayView view("ButtonsPreview", properties("large", minimize, maximize), 386);
    QTEST(kinds(view), "kinds");
    const auto buttons = view.all<DemoButton>();
    for (qsizetype place = 0; place < buttons.size(); ++place)
        QCOMPARE(view.rectOf(buttons.at(place)).left() - view.rectOf(buttons.at(0)).left(), place * (32 + 4.0));
}

void ButtonsPreviewTest::aChangeOfSizeIsASpring()
{
    AnimationClock clock;
    OverlayView view("ButtonsPreview", properties("small"), 386);
    DemoButton *close = view.all<DemoButton>().constFirst();
    const QPointF middle = view.rectOf(close).center();
    QCOMPARE(close->property("size").toReal(), 20.0);
    view.root().setProperty("size", "large");
    for (int time = 20; time <= 400; time += 20) {
        clock.advance(20);
        const qreal expected = 20 + 12 * sprung(0.3, 0.8, time / 1000.0);
        QVERIFY2(std::abs(close->property("size").toReal() - expected) < 0.1, qPrintable(QString::number(time)));
        QVERIFY(std::abs(view.rectOf(close).center().x() - middle.x()) < 1e-6);
    }
    clock.advance(1000);
    QCOMPARE(close->property("size").toReal(), 32.0);
}

void ButtonsPreviewTest::anOptionalButtonEasesInAndOut_data()
{
    QTest::addColumn<QByteArray>("flag");
    QTest::addColumn<QString>("kind");
    QTest::newRow("minimize") << QByteArray("showMinimize") << "minimize";
    QTest::newRow("full screen") << QByteArray("showMaximize") << "maximize";
}

void ButtonsPreviewTest::anOptionalButtonEasesInAndOut()
{
    QFETCH(const QByteArray, flag);
    QFETCH(const QString, kind);
    AnimationClock clock;
    OverlayView view("ButtonsPreview", properties("medium"), 386);
    view.root().setProperty(flag, true);
    clock.advance(0);
    QCOMPARE(kinds(view), QStringList({"close"}));
    const QEasingCurve curve = Motion::easeOut();
    for (const int time : {45, 90, 135, 179}) {
        clock.advance(time == 179 ? 44 : 45);
        QCOMPARE(kinds(view), QStringList({"close", kind}));
        const qreal share = view.all<DemoButton>().at(1)->opacity();
        QVERIFY2(std::abs(share - curve.valueForProgress(time / 180.0)) < 0.01, qPrintable(QString::number(share)));
    }
    clock.advance(1);
    QCOMPARE(view.all<DemoButton>().at(1)->opacity(), 1.0);

    view.root().setProperty(flag, false);
    clock.advance(90);
    const qreal share = view.all<DemoButton>().at(1)->opacity();
    QVERIFY(std::abs(share - (1 - curve.valueForProgress(0.5))) < 0.01);
    clock.advance(89);
    QCOMPARE(kinds(view).size(), 2);
    clock.advance(1);
    QCOMPARE(kinds(view), QStringList{"close"});
}

void ButtonsPreviewTest::theLastButtonMakesRoomForTheMiddleOne()
{
    AnimationClock clock;
    OverlayView view("ButtonsPreview", properties("medium", false, true), 386);
    DemoButton *maximize = view.all<DemoButton>().constLast();
    QCOMPARE(maximize->x(), 29.0);
    view.root().setProperty("showMinimize", true);
    clock.advance(60);
    QVERIFY(maximize->x() > 29 && maximize->x() < 58);
    QCOMPARE(maximize->opacity(), 1.0);
    clock.advance(120);
    QCOMPARE(maximize->x(), 58.0);
}

void ButtonsPreviewTest::withReducedMotionNothingMoves()
{
    AnimationClock clock;
    OverlayView view("ButtonsPreview", properties("small"), 386);
    view.platform.look.setReduceMotion(true);
    view.root().setProperty("size", "large");
    view.root().setProperty("showMinimize", true);
    view.root().setProperty("showMaximize", true);
    QCoreApplication::processEvents();
    QCOMPARE(view.all<DemoButton>().size(), 3);
    for (const DemoButton *button : view.all<DemoButton>()) {
        QCOMPARE(button->property("size").toReal(), 32.0);
        QCOMPARE(button->opacity(), 1.0);
    }
}

void ButtonsPreviewTest::unknownTextsShowTheDefaults()
{
    QVariantMap unknown = properties("huge");
    unknown.insert("theme", "neon");
    OverlayView view("ButtonsPreview", unknown, 386);
    DemoButton *close = view.all<DemoButton>().constFirst();
    QCOMPARE(close->property("size").toReal(), 25.0);
    QVERIFY(isNear(view.pixel(close, {12, 4}), QColor("#EC4640")));
}

void ButtonsPreviewTest::itIsOneElementForAccessibility()
{
    OverlayView view("ButtonsPreview", properties("medium", true, true), 386);
    const auto *element = QAccessible::queryAccessibleInterface(&view.root());
    QVERIFY(element);
    QCOMPARE(element->text(QAccessible::Name), "Preview of the buttons");
    QCOMPARE(element->childCount(), 0);
}

void ButtonsPreviewTest::fromRightToLeftItLooksTheSame()
{
    OverlayView view("ButtonsPreview", properties("medium", true, true), 386);
    const QImage before = view.picture();
    view.mirror();
    QCOMPARE(view.picture(), before);
}

CORVANE_TEST(ButtonsPreviewTest, runInGui)
#include "tst_buttonspreview.moc"
