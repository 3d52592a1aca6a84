#include "ButtonChoices.h"
#include "ButtonSize.h"
#include "Contract.h"
#include "TestProgram.h"
#include "Theme.h"

#include <stdexcept>

class ThemeTest : public QObject {
    Q_OBJECT
private slots:
    void everyThemeHasItsTitleAndDescriptionInTheOrderOfTheTiles();
    void everySizeHasItsDiameterAndTitleInOrder();
    void theColorTable_data();
    void theColorTable();
    void aButtonOrThemeThatDoesNotExistIsAProgrammingError();
    void aTextThatIsNoColorIsPlainGrey();
    void viewsAreOfferedTheSameChoices();
    void theContractHasTheSameChoices();
    void viewsReadUnknownTextsAsTheDefault();
};

void ThemeTest::everyThemeHasItsTitleAndDescriptionInTheOrderOfTheTiles()
{
    const QList<QStringList> expected = {
        {"classic", "Classic", "The familiar macOS red, yellow and green."},
        {"soft", "Soft", "The same colors, calmer and less bright."},
        {"graphite", "Graphite", "Shades of grey. Tell them apart by shape."},
        {"mono", "Mono", "Pure black and white."},
        {"outline", "No color", "Clear outlines, nothing colored."},
    };
    QList<QStringList> found;
    for (const Theme theme : Themes::allCases) {
        found.append({Themes::rawValue(theme), Themes::title(theme), Themes::description(theme)});
        QCOMPARE(Themes::fromRawValue(Themes::rawValue(theme)), theme);
    }
    QCOMPARE(found, expected);
}

void ThemeTest::everySizeHasItsDiameterAndTitleInOrder()
{
    const QVariantList expected = {"small", 20.0, "Small", "medium", 25.0, "Medium", "large", 32.0, "Large"};
    QVariantList found;
    for (const ButtonSize size : ButtonSizes::allCases) {
        found << ButtonSizes::rawValue(size) << ButtonSizes::diameter(size) << ButtonSizes::title(size);
        QCOMPARE(ButtonSizes::fromRawValue(ButtonSizes::rawValue(size)), size);
    }
    QCOMPARE(found, expected);
}

void ThemeTest::theColorTable_data()
{
    const QColor white(Qt::white);
    const QColor black = QColor::fromRgbF(0, 0, 0, 0.18F);
    QTest::addColumn<Theme>("theme");
    QTest::addColumn<QList<QColor>>("fills");
    QTest::addColumn<QColor>("glyph");
    QTest::addColumn<QColor>("ring");
    QTest::addColumn<qreal>("ringWidth");
    QTest::newRow("classic") << Theme::classic << QList<QColor>{"#EC4640", "#F5BF4F", "#4CC15E"} << white << black
                             << 1.0;
    QTest::newRow("soft") << Theme::soft << QList<QColor>{"#D9706B", "#E3C47A", "#86BC91"} << white << black << 1.0;
    QTest::newRow("graphite") << Theme::graphite << QList<QColor>{"#2C2C2E", "#636366", "#98989D"} << white
                              << QColor::fromRgbF(1, 1, 1, 0.2F) << 1.0;
    QTest::newRow("mono") << Theme::mono << QList<QColor>{"#F5F5F7", "#F5F5F7", "#F5F5F7"} << QColor("#1C1C1E")
                          << QColor::fromRgbF(0, 0, 0, 0.35F) << 1.0;
    QTest::newRow("outline") << Theme::outline << QList<QColor>(3, QColor::fromRgbF(0, 0, 0, 0.3F)) << white
                             << QColor::fromRgbF(1, 1, 1, 0.85F) << 1.5;
}

void ThemeTest::theColorTable()
{
    QFETCH(const Theme, theme);
    QFETCH(const QList<QColor>, fills);
    for (const OverlayButton button : OverlayButtons::allCases) {
        const Themes::Look look = Themes::look(theme, button);
        QCOMPARE(look.fill, fills.at(OverlayButtons::rawValue(button)));
        QTEST(look.glyph, "glyph");
        QTEST(look.ring, "ring");
        QTEST(look.ringWidth, "ringWidth");
    }
}

void ThemeTest::aButtonOrThemeThatDoesNotExistIsAProgrammingError()
{
    QVERIFY_EXCEPTION_THROWN(Themes::look(Theme::classic, OverlayButton(3)), std::out_of_range);
    QVERIFY_EXCEPTION_THROWN(Themes::look(Theme::classic, OverlayButton(-1)), std::out_of_range);
    QVERIFY_EXCEPTION_THROWN(Themes::look(Theme(5), OverlayButton::close), std::out_of_range);
}

void ThemeTest::aTextThatIsNoColorIsPlainGrey()
{
    QCOMPARE(Themes::color(u"#EC464"), QColor("#808080"));
    QCOMPARE(Themes::color(u""), QColor("#808080"));
    QCOMPARE(Themes::color(u"#EC4640"), QColor("#EC4640"));
}

void ThemeTest::viewsAreOfferedTheSameChoices()
{
    const QVariantList themes = ButtonChoices::themes();
    QCOMPARE(themes.size(), qsizetype(Themes::allCases.size()));
    for (qsizetype place = 0; place < themes.size(); ++place) {
        const Theme theme = Themes::allCases[std::size_t(place)];
        const QVariantMap expected = {{"value", Themes::rawValue(theme)}, {"title", Themes::title(theme)}};
        QCOMPARE(themes.at(place).toMap(), expected);
    }
    const QVariantList sizes = ButtonChoices::sizes();
    QCOMPARE(sizes.size(), qsizetype(ButtonSizes::allCases.size()));
    for (qsizetype place = 0; place < sizes.size(); ++place) {
        const ButtonSize size = ButtonSizes::allCases[std::size_t(place)];
        const QVariantMap expected = {{"value", ButtonSizes::rawValue(size)}, {"title", ButtonSizes::title(size)}};
        QCOMPARE(sizes.at(place).toMap(), expected);
    }
    QCOMPARE(ButtonChoices::description("soft"), "The same colors, calmer and less bright.");
    QCOMPARE(ButtonChoices::diameter("large"), 32.0);
    QCOMPARE(ButtonChoices::theme("outline"), "outline");
    QCOMPARE(ButtonChoices::size("small"), "small");
}

void ThemeTest::theContractHasTheSameChoices()
{
    QStringList themes;
    for (const Theme theme : Themes::allCases)
        themes.append(Themes::rawValue(theme));
    QCOMPARE(Contract::storeKey("buttonTheme")->choices, themes);
    QStringList sizes;
    for (const ButtonSize size : ButtonSizes::allCases)
        sizes.append(ButtonSizes::rawValue(size));
    QCOMPARE(Contract::storeKey("buttonSizeOption")->choices, sizes);
}

void ThemeTest::viewsReadUnknownTextsAsTheDefault()
{
    QCOMPARE(ButtonChoices::theme("neon"), "classic");
    QCOMPARE(ButtonChoices::size("huge"), "medium");
    QCOMPARE(ButtonChoices::description("neon"), "The familiar macOS red, yellow and green.");
    QCOMPARE(ButtonChoices::diameter("huge"), 25.0);
}

CORVANE_TEST(ThemeTest, runInCore)
#include "tst_theme.moc"
