#include "EBType.h"
#include "FakePlatform.h"
#include "Fonts.h"
#include "TestProgram.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRawFont>

#include <memory>

namespace {

// A font keeps its spacing in 64ths of a point.
constexpr qreal spacingStep = 1.0 / 64;

const QString instrumentSans = QStringLiteral("InstrumentSans-SemiBold");
const QString geistMono = QStringLiteral("GeistMono-Medium");

QUrl fileOf(const QString &face)
{
    return QUrl::fromLocalFile(QStringLiteral(CORVANE_FONTS_FOLDER) + face + QStringLiteral(".ttf"));
}

/// The face a text is really drawn with, by the names inside the font file.
QByteArray drawnFace(const QFont &font)
{
    return QRawFont::fromFont(font).fontTable("name");
}

}

class TestEBType : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { QGuiApplication::setFont(m_desktopFont); }

    void everyRoleHasItsFontAndTracking_data();
    void everyRoleHasItsFontAndTracking();
    void noFaceStandsOnWholePixels_data() { everyRoleHasItsFontAndTracking_data(); }
    void noFaceStandsOnWholePixels();
    void theKitsOwnFacesNeverDo_data() { everyRoleHasItsFontAndTracking_data(); }
    void theKitsOwnFacesNeverDo();
    void joinedLettersAreNotTornApart();
    void aNumberThatIsNoRoleHasNoTracking();

    void theSystemFontIsThatOfTheDesktop();
    void aGenericSystemFontIsInter_data();
    void aGenericSystemFontIsInter();
    void theDesktopFontLendsItsFaceOnly();
    void theOwnFacesDoNotFollowTheDesktop();

    void inQmlARoleIsNamed();
    void inQmlAnUnknownRoleIsBody();
    void inQmlAWeightReplacesThatOfTheRole();
    void inQmlTheTrackingGrowsWithTheSize();

private:
    QFont m_desktopFont;
    EBType m_type;
};

void TestEBType::initTestCase()
{
    addFaces(FakePlatform::install().main);
    EBKitFonts::registerFonts();
    m_desktopFont = QGuiApplication::font();
}

void TestEBType::everyRoleHasItsFontAndTracking_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("face");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("weight");
    QTest::addColumn<qreal>("tracking");

    const auto semibold = int(QFont::DemiBold);
    const auto regular = int(QFont::Normal);
    QTest::newRow("hero") << 0 << instrumentSans << 160 << 0 << -9.6;
    QTest::newRow("display") << 1 << instrumentSans << 44 << 0 << -1.54;
    QTest::newRow("title") << 2 << instrumentSans << 34 << 0 << -1.19;
    QTest::newRow("heading") << 3 << instrumentSans << 27 << 0 << -0.81;
    QTest::newRow("subheading") << 4 << instrumentSans << 22 << 0 << -0.55;
    QTest::newRow("lead") << 5 << QString() << 15 << semibold << 0.0;
    QTest::newRow("body") << 6 << QString() << 13 << regular << 0.0;
    QTest::newRow("bodyStrong") << 7 << QString() << 13 << semibold << 0.0;
    QTest::newRow("small") << 8 << QString() << 12 << regular << 0.0;
    QTest::newRow("caption") << 9 << QString() << 11 << regular << 0.0;
    QTest::newRow("mono") << 10 << geistMono << 10 << 0 << 1.4;
    QTest::newRow("monoSmall") << 11 << geistMono << 9 << 0 << 1.26;
}

