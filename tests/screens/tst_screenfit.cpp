#include "DotField.h"
#include "ScreenView.h"
#include "TestProgram.h"

/// With the longest texts of the product, in a narrow and in a wide face, nothing is cut and nothing overlaps.
class TestScreenFit : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { QGuiApplication::setFont(QFont(QStringLiteral("Inter"))); }
    void everyTextFits_data();
    void everyTextFits();
    void noDotLiesUnderAText_data();
    void noDotLiesUnderAText();

private:
    /// The texts that are there to be read.
    static QList<QQuickItem *> textsOf(const ScreenView &view);
};

QList<QQuickItem *> TestScreenFit::textsOf(const ScreenView &view)
{
    QList<QQuickItem *> texts = view.typed("QQuickText");
    // The hero word is a picture that runs out of the window.
    texts.removeIf([](const QQuickItem *item) {
        return item->property("role") == QStringLiteral("hero") || item->property("text").toString().isEmpty();
    });
    return texts;
}

void TestScreenFit::everyTextFits_data()
{
    QTest::addColumn<QString>("font");
    QTest::addColumn<QString>("qml");
    QTest::addColumn<QSize>("size");
    const QString step = QStringLiteral(
        "EBStepScreen { app: 'corvane'; steps: ['Welcome', 'Try it', 'Permission', 'Make it yours', 'All set']; "
        "current: 2; kicker: 'Step 03 · Permission'; title: \"One permission, then you're done\"; "
        "text: 'The system asks you first before Corvane can tell which window the pointer is on. Nothing is recorded "
        "or sent anywhere.'; rows: [EBRow { glyph: 'key'; title: 'Accessibility'; "
        "detail: 'Opens the page on privacy in the settings.'; EBStatus {} }]\n"
        "actions: [EBButton { text: 'Open Settings'; size: 'sm' }, EBButton { text: 'Skip'; variant: 'plain'; "
        "size: 'sm' }, EBButton { text: 'Back'; variant: 'plain'; size: 'sm' }] }");
    const QString stage = QStringLiteral(
        "EBStageScreen { id: stage; app: 'corvane'; kicker: 'Step 04 · Make it yours'; counter: '04 / 05'; "
        "title: \"Make it yours\"; text: 'Optional. Pick a look and a size; you can change them any time in "
        "Settings.'; content: [EBWell { height: stage.room }]\nactions: [EBButton { text: 'Looks Good' }, "
        "EBButton { text: 'Keep the Defaults'; variant: 'secondary' }, EBSpacer {}, EBButton { text: 'Back'; "
        "variant: 'plain' }] }");
    const QString loud = QStringLiteral(
        "EBLoudScreen { app: 'corvane'; appeared: true; counter: 'Welcome · 01 / 05'; hero: 'Corvane'; "
        "copy: 'Close, minimize and full-screen windows right in Mission Control. Hover a window for its buttons, or "
        "use the shortcuts you already know.'; button: 'Open Mission Control'; arrow: true; "
        "secondary: \"Don't start at login\" }");
    const QString about = QStringLiteral(
        "EBAboutScreen { app: 'corvane'; version: '1.4 (212)'; offersUpdates: true; website: 'https://example.com/'; "
        "blurb: 'Close, minimize and full-screen windows right in Mission Control, with buttons on every window and "
        "the shortcuts you already know.' }");
    for (const QString &font : {QStringLiteral("Inter"), QStringLiteral("DejaVu Sans")}) {
        QTest::addRow("step screen, %s", qPrintable(font)) << font << step << QSize(560, 388);
        QTest::addRow("stage screen, %s", qPrintable(font)) << font << stage << QSize(560, 388);
        QTest::addRow("loud screen, %s", qPrintable(font)) << font << loud << QSize(560, 388);
        QTest::addRow("wide loud screen, %s", qPrintable(font)) << font << loud << QSize(900, 388);
        QTest::addRow("large loud screen, %s", qPrintable(font)) << font << loud << QSize(1120, 776);
        QTest::addRow("About screen, %s", qPrintable(font)) << font << about << QSize(460, 380);
    }
}

