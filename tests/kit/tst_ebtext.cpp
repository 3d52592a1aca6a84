#include "EBType.h"
#include "FakePlatform.h"
#include "Fonts.h"
#include "TestProgram.h"
#include "Wrapping.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

namespace {

constexpr int roomWidth = 900;
constexpr int roomHeight = 260;

/// What was painted on white, summed up column by column.
struct Ink {
    qreal sum = 0;
    /// The middle of the painted weight, in points from the left.
    qreal centre = 0;
    qreal left = roomWidth;
    qreal right = 0;
};

Ink inkOf(const QImage &image)
{
    Ink ink;
    qreal moment = 0;
    for (int x = 0; x < image.width(); ++x) {
        qreal column = 0;
        for (int y = 0; y < image.height(); ++y)
            column += 255 - qGray(image.pixel(x, y));
        if (column <= 0)
            continue;
        ink.sum += column;
        moment += column * (x + 0.5);
        ink.left = std::min(ink.left, qreal(x));
        ink.right = std::max(ink.right, qreal(x + 1));
    }
    ink.centre = ink.sum > 0 ? moment / ink.sum : 0;
    return ink;
}

}

class TestEBText : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { m_item.reset(); }

    void centredTextIsCentredToTheEye_data() { texts(); }
    void centredTextIsCentredToTheEye();
    void alignedTextTouchesItsEdge_data() { texts(); }
    void alignedTextTouchesItsEdge();
    void theImplicitWidthEndsWithTheLastLetter_data() { texts(); }
    void theImplicitWidthEndsWithTheLastLetter();
    void itsImplicitSizeHoldsEveryGlyph_data() { texts(); }
    void itsImplicitSizeHoldsEveryGlyph();
    void itsImplicitWidthIsEnoughForOneLine_data() { texts(); }
    void itsImplicitWidthIsEnoughForOneLine();

    void aParagraphLeavesNoSingleLastWord();
    void aParagraphTakesNoMoreLines();
    void aParagraphFollowsItsText();
    void aParagraphsHeightForAnotherTextIsThatItTakes();

    void itIsPlainInkOfTheBodyRoleUnlessTold();
    void aWeightAndASizeReplaceThoseOfTheRole();
    void itsColourFollowsTheAppearance();

private:
    void texts();
    std::unique_ptr<QQuickItem> made(const QByteArray &type, const QByteArray &properties);
    void make(const QByteArray &properties) { m_item = made("EBText", properties); }
    void makeFetched(const QByteArray &properties);
    void removeTracking();
    Ink painted();

    FakePlatform *m_platform = nullptr;
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QQuickItem> m_item;
};

void TestEBText::initTestCase()
{
    m_platform = &FakePlatform::install();
    addFaces(m_platform->main);
    EBKitFonts::registerFonts();
    m_engine.addImportPath(QStringLiteral("qrc:/"));
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(roomWidth, roomHeight);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

// Texts that are their own mirror image, in both directions of writing.
void TestEBText::texts()
{
    QTest::addColumn<QByteArray>("role");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("mirrored");

    for (const char *role : {"hero", "display", "subheading", "body", "mono", "monoSmall"}) {
        for (const bool mirrored : {false, true}) {
            const char *layout = mirrored ? "right to left" : "left to right";
            QTest::addRow("%s, Latin, %s", role, layout) << QByteArray(role) << QByteArray("HOH") << mirrored;
            QTest::addRow("%s, Hebrew, %s", role, layout) << QByteArray(role) << QByteArray("ססס") << mirrored;
        }
    }
}

std::unique_ptr<QQuickItem> TestEBText::made(const QByteArray &type, const QByteArray &properties)
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick\nimport Embera.Tokens\n" + type + " { " + properties + " }", QUrl());
    std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem *>(component.create()));
    if (!item)
        throw TestFailure{component.errorString().toUtf8()};
    item->setParentItem(m_window->contentItem());
    return item;
}

void TestEBText::makeFetched(const QByteArray &properties)
{
    QFETCH(QByteArray, role);
    QFETCH(QByteArray, text);
    QFETCH(bool, mirrored);
    make("role: '" + role + "'; text: '" + text + "'; LayoutMirroring.enabled: " + (mirrored ? "true; " : "false; ")
         + properties);
}

void TestEBText::removeTracking()
{
    QFont font = m_item->property("font").value<QFont>();
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    m_item->setProperty("font", font);
    m_item->setProperty("rightPadding", 0);
}

Ink TestEBText::painted()
{
    return inkOf(m_window->grabWindow());
}

void TestEBText::centredTextIsCentredToTheEye()
{
    makeFetched("width: 900; horizontalAlignment: Text.AlignHCenter");
    const qreal centre = painted().centre;
    // The two sides of a letter differ a little: the same text without tracking says by how much.
    removeTracking();
    const qreal middle = painted().centre;
    QVERIFY(std::abs(middle - roomWidth / 2) < 2);
    QVERIFY2(std::abs(centre - middle) <= 0.5, qPrintable(QString::number(centre - middle)));
}

