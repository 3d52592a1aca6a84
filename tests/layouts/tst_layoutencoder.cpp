#include "LayoutCoder.h"
#include "Sample.h"
#include "TestProgram.h"

#include <cmath>
#include <limits>

namespace {

SavedLayout named(const QString &name)
{
    return {Sample::id, name, {}, 0};
}

/// What stands for `name` in the text of a layout of that name.
QString written(const QString &name)
{
    const QString before = QStringLiteral(R"([{"created":0,"id":"3F2504E0-4F89-41D3-9A0C-0305E82C3301","name":")");
    const QString after = QStringLiteral(R"(","windows":[]}])");
    const QString text = LayoutCoder::encode({named(name)}).value_or(QString());
    if (!text.startsWith(before) || !text.endsWith(after))
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
    return text.sliced(before.size(), text.size() - before.size() - after.size());
}

/// What stands for the number in the text.
QString written(double number)
{
    const QString before = QStringLiteral(R"([{"created":)");
    const QString text = LayoutCoder::encode({{Sample::id, {}, {}, number}}).value_or(QString());
    if (!text.startsWith(before))
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
    return text.mid(before.size(), text.indexOf(u',') - before.size());
}

}

class LayoutEncoderTest : public QObject {
    Q_OBJECT

private slots:
    void anEmptyListIsTwoBrackets();
    void theTextIsCompactWithSortedKeys();
    void severalLayoutsAndWindowsAreParted();
    void anAbsentDisplayIsLeftOut();
    void anIdIsWrittenInCapitals();
    void aTextEscapesWhatItMustAndNothingElse_data();
    void aTextEscapesWhatItMustAndNothingElse();
    void everyControlCharacterIsEscaped();
    void everyTextFieldIsEscaped();
    void aNumberIsWrittenInItsShortestForm_data();
    void aNumberIsWrittenInItsShortestForm();
    void everyNumberFieldIsWrittenThatWay();
    void aNumberThatIsNotFiniteHasNoText_data();
    void aNumberThatIsNotFiniteHasNoText();
    void halfASurrogatePairHasNoText();
};

void LayoutEncoderTest::anEmptyListIsTwoBrackets()
{
    QCOMPARE(LayoutCoder::encode({}), std::optional(QStringLiteral("[]")));
}

void LayoutEncoderTest::theTextIsCompactWithSortedKeys()
{
    QCOMPARE(LayoutCoder::encode({Sample::layout()}), std::optional(Sample::text));
}

void LayoutEncoderTest::severalLayoutsAndWindowsAreParted()
{
    SavedLayout layout = Sample::layout();
    layout.windows.append(Sample::window());
    QCOMPARE(LayoutCoder::encode({layout, named(QStringLiteral("x"))}),
             std::optional(QStringLiteral(
                 R"([{"created":700000000.5,"id":"3F2504E0-4F89-41D3-9A0C-0305E82C3301","name":"Work","windows":[)"
                 R"({"app":"Editor","bundleID":"org.example.editor","display":"main",)"
                 R"("rect":{"h":0.75,"w":0.5,"x":0,"y":0.25},"title":"Notes"},)"
                 R"({"app":"Editor","bundleID":"org.example.editor","display":"main",)"
                 R"("rect":{"h":0.75,"w":0.5,"x":0,"y":0.25},"title":"Notes"}]},)"
                 R"({"created":0,"id":"3F2504E0-4F89-41D3-9A0C-0305E82C3301","name":"x","windows":[]}])")));
}

void LayoutEncoderTest::anAbsentDisplayIsLeftOut()
{
    SavedLayout layout = Sample::layout();
    layout.windows.first().display.reset();
    QCOMPARE(LayoutCoder::encode({layout}),
             std::optional(QString(Sample::text).remove(QStringLiteral(R"("display":"main",)"))));
    layout.windows.first().display = QString();
    QCOMPARE(LayoutCoder::encode({layout}),
             std::optional(QString(Sample::text).replace(QStringLiteral(R"("main")"), QStringLiteral(R"("")"))));
}