void TestScreenFit::everyTextFits()
{
    QFETCH(QString, font);
    QFETCH(QString, qml);
    QFETCH(QSize, size);
    QGuiApplication::setFont(QFont(font));
    ScreenView view(qml, size);
    view.show();

    const QList<QQuickItem *> pieces = textsOf(view) + view.typed("ButtonFace") + view.typed("Mark");
    QVERIFY(pieces.size() > 4);
    for (const QQuickItem *piece : pieces) {
        const QString name = piece->property("text").toString();
        const QRectF rect = view.rectOf(piece);
        QVERIFY2(QRectF(0, 0, size.width(), size.height()).contains(rect), qPrintable(name));
        QVERIFY2(!piece->property("truncated").toBool(), qPrintable(name));
        // The tracking behind the last letter does not show.
        QVERIFY2(piece->property("contentWidth").toReal() <= piece->width() + 1.5, qPrintable(name));
        for (const QQuickItem *other : pieces) {
            if (other == piece || other->isAncestorOf(piece) || piece->isAncestorOf(other))
                continue;
            QVERIFY2(!rect.intersects(view.rectOf(other)),
                     qPrintable(name + QStringLiteral(" / ") + other->property("text").toString()));
        }
    }
    // The words along the foot of a loud screen begin below its column.
    for (const QQuickItem *word : view.typed("QQuickText")) {
        if (word->property("role") != QStringLiteral("hero"))
            continue;
        const QRectF line = view.rectOf(word);
        const qreal capitals = line.bottom() - 0.87 * line.height();
        for (const QQuickItem *piece : pieces)
            QVERIFY(view.rectOf(piece).bottom() <= capitals);
    }
}

void TestScreenFit::noDotLiesUnderAText_data()
{
    QTest::addColumn<QString>("qml");
    QTest::newRow("first screen")
        << "EBLoudScreen { seed: 21; counter: 'Welcome · 01 / 05'; copy: 'Close, minimize and "
           "full-screen windows right in Mission Control. Hover a window for its buttons, or "
           "use the shortcuts you already know.'; button: 'Get started'; "
           "secondary: 'Skip setup'; app: 'corvane'; hero: 'Corvane' }";
    QTest::newRow("last screen") << "EBLoudScreen { seed: 5; counter: 'All set · 05 / 05'; copy: 'Swipe up with three "
                                    "fingers or press F3 to open Mission Control, then hover any window. Corvane "
                                    "starts at login.'; button: 'Open Mission Control'; arrow: true; "
                                    "secondary: \"Don't start at login\"; app: 'corvane'; hero: 'Ready' }";
    QTest::newRow("a step") << "EBStepScreen { app: 'corvane'; kicker: ''; title: ''; text: ''; current: 2; "
                               "steps: ['Welcome', 'Try it', 'Permission', 'Make it yours', 'All set'] }";
}

void TestScreenFit::noDotLiesUnderAText()
{
    QFETCH(QString, qml);
    ScreenView view(qml, {560, 388});
    view.show();
    auto *field = view.all<DotField>().constFirst();
    const auto number = [field](const char *name) { return field->property(name).toReal(); };
    for (const bool mirrored : {false, true}) {
        if (mirrored)
            view.mirror();
        const auto dots = DotLayout::layout(field->property("size").toSizeF(), number("cell"),
                                            quint32(field->property("seed").toInt()), number("density"), number("ramp"),
                                            number("margin"), field->property("calm").value<QList<Zone>>());
        QVERIFY(dots.size() > 20);
        for (QQuickItem *piece : textsOf(view)) {
            const QRectF place = view.rectOf(piece, field);
            for (const QRectF &dot : dots)
                QVERIFY2(!dot.intersects(place), qPrintable(piece->property("text").toString()));
        }
    }
}

CORVANE_TEST(TestScreenFit, runInGui)
#include "tst_screenfit.moc"
