#include "EB.h"
#include "EBKit.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>

#include <memory>

namespace {

struct Token {
    const char *name;
    const EBKitColor &(*color)();
    const char *lightHex;
    double lightAlpha;
    const char *darkHex;
    double darkAlpha;
};

const QList<Token> tokens = {
    {"paper", EBKit::paper, "#F7F6F2", 1, "#0D0D0E", 1},
    {"surface", EBKit::surface, "#FFFFFF", 1, "#1B1B1D", 1},
    {"sunk", EBKit::sunk, "#EFEDE8", 1, "#151517", 1},
    {"ink", EBKit::ink, "#111214", 1, "#F4F4F2", 1},
    {"inkMuted", EBKit::inkMuted, "#67686E", 1, "#A3A3A8", 1},
    {"onInk", EBKit::onInk, "#FFFFFF", 1, "#111214", 1},
    {"line", EBKit::line, "#111214", 0.08, "#FFFFFF", 0.085},
    {"lineStrong", EBKit::lineStrong, "#111214", 0.22, "#FFFFFF", 0.24},
    {"chip", EBKit::chip, "#111214", 0.055, "#FFFFFF", 0.08},
    {"track", EBKit::track, "#787880", 0.20, "#787880", 0.32},
    {"knob", EBKit::knob, "#FFFFFF", 1, "#FFFFFF", 1},
    {"segOn", EBKit::segOn, "#FFFFFF", 1, "#FFFFFF", 0.18},
    {"coral", EBKit::coral, "#F75734", 1, "#FF6A48", 1},
    {"indigo", EBKit::indigo, "#5A5CF2", 1, "#7B7DFF", 1},
    {"teal", EBKit::teal, "#0EA092", 1, "#22C3B2", 1},
    {"onCoral", EBKit::onCoral, "#FFFFFF", 1, "#111214", 1},
    {"onIndigo", EBKit::onIndigo, "#FFFFFF", 1, "#111214", 1},
    {"onTeal", EBKit::onTeal, "#FFFFFF", 1, "#111214", 1},
    {"loudCoral", EBKit::loudCoral, "#FF5A36", 1, "#FF5A36", 1},
    {"loudIndigo", EBKit::loudIndigo, "#5A5CF2", 1, "#5A5CF2", 1},
    {"loudTeal", EBKit::loudTeal, "#0EA193", 1, "#0EA193", 1},
    {"onLoudCoral", EBKit::onLoudCoral, "#111214", 1, "#111214", 1},
    {"onLoudIndigo", EBKit::onLoudIndigo, "#FFFFFF", 1, "#FFFFFF", 1},
    {"onLoudTeal", EBKit::onLoudTeal, "#111214", 1, "#111214", 1},
    {"loudCoralDot", EBKit::loudCoralDot, "#CC482B", 1, "#CC482B", 1},
    {"loudIndigoDot", EBKit::loudIndigoDot, "#484AC2", 1, "#484AC2", 1},
    {"loudTealDot", EBKit::loudTealDot, "#0B8479", 1, "#0B8479", 1},
    {"ok", EBKit::ok, "#1F8A4C", 1, "#4CD07D", 1},
};

const QList<std::optional<AppearanceName>> lightNames = {AppearanceName::Aqua,
                                                         AppearanceName::AccessibilityHighContrastAqua, std::nullopt};
const QList<std::optional<AppearanceName>> darkNames = {AppearanceName::DarkAqua,
                                                        AppearanceName::AccessibilityHighContrastDarkAqua};

void compare(const QColor &color, const QString &hexName, double alpha)
{
    QCOMPARE(color.name().toUpper(), hexName);
    QVERIFY2(std::abs(color.alphaF() - alpha) < 0.0005, qPrintable(QString::number(color.alphaF())));
}

}

class TestPalette : public QObject {
    Q_OBJECT

private slots:
    void init();

    void everyTokenHasItsLightAndItsDarkValue_data();
    void everyTokenHasItsLightAndItsDarkValue();
    void componentsAreTheFourDecimalsOfTheTable();
    void highContrastHasNoValuesOfItsOwn();
    void withoutAnyMatchTheLightValuesAreUsed();
    void aColourOfItsOwnResolvesLikeAToken();

    void qmlSeesEveryToken_data();
    void qmlSeesEveryToken();
    void qmlHasNoTokenBeyondTheTable();
    void qmlFollowsTheAppearance();
    void qmlFollowsReduceMotion();