void LayoutEncoderTest::anIdIsWrittenInCapitals()
{
    const QUuid id(0xabcdef01, 0x2345, 0x6789, 0xab, 0xcd, 0xef, 0x01, 0x23, 0x45, 0x67, 0x89);
    QVERIFY(
        LayoutCoder::encode({{id, {}, {}, 0}})->contains(QStringLiteral("\"ABCDEF01-2345-6789-ABCD-EF0123456789\"")));
    QVERIFY(
        LayoutCoder::encode({{{}, {}, {}, 0}})->contains(QStringLiteral("\"00000000-0000-0000-0000-000000000000\"")));
}

void LayoutEncoderTest::aTextEscapesWhatItMustAndNothingElse_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("quotation mark") << QStringLiteral("a\"b") << QStringLiteral(R"(a\"b)");
    QTest::newRow("backslash") << QStringLiteral("a\\b") << QStringLiteral(R"(a\\b)");
    QTest::newRow("slash") << QStringLiteral("a/b") << QStringLiteral(R"(a\/b)");
    QTest::newRow("short escapes") << QStringLiteral("\b\f\n\r\t") << QStringLiteral(R"(\b\f\n\r\t)");
    QTest::newRow("NUL") << QStringLiteral("a") + QChar(u'\0') + u'b' << QStringLiteral(R"(a\u0000b)");
    QTest::newRow("hexadecimal digits") << QStringLiteral("\u000b\u001f") << QStringLiteral(R"(\u000b\u001f)");
    QTest::newRow("delete") << QStringLiteral("\u007f") << QStringLiteral("\u007f");
    QTest::newRow("other scripts") << QStringLiteral("é 漢字 🦊") << QStringLiteral("é 漢字 🦊");
    QTest::newRow("line separators") << QStringLiteral("\u2028\u2029\u0085") << QStringLiteral("\u2028\u2029\u0085");
    QTest::newRow("byte-order mark") << QStringLiteral("\ufeffa") << QStringLiteral("\ufeffa");
    QTest::newRow("markup") << QStringLiteral("<a href='x'>&") << QStringLiteral("<a href='x'>&");
    QTest::newRow("decomposed") << QStringLiteral("e\u0301") << QStringLiteral("e\u0301");
    QTest::newRow("only escapes") << QStringLiteral("//") << QStringLiteral(R"(\/\/)");
}

void LayoutEncoderTest::aTextEscapesWhatItMustAndNothingElse()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QCOMPARE(written(name), expected);
}

void LayoutEncoderTest::everyControlCharacterIsEscaped()
{
    const QMap<char16_t, QString> shortForms = {{u'\b', QStringLiteral("\\b")},
                                                {u'\t', QStringLiteral("\\t")},
                                                {u'\n', QStringLiteral("\\n")},
                                                {u'\f', QStringLiteral("\\f")},
                                                {u'\r', QStringLiteral("\\r")}};
    for (char16_t control = 0; control < u' '; ++control) {
        const QString longForm = QString::asprintf("\\u%04x", control);
        QCOMPARE(written(QString(QChar(control))), shortForms.value(control, longForm));
    }
}

void LayoutEncoderTest::everyTextFieldIsEscaped()
{
    const QString text = QStringLiteral("/");
    const auto list = LayoutCoder::encode({{Sample::id, text, {{text, text, text, {}, text}}, 0}});
    QVERIFY(list);
    QCOMPARE(list->count(QStringLiteral(R"("\/")")), 5);
}

