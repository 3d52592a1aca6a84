#include "EBKit.h"
#include "EBKitText.h"
#include "FakePlatform.h"
#include "TestProgram.h"

class TestEBKitText : public QObject {
    Q_OBJECT

private slots:
    void init() { m_platform = &FakePlatform::install(); }

    void theTextCarriesItsFontColourAndKern();
    void theKernReplacesTheSpacingOfTheFont();
    void theParagraphCarriesTheAlignmentAndWrapsAtWords_data();
    void theParagraphCarriesTheAlignmentAndWrapsAtWords();
    void theColourIsThatOfTheAppearance();
    void theWholeStringIsKept();

private:
    FakePlatform *m_platform = nullptr;
};

void TestEBKitText::theTextCarriesItsFontColourAndKern()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    font.setWeight(QFont::DemiBold);
    const auto result = EBKitText{QStringLiteral("Open"), font, EBKit::coral(), 1.25}.attributed();
    QCOMPARE(result.string, QStringLiteral("Open"));
    QCOMPARE(result.characters.font().families(), font.families());
    QCOMPARE(result.characters.font().pixelSize(), 13);
    QCOMPARE(result.characters.font().weight(), QFont::DemiBold);
    QCOMPARE(result.characters.foreground().color().name(), QStringLiteral("#f75734"));
    QCOMPARE(result.characters.foreground().style(), Qt::SolidPattern);
    QCOMPARE(result.characters.font().letterSpacingType(), QFont::AbsoluteSpacing);
    QCOMPARE(result.characters.font().letterSpacing(), 1.25);
    QCOMPARE(result.characters.background().style(), Qt::NoBrush);
    QVERIFY(!result.characters.fontUnderline());
}

void TestEBKitText::theKernReplacesTheSpacingOfTheFont()
{
    QFont font;
    font.setLetterSpacing(QFont::PercentageSpacing, 150);
    const auto none = EBKitText{QStringLiteral("a"), font, EBKit::ink()}.attributed();
    QCOMPARE(none.characters.font().letterSpacingType(), QFont::AbsoluteSpacing);
    QCOMPARE(none.characters.font().letterSpacing(), 0.0);
    const auto negative = EBKitText{QStringLiteral("a"), font, EBKit::ink(), -0.5}.attributed();
    QCOMPARE(negative.characters.font().letterSpacing(), -0.5);
}

void TestEBKitText::theParagraphCarriesTheAlignmentAndWrapsAtWords_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::newRow("leading") << Qt::Alignment(Qt::AlignLeading);
    QTest::newRow("centre") << Qt::Alignment(Qt::AlignHCenter);
    QTest::newRow("trailing") << Qt::Alignment(Qt::AlignTrailing);
    QTest::newRow("justified") << Qt::Alignment(Qt::AlignJustify);
}

void TestEBKitText::theParagraphCarriesTheAlignmentAndWrapsAtWords()
{
    QFETCH(Qt::Alignment, alignment);
    const auto result = EBKitText{QStringLiteral("a b"), QFont(), EBKit::ink(), 0, alignment}.attributed();
    QCOMPARE(result.paragraph.alignment(), alignment);
    QCOMPARE(result.paragraph.wrapMode(), QTextOption::WordWrap);
}

void TestEBKitText::theColourIsThatOfTheAppearance()
{
    const EBKitText text{QStringLiteral("a"), QFont(), EBKit::ink()};
    m_platform->look.setName(AppearanceName::DarkAqua);
    QCOMPARE(text.attributed().characters.foreground().color().name(), QStringLiteral("#f4f4f2"));
}

void TestEBKitText::theWholeStringIsKept()
{
    for (const QString &string : {QString(), QStringLiteral("two\nlines"), QStringLiteral("⌘ <b>")})
        QCOMPARE((EBKitText{string, QFont(), EBKit::ink()}.attributed().string), string);
}

CORVANE_TEST(TestEBKitText, runInGui)
#include "tst_ebkittext.moc"