void TestEBType::everyRoleHasItsFontAndTracking()
{
    QFETCH(int, number);
    QFETCH(QString, face);
    QFETCH(int, size);
    QFETCH(int, weight);
    QFETCH(qreal, tracking);

    const auto role = EBTypes::fromRawValue(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(role);
    QCOMPARE(int(*role), number);
    QCOMPARE(EBTypes::tracking(number), tracking);

    const QFont font = EBTypes::font(*role);
    QCOMPARE(font.pixelSize(), size);
    QCOMPARE(font.letterSpacingType(), QFont::AbsoluteSpacing);
    QVERIFY(std::abs(font.letterSpacing() - tracking) <= spacingStep);
    QVERIFY(!font.italic());
    if (face.isEmpty()) {
        QCOMPARE(int(font.weight()), weight);
        QCOMPARE(QFontInfo(font).family(), QStringLiteral("Inter"));
        QCOMPARE(QFontInfo(font).weight(), weight);
    } else {
        QCOMPARE(drawnFace(font), QRawFont(fileOf(face).toLocalFile(), size).fontTable("name"));
    }
}

/// As wide as the letters are designed, to half a percent: words neither run together nor fall apart.
void TestEBType::noFaceStandsOnWholePixels()
{
    const QFont font = EBTypes::font(*EBTypes::fromRawValue(QString::fromLatin1(QTest::currentDataTag())));
    QFont exact = font;
    exact.setHintingPreference(QFont::PreferNoHinting);
    const QString text = QStringLiteral("One permission, then you're done");
    const qreal designed = QFontMetricsF(exact).horizontalAdvance(text);
    QVERIFY(std::abs(QFontMetricsF(font).horizontalAdvance(text) / designed - 1) <= 0.005);
}

/// Also on a desktop that asks for full hinting.
void TestEBType::theKitsOwnFacesNeverDo()
{
    QFETCH(QString, face);
    const QFont font = EBTypes::font(*EBTypes::fromRawValue(QString::fromLatin1(QTest::currentDataTag())));
    QCOMPARE(font.hintingPreference(), face.isEmpty() ? QFont::PreferDefaultHinting : QFont::PreferVerticalHinting);
}

void TestEBType::joinedLettersAreNotTornApart()
{
    const EBType type;
    for (const EBTypeRole role : EBTypes::allCases) {
        QCOMPARE(EBTypes::font(role, QStringLiteral("الإعدادات · 01")).letterSpacing(), 0.0);
        QCOMPARE(EBTypes::font(role, QStringLiteral("01 Corvane 設定")), EBTypes::font(role));
        const QString name = EBTypes::rawValue(role);
        QCOMPARE(type.font(name, 0, 60, QStringLiteral("عام")).letterSpacing(), 0.0);
        QCOMPARE(type.font(name, 0, 60, QStringLiteral("General")), type.font(name, 0, 60));
    }
}

void TestEBType::aNumberThatIsNoRoleHasNoTracking()
{
    for (const int number : {12, 13, 1000, -1})
        QCOMPARE(EBTypes::tracking(number), 0.0);
}

void TestEBType::theSystemFontIsThatOfTheDesktop()
{
    QGuiApplication::setFont(QFont(QStringLiteral("DejaVu Serif")));
    QCOMPARE(QFontInfo(EBTypes::font(EBTypeRole::body)).family(), QStringLiteral("DejaVu Serif"));
    QCOMPARE(QFontInfo(EBTypes::systemFont(14)).family(), QStringLiteral("DejaVu Serif"));
}

void TestEBType::aGenericSystemFontIsInter_data()
{
    QTest::addColumn<QString>("family");
    for (const char *family : {"Sans", "Sans Serif", "sans-serif", "Sans-Serif", "sans", "system-ui"})
        QTest::newRow(family) << QString::fromLatin1(family);
}

void TestEBType::aGenericSystemFontIsInter()
{
    QFETCH(QString, family);
    QGuiApplication::setFont(QFont(family));
    QCOMPARE(QFontInfo(EBTypes::font(EBTypeRole::lead)).family(), QStringLiteral("Inter"));
    // A second family has all fonts sorted before a letter is missing.
    QCOMPARE(EBTypes::font(EBTypeRole::lead).families().size(), 1);
}

void TestEBType::theDesktopFontLendsItsFaceOnly()
{
    QFont bold(QStringLiteral("DejaVu Sans"), 30, QFont::Black, true);
    bold.setLetterSpacing(QFont::AbsoluteSpacing, 5);
    bold.setUnderline(true);
    QGuiApplication::setFont(bold);
    const QFont font = EBTypes::font(EBTypeRole::body);
    QCOMPARE(font.families(), QStringList(QStringLiteral("DejaVu Sans")));
    QCOMPARE(font.pixelSize(), 13);
    QCOMPARE(font.weight(), QFont::Normal);
    QCOMPARE(font.letterSpacing(), 0.0);
    QVERIFY(!font.italic());
    QVERIFY(!font.underline());
}

void TestEBType::theOwnFacesDoNotFollowTheDesktop()
{
    const QFont before = EBTypes::font(EBTypeRole::title);
    QGuiApplication::setFont(QFont(QStringLiteral("DejaVu Serif"), 40));
    QCOMPARE(EBTypes::font(EBTypeRole::title), before);
}

void TestEBType::inQmlARoleIsNamed()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Embera.Tokens\nQtObject {\n"
                      " property font mono: EBType.font('mono')\n property font body: EBType.font('body')\n}",
                      QUrl());
    const std::unique_ptr<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    QCOMPARE(root->property("mono").value<QFont>(), EBTypes::font(EBTypeRole::mono));
    QCOMPARE(root->property("body").value<QFont>(), EBTypes::font(EBTypeRole::body));
}

void TestEBType::inQmlAnUnknownRoleIsBody()
{
    QCOMPARE(m_type.font(QStringLiteral("nothing")), EBTypes::font(EBTypeRole::body));
}

void TestEBType::inQmlAWeightReplacesThatOfTheRole()
{
    const QFont font = m_type.font(QStringLiteral("body"), QFont::Medium);
    QCOMPARE(font.weight(), QFont::Medium);
    QCOMPARE(font.pixelSize(), 13);
}

void TestEBType::inQmlTheTrackingGrowsWithTheSize()
{
    const QFont font = m_type.font(QStringLiteral("mono"), 0, 20);
    QCOMPARE(font.pixelSize(), 20);
    QVERIFY(std::abs(font.letterSpacing() - 2.8) <= 2 * spacingStep);
    QCOMPARE(m_type.font(QStringLiteral("body"), 0, 15).letterSpacing(), 0.0);
}

CORVANE_TEST(TestEBType, runInGui)
#include "tst_ebtype.moc"