void TestEBText::alignedTextTouchesItsEdge()
{
    for (const char *side : {"Left", "Right"}) {
        makeFetched(QByteArray("width: 900; horizontalAlignment: Text.Align") + side);
        const bool isLeft = m_item->property("effectiveHorizontalAlignment").toInt() == Qt::AlignLeft;
        const Ink ink = painted();
        removeTracking();
        const Ink plain = painted();
        // Glyphs stand on whole pixels.
        QVERIFY(std::abs(isLeft ? ink.left - plain.left : ink.right - plain.right) <= 1);
    }
}

void TestEBText::theImplicitWidthEndsWithTheLastLetter()
{
    makeFetched("");
    const qreal width = m_item->implicitWidth();
    const qreal tracking = m_item->property("font").value<QFont>().letterSpacing();
    removeTracking();
    QCOMPARE(width, m_item->implicitWidth() + 2 * tracking);
}

void TestEBText::itsImplicitSizeHoldsEveryGlyph()
{
    makeFetched("x: 40; y: 10");
    const qreal whole = painted().sum;
    QVERIFY(whole > 0);
    m_item->setClip(true);
    QCOMPARE(painted().sum, whole);
}

void TestEBText::itsImplicitWidthIsEnoughForOneLine()
{
    makeFetched("width: implicitWidth; elide: Text.ElideRight");
    QCOMPARE(m_item->property("truncated"), QVariant(false));
    makeFetched("width: implicitWidth; wrapMode: Text.Wrap");
    QCOMPARE(m_item->property("lineCount"), QVariant(1));
}

void TestEBText::aParagraphLeavesNoSingleLastWord()
{
    const QByteArray properties = "text: 'Drop Corvane onto the Accessibility list above.'; wrapMode: Text.Wrap";
    const auto plain = made("EBText", properties);
    m_item = made("EBParagraph", properties);
    QStringList loose;
    for (int width = 120; width < 300; ++width) {
        plain->setWidth(width);
        m_item->setWidth(width);
        loose.append(lastLine(*plain));
        QVERIFY2(lastLine(*m_item).contains(u' '), qPrintable(lastLine(*m_item)));
    }
    QVERIFY(loose.contains(QStringLiteral("above.")));
}

void TestEBText::aParagraphTakesNoMoreLines()
{
    const QByteArray properties = "text: 'Drop Corvane onto the Accessibility list above.'; wrapMode: Text.Wrap";
    const auto plain = made("EBText", properties);
    m_item = made("EBParagraph", properties);
    for (const Qt::Alignment alignment : {Qt::AlignLeft, Qt::AlignRight}) {
        m_item->setProperty("horizontalAlignment", int(alignment));
        for (int width = 60; width < 340; ++width) {
            plain->setWidth(width);
            m_item->setWidth(width);
            QCOMPARE(m_item->property("lineCount"), plain->property("lineCount"));
            QVERIFY(m_item->property("contentWidth").toReal() <= width);
        }
    }
}

void TestEBText::aParagraphFollowsItsText()
{
    m_item = made("EBParagraph", "text: 'Drop Corvane onto the Accessibility list above.'");
    for (int width = 300; width > 120 && m_item->property("slack").toReal() <= 0; --width)
        m_item->setWidth(width);
    QVERIFY(m_item->property("slack").toReal() > 0);
    m_item->setProperty("text", QStringLiteral("Allowed."));
    QCOMPARE(m_item->property("slack").toReal(), 0.0);
    QCOMPARE(m_item->property("lineCount").toInt(), 1);
}

void TestEBText::aParagraphsHeightForAnotherTextIsThatItTakes()
{
    const QString other = QStringLiteral("Switch on Corvane in the list. Not there? Drag in the tile.");
    m_item = made("EBParagraph", "width: 120; text: 'Allowed.'");
    qreal height = 0;
    QVERIFY(QMetaObject::invokeMethod(m_item.get(), "heightOf", Q_RETURN_ARG(qreal, height), Q_ARG(QString, other)));
    m_item->setProperty("text", other);
    QVERIFY(m_item->property("lineCount").toInt() >= 3);
    QCOMPARE(height, m_item->implicitHeight());
}

void TestEBText::itIsPlainInkOfTheBodyRoleUnlessTold()
{
    make("text: '<b>a</b>'");
    QCOMPARE(m_item->property("font").value<QFont>(), EBTypes::font(EBTypeRole::body));
    QCOMPARE(m_item->property("color").value<QColor>().name(), QStringLiteral("#111214"));
    QCOMPARE(m_item->property("textFormat").toInt(), int(Qt::PlainText));
}

void TestEBText::aWeightAndASizeReplaceThoseOfTheRole()
{
    make("role: 'body'; weight: Font.Medium; size: 17");
    const QFont font = m_item->property("font").value<QFont>();
    QCOMPARE(font.weight(), QFont::Medium);
    QCOMPARE(font.pixelSize(), 17);
}

void TestEBText::itsColourFollowsTheAppearance()
{
    make("text: 'a'");
    m_platform->look.setName(AppearanceName::DarkAqua);
    QCOMPARE(m_item->property("color").value<QColor>().name(), QStringLiteral("#f4f4f2"));
    m_platform->look.setName(AppearanceName::Aqua);
}

CORVANE_TEST(TestEBText, runInGui)
#include "tst_ebtext.moc"