    void sixDigitsMakeAColour_data();
    void sixDigitsMakeAColour();
    void anythingElseMakesNone_data();
    void anythingElseMakesNone();

private:
    FakePlatform *m_platform = nullptr;
};

void TestPalette::init()
{
    m_platform = &FakePlatform::install();
}

void TestPalette::everyTokenHasItsLightAndItsDarkValue_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < tokens.size(); ++index)
        QTest::newRow(tokens[index].name) << index;
}

void TestPalette::everyTokenHasItsLightAndItsDarkValue()
{
    QFETCH(int, index);
    const Token &token = tokens[index];
    for (const auto &name : lightNames)
        compare(token.color().resolved(name), QString::fromLatin1(token.lightHex), token.lightAlpha);
    for (const auto &name : darkNames)
        compare(token.color().resolved(name), QString::fromLatin1(token.darkHex), token.darkAlpha);
}

void TestPalette::componentsAreTheFourDecimalsOfTheTable()
{
    const QColor paper = EBKit::paper().resolved(AppearanceName::Aqua);
    QCOMPARE(paper, paper.toRgb());
    QVERIFY(std::abs(paper.redF() - 0.9686) < 0.00002);
    QVERIFY(std::abs(paper.greenF() - 0.9647) < 0.00002);
    QVERIFY(std::abs(paper.blueF() - 0.9490) < 0.00002);
    const QColor ok = EBKit::ok().resolved(AppearanceName::DarkAqua);
    QVERIFY(std::abs(ok.redF() - 0.2980) < 0.00002);
    QVERIFY(std::abs(ok.greenF() - 0.8157) < 0.00002);
    QVERIFY(std::abs(ok.blueF() - 0.4902) < 0.00002);
}

void TestPalette::highContrastHasNoValuesOfItsOwn()
{
    m_platform->look.setName(AppearanceName::AccessibilityHighContrastAqua);
    compare(EBKit::paper().current(), QStringLiteral("#F7F6F2"), 1);
    compare(EBKit::ink().current(), QStringLiteral("#111214"), 1);
    m_platform->look.setName(AppearanceName::AccessibilityHighContrastDarkAqua);
    compare(EBKit::paper().current(), QStringLiteral("#0D0D0E"), 1);
    compare(EBKit::ink().current(), QStringLiteral("#F4F4F2"), 1);
}

void TestPalette::withoutAnyMatchTheLightValuesAreUsed()
{
    m_platform->look.setName(std::nullopt);
    compare(EBKit::paper().current(), QStringLiteral("#F7F6F2"), 1);
    compare(EBKit::ink().current(), QStringLiteral("#111214"), 1);
}

void TestPalette::aColourOfItsOwnResolvesLikeAToken()
{
    const EBKitColor color = EBKitColor::eb({1, 0, 0, 1}, {0, 0, 1, 0.5});
    m_platform->look.setName(AppearanceName::Aqua);
    compare(color.current(), QStringLiteral("#FF0000"), 1);
    m_platform->look.setName(AppearanceName::DarkAqua);
    compare(color.current(), QStringLiteral("#0000FF"), 0.5);
}

void TestPalette::qmlSeesEveryToken_data()
{
    everyTokenHasItsLightAndItsDarkValue_data();
}

void TestPalette::qmlSeesEveryToken()
{
    QFETCH(int, index);
    const Token &token = tokens[index];
    EB palette;
    compare(palette.property(token.name).value<QColor>(), QString::fromLatin1(token.lightHex), token.lightAlpha);
    m_platform->look.setName(AppearanceName::DarkAqua);
    compare(palette.property(token.name).value<QColor>(), QString::fromLatin1(token.darkHex), token.darkAlpha);
}

void TestPalette::qmlHasNoTokenBeyondTheTable()
{
    QStringList seen;
    for (int index = EB::staticMetaObject.propertyOffset(); index < EB::staticMetaObject.propertyCount(); ++index) {
        const QMetaProperty property = EB::staticMetaObject.property(index);
        if (property.metaType() == QMetaType::fromType<QColor>())
            seen.append(QString::fromLatin1(property.name()));
    }
    QStringList expected;
    for (const Token &token : tokens)
        expected.append(QString::fromLatin1(token.name));
    QCOMPARE(seen, expected);
}