void LayoutEncoderTest::aNumberIsWrittenInItsShortestForm_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("expected");
    QTest::newRow("0") << 0.0 << QStringLiteral("0");
    QTest::newRow("-0") << -0.0 << QStringLiteral("-0");
    QTest::newRow("1") << 1.0 << QStringLiteral("1");
    QTest::newRow("-3") << -3.0 << QStringLiteral("-3");
    QTest::newRow("100000") << 100000.0 << QStringLiteral("100000");
    QTest::newRow("a date") << 700000000.0 << QStringLiteral("700000000");
    QTest::newRow("a date with fraction") << 700000000.123456 << QStringLiteral("700000000.123456");
    QTest::newRow("1/10") << 0.1 << QStringLiteral("0.1");
    QTest::newRow("1/3") << 1.0 / 3 << QStringLiteral("0.3333333333333333");
    QTest::newRow("0.1 + 0.2") << 0.1 + 0.2 << QStringLiteral("0.30000000000000004");
    QTest::newRow("neighbour of 1") << std::nextafter(1.0, 2.0) << QStringLiteral("1.0000000000000002");
    QTest::newRow("-1.5") << -1.5 << QStringLiteral("-1.5");
    QTest::newRow("smallest plain") << 0.0001 << QStringLiteral("0.0001");
    QTest::newRow("below it") << std::nextafter(0.0001, 0.0) << QStringLiteral("9.999999999999999e-05");
    QTest::newRow("-0.00012") << -0.00012 << QStringLiteral("-0.00012");
    QTest::newRow("0.00001") << 0.00001 << QStringLiteral("1e-05");
    QTest::newRow("1.5e-9") << 1.5e-9 << QStringLiteral("1.5e-09");
    QTest::newRow("1e15") << 1e15 << QStringLiteral("1000000000000000");
    QTest::newRow("half below 2^52") << 4503599627370495.5 << QStringLiteral("4503599627370495.5");
    QTest::newRow("2^53 - 1") << 9007199254740991.0 << QStringLiteral("9007199254740991");
    QTest::newRow("2^53") << 9007199254740992.0 << QStringLiteral("9007199254740992");
    QTest::newRow("-2^53") << -9007199254740992.0 << QStringLiteral("-9007199254740992");
    QTest::newRow("2^53 + 2") << 9007199254740994.0 << QStringLiteral("9.007199254740994e+15");
    QTest::newRow("1e16") << 1e16 << QStringLiteral("1e+16");
    QTest::newRow("1e20") << 1e20 << QStringLiteral("1e+20");
    QTest::newRow("-1.25e20") << -1.25e20 << QStringLiteral("-1.25e+20");
    QTest::newRow("1e100") << 1e100 << QStringLiteral("1e+100");
    QTest::newRow("largest") << std::numeric_limits<double>::max() << QStringLiteral("1.7976931348623157e+308");
    QTest::newRow("smallest normal") << std::numeric_limits<double>::min() << QStringLiteral("2.2250738585072014e-308");
    QTest::newRow("smallest") << std::numeric_limits<double>::denorm_min() << QStringLiteral("5e-324");
}

void LayoutEncoderTest::aNumberIsWrittenInItsShortestForm()
{
    QFETCH(double, number);
    QFETCH(QString, expected);
    QCOMPARE(written(number), expected);
}

void LayoutEncoderTest::everyNumberFieldIsWrittenThatWay()
{
    const auto text = LayoutCoder::encode({{Sample::id, {}, {{{}, {}, {}, {1e20, -0.0, 0.1, 1e-5}, {}}}, 3}});
    QVERIFY(text);
    QVERIFY2(text->contains(QStringLiteral(R"("rect":{"h":1e-05,"w":0.1,"x":1e+20,"y":-0})")), qPrintable(*text));
    QVERIFY2(text->contains(QStringLiteral(R"("created":3,)")), qPrintable(*text));
}

void LayoutEncoderTest::aNumberThatIsNotFiniteHasNoText_data()
{
    QTest::addColumn<double>("number");
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity();
    QTest::newRow("-infinity") << -std::numeric_limits<double>::infinity();
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
}

void LayoutEncoderTest::aNumberThatIsNotFiniteHasNoText()
{
    QFETCH(double, number);
    SavedLayout layout = Sample::layout();
    layout.created = number;
    QVERIFY(!LayoutCoder::encode({layout}));
    for (double UnitRect::*const field : {&UnitRect::x, &UnitRect::y, &UnitRect::w, &UnitRect::h}) {
        layout = Sample::layout();
        layout.windows.first().rect.*field = number;
        QVERIFY(!LayoutCoder::encode({Sample::layout(), layout, Sample::layout()}));
    }
}

void LayoutEncoderTest::halfASurrogatePairHasNoText()
{
    for (const char16_t half : {u'\xd83e', u'\xdd8a'})
        QVERIFY(!LayoutCoder::encode({named(QStringLiteral("a") + QChar(half) + u'b')}));
    QVERIFY(LayoutCoder::encode({named(QStringLiteral("a\U0001f98ab"))}));
}

CORVANE_TEST(LayoutEncoderTest, runInCore)
#include "tst_layoutencoder.moc"
