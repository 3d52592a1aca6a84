#include "EBKitFonts.h"
#include "FakePlatform.h"

#include <QFontMetricsF>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

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
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void centredTextIsCentredToTheEye_data();
    void centredTextIsCentredToTheEye();
    void theEdgesAreKeptWhicheverWayItIsAligned_data();
    void theEdgesAreKeptWhicheverWayItIsAligned();
    void theImplicitWidthEndsWithTheLastLetter_data();
    void theImplicitWidthEndsWithTheLastLetter();
    void itsOwnWidthIsEnoughForEveryGlyph_data();
    void itsOwnWidthIsEnoughForEveryGlyph();

private:
    Ink painted(const QByteArray &text);
    std::unique_ptr<QQuickItem> make(const QByteArray &text);
    void texts();

    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

void TestEBText::initTestCase()
{
    FakePlatform &platform = FakePlatform::install();
    for (const QString &face : {EBKitFonts::display, EBKitFonts::mono}) {
        const QString file = face + QStringLiteral(".ttf");
        platform.main.resources.insert(file, QUrl::fromLocalFile(QStringLiteral(FONTS_FOLDER) + file));
    }
    EBKitFonts::registerFonts();
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(roomWidth, roomHeight);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

std::unique_ptr<QQuickItem> TestEBText::make(const QByteArray &text)
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick\nimport Embera.Tokens\n" + text, QUrl());
    std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem *>(component.create()));
    if (!item)
        qCritical("%s", qPrintable(component.errorString()));
    return item;
}

Ink TestEBText::painted(const QByteArray &text)
{
    const std::unique_ptr<QQuickItem> item = make(text);
    item->setParentItem(m_window->contentItem());
    return inkOf(m_window->grabWindow());
}

// Texts that are their own mirror image, so that their weight lies in their middle.
void TestEBText::texts()
{
    QTest::addColumn<QByteArray>("role");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("mirrored");

    for (const char *role : {"hero", "display", "subheading", "body", "mono", "monoSmall"}) {
        for (const bool mirrored : {false, true}) {
            const char *direction = mirrored ? "mirrored" : "plain";
            QTest::addRow("%s, Latin, %s", role, direction)
                << QByteArray(role) << QByteArray("HOH") << mirrored;
            QTest::addRow("%s, Hebrew, %s", role, direction)
                << QByteArray(role) << QByteArray("\u05e1\u05e1\u05e1") << mirrored;
        }
    }
}

void TestEBText::centredTextIsCentredToTheEye_data()
{
    texts();
}

void TestEBText::centredTextIsCentredToTheEye()
{
    QFETCH(QByteArray, role);
    QFETCH(QByteArray, text);
    QFETCH(bool, mirrored);
    const QByteArray placed = "width: 900; text: '" + text + "'; color: 'black'; role: '" + role
        + "'; horizontalAlignment: Text.AlignHCenter; LayoutMirroring.enabled: "
        + (mirrored ? "true" : "false");
    // The sides of a letter differ a little; the same text without tracking says by how much.
    const qreal middle = painted("EBText { " + placed + "; font.letterSpacing: 0; rightPadding: 0 }").centre;
    const qreal centre = painted("EBText { " + placed + " }").centre;
    qDebug() << middle << centre;
    QVERIFY2(std::abs(centre - middle) <= 0.5, qPrintable(QString::number(centre - middle)));
}

void TestEBText::theEdgesAreKeptWhicheverWayItIsAligned_data()
{
    texts();
}
void TestEBText::theEdgesAreKeptWhicheverWayItIsAligned() { }
void TestEBText::theImplicitWidthEndsWithTheLastLetter_data()
{
    texts();
}
void TestEBText::theImplicitWidthEndsWithTheLastLetter()
{
    QFETCH(QByteArray, role);
    QFETCH(QByteArray, text);
    const auto item = make("EBText { text: '" + text + "'; role: '" + role + "' }");
    QFont font = item->property("font").value<QFont>();
    const qreal tracking = font.letterSpacing();
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    const qreal advance = QFontMetricsF(font).horizontalAdvance(QString::fromUtf8(text));
    qDebug() << item->implicitWidth() << advance + 2 * tracking;
}
void TestEBText::itsOwnWidthIsEnoughForEveryGlyph_data()
{
    texts();
}
void TestEBText::itsOwnWidthIsEnoughForEveryGlyph() { }

QTEST_MAIN(TestEBText)
#include "tst_ebtext.moc"