void TestPalette::qmlFollowsTheAppearance()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Embera.Tokens\nQtObject { property string paper: EB.paper }", QUrl());
    const std::unique_ptr<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    QCOMPARE(root->property("paper"), QVariant(QStringLiteral("#f7f6f2")));
    m_platform->look.setName(AppearanceName::DarkAqua);
    QCOMPARE(root->property("paper"), QVariant(QStringLiteral("#0d0d0e")));
    m_platform->look.setName(AppearanceName::Aqua);
    QCOMPARE(root->property("paper"), QVariant(QStringLiteral("#f7f6f2")));
}

void TestPalette::qmlFollowsReduceMotion()
{
    EB palette;
    QSignalSpy changes(&palette, &EB::appearanceChanged);
    QVERIFY(!palette.reduceMotion());
    m_platform->look.setReduceMotion(true);
    QVERIFY(palette.reduceMotion());
    QCOMPARE(changes.size(), 1);
}

void TestPalette::sixDigitsMakeAColour_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("color");

    const auto indigo = QStringLiteral("#5A5CF2");
    QTest::newRow("bare") << "5A5CF2" << indigo;
    QTest::newRow("hash sign") << "#5A5CF2" << indigo;
    QTest::newRow("lower case, hash sign, spaces") << " #5a5cf2 " << indigo;
    QTest::newRow("mixed case") << "5a5CF2" << indigo;
    QTest::newRow("tabs and several spaces") << "\t  5A5CF2 \t" << indigo;
    QTest::newRow("no-break and ideographic space") << QStringLiteral("\u00a05A5CF2\u3000") << indigo;
    QTest::newRow("black") << "000000" << QStringLiteral("#000000");
    QTest::newRow("white") << "FFFFFF" << QStringLiteral("#FFFFFF");
    QTest::newRow("red, green and blue in order") << "010203" << QStringLiteral("#010203");
    QTest::newRow("a plus sign and five digits") << "+A5CF2" << QStringLiteral("#0A5CF2");
    QTest::newRow("hash sign, plus sign and five digits") << "#+12345" << QStringLiteral("#012345");
    QTest::newRow("a minus sign before zero") << "-00000" << QStringLiteral("#000000");
}

void TestPalette::sixDigitsMakeAColour()
{
    QFETCH(QString, text);
    QFETCH(QString, color);
    const std::optional<QColor> parsed = EBKitColor::hex(text);
    QVERIFY(parsed);
    compare(*parsed, color, 1);
}

void TestPalette::anythingElseMakesNone_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << "";
    QTest::newRow("only a hash sign") << "#";
    QTest::newRow("only spaces") << "      ";
    QTest::newRow("two hash signs") << "##5A5CF2";
    QTest::newRow("two hash signs and five digits") << "##5A5CF";
    QTest::newRow("three digits") << "5AF";
    QTest::newRow("four digits") << "#5AFF";
    QTest::newRow("five digits") << "5A5CF";
    QTest::newRow("seven digits") << "5A5CF20";
    QTest::newRow("eight digits") << "#5A5CF2FF";
    QTest::newRow("no hexadecimal character") << "5A5CG2";
    QTest::newRow("a space among them") << "5A5 F2";
    QTest::newRow("a space behind the hash sign") << "# 5A5CF2";
    QTest::newRow("a prefix") << "0x5A5C";
    QTest::newRow("newline behind") << "5A5CF2\n";
    QTest::newRow("newline before") << "\n5A5CF2";
    QTest::newRow("carriage return behind") << "5A5CF2\r";
    QTest::newRow("line separator behind") << QStringLiteral("5A5CF2\u2028");
    QTest::newRow("a newline that makes six") << "5A5CF\n";
    QTest::newRow("a minus sign and a value") << "-5A5CF";
    QTest::newRow("two signs") << "+-0000";
    QTest::newRow("a plus sign and six digits") << "+5A5CF2";
    QTest::newRow("full-width digits") << QStringLiteral("\uff15\uff21\uff15\uff23\uff26\uff12");
    QTest::newRow("a name") << "indigo";
}

void TestPalette::anythingElseMakesNone()
{
    QFETCH(QString, text);
    QVERIFY(!EBKitColor::hex(text));
}

CORVANE_TEST(TestPalette, runInCore)
#include "tst_palette.moc"
