#include "LayoutCoder.h"
#include "Sample.h"
#include "TestProgram.h"

#include <QDateTime>

#include <cmath>
#include <limits>
#include <vector>

namespace {

const QString windowText = QStringLiteral(
    R"({"app":"Editor","bundleID":"org.example.editor","display":"main","rect":{"h":0.75,"w":0.5,"x":0,"y":0.25},"title":"Notes"})");

/// A list of one layout with these members.
QString listOf(const QString &members)
{
    return QStringLiteral("[{%1}]").arg(members);
}

QString listOfWindow(const QString &window)
{
    return listOf(QStringLiteral(R"("windows":[%1])").arg(window));
}

QString listOfRect(const QString &rect)
{
    return listOfWindow(QStringLiteral(R"({"app":"","bundleID":"","title":"","rect":%1})").arg(rect));
}

/// A list in which the first rectangle has this x.
QString listOfNumber(const QString &number)
{
    return listOfRect(QStringLiteral(R"({"h":1,"w":1,"x":%1,"y":1})").arg(number));
}

/// An unknown key that comes before everything else.
QString listWithUnknown(const QString &value)
{
    return listOf(QStringLiteral(R"("colour":%1,"windows":[])").arg(value));
}

/// Seconds since the first moment of 2001, by another way than the code's.
double now()
{
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    return static_cast<double>(reference.msecsTo(QDateTime::currentDateTimeUtc())) / 1000;
}

/// The one layout of a list that must decode.
SavedLayout onlyLayout(const QString &text)
{
    const auto layouts = LayoutCoder::decode(text);
    if (!layouts || layouts->size() != 1) {
        QTest::qFail(qPrintable(QStringLiteral("no list of one layout: ") + text), __FILE__, __LINE__);
        return {};
    }
    return layouts->constFirst();
}

}

class LayoutDecoderTest : public QObject {
    Q_OBJECT

private slots:
    void everyFieldIsRead();
    void theOrderOfKeysAndWhiteSpaceDoNotMatter();
    void theOrderOfLayoutsAndWindowsIsKept();
    void aLayoutWithoutIdNameAndDateGetsThem_data();
    void aLayoutWithoutIdNameAndDateGetsThem();
    void everyLayoutWithoutAnIdGetsItsOwn();
    void aWindowWithoutDisplayHasNone_data();
    void aWindowWithoutDisplayHasNone();
    void anEmptyTextIsAValueOfItsOwn();
    void anIdIsReadInEitherCase_data();
    void anIdIsReadInEitherCase();
    void anythingElseIsNoId_data();
    void anythingElseIsNoId();
    void anEmptyListIsAList_data();
    void anEmptyListIsAList();
    void anotherTextIsRefused_data();
    void anotherTextIsRefused();
    void aMissingRequiredFieldRefusesTheList_data();
    void aMissingRequiredFieldRefusesTheList();
    void aWrongTypeRefusesTheList_data();
    void aWrongTypeRefusesTheList();
    void oneFaultyLayoutRefusesTheWholeList();
    void anUnknownKeyIsPassedOver_data();
    void anUnknownKeyIsPassedOver();
    void malformedTextUnderAnUnknownKeyRefusesTheList_data();
    void malformedTextUnderAnUnknownKeyRefusesTheList();
    void theFirstOfTwoEqualKeysCounts();
    void aKeyMayBeWrittenWithEscapes();
    void aNumberIsReadToTheNearestDouble_data();
    void aNumberIsReadToTheNearestDouble();
    void minusZeroKeepsItsSign_data();
    void minusZeroKeepsItsSign();
    void aNumberThatIsNoneRefusesTheList_data();
    void aNumberThatIsNoneRefusesTheList();
    void aTextIsReadWithItsEscapes_data();
    void aTextIsReadWithItsEscapes();
    void aTextThatIsNoneRefusesTheList_data();
    void aTextThatIsNoneRefusesTheList();
    void halfASurrogatePairRefusesTheList();
    void aByteOrderMarkInFrontIsPassedOver();
    void aByteOrderMarkInsideANameBelongsToIt();
    void aValueIsReadDownToTheDepthOf512_data();
    void aValueIsReadDownToTheDepthOf512();
    void aNestingBombIsRefused_data();
    void aNestingBombIsRefused();
    void aNameOfAMegabyteIsRead();
    void tenThousandLayoutsAreRead();
    void everyCutOfAListIsRefused();
};

void LayoutDecoderTest::everyFieldIsRead()
{
    const SavedLayout layout = onlyLayout(Sample::text);
    QCOMPARE(layout.id, Sample::id);
    QCOMPARE(layout.name, QStringLiteral("Work"));
    QCOMPARE(layout.created, 700000000.5);
    QCOMPARE(layout.windows.size(), 1);
    const SavedLayout::Window &window = layout.windows.constFirst();
    QCOMPARE(window.bundleID, QStringLiteral("org.example.editor"));
    QCOMPARE(window.app, QStringLiteral("Editor"));
    QCOMPARE(window.title, QStringLiteral("Notes"));
    QCOMPARE(window.display, std::optional(QStringLiteral("main")));
    QCOMPARE(window.rect.x, 0.0);
    QCOMPARE(window.rect.y, 0.25);
    QCOMPARE(window.rect.w, 0.5);
    QCOMPARE(window.rect.h, 0.75);
}

void LayoutDecoderTest::theOrderOfKeysAndWhiteSpaceDoNotMatter()
{
    const QString text =
        QStringLiteral("\n[ {\r\n\t\"windows\" : [ { \"title\":\"Notes\", \"rect\" : "
                       "{\"y\":0.25,\"x\":0,\"w\":0.5,\"h\":0.75}, \"display\":\"main\","
                       "\"bundleID\":\"org.example.editor\",\"app\":\"Editor\" } ],\"name\":\"Work\","
                       "\"id\":\"3F2504E0-4F89-41D3-9A0C-0305E82C3301\",\"created\":700000000.5 } ]\n");
    QVERIFY(onlyLayout(text) == Sample::layout());
}

void LayoutDecoderTest::theOrderOfLayoutsAndWindowsIsKept()
{
    const auto layouts = LayoutCoder::decode(
        QStringLiteral(R"([{"name":"b","windows":[%1,%2]},{"name":"a","windows":[]},{"name":"c","windows":[]}])")
            .arg(windowText, QString(windowText).replace(QStringLiteral("Notes"), QStringLiteral("Another"))));
    QVERIFY(layouts);
    QCOMPARE(layouts->size(), 3);
    QCOMPARE(layouts->at(0).name, QStringLiteral("b"));
    QCOMPARE(layouts->at(1).name, QStringLiteral("a"));
    QCOMPARE(layouts->at(2).name, QStringLiteral("c"));
    QCOMPARE(layouts->at(0).windows.size(), 2);
    QCOMPARE(layouts->at(0).windows.at(0).title, QStringLiteral("Notes"));
    QCOMPARE(layouts->at(0).windows.at(1).title, QStringLiteral("Another"));
    QVERIFY(layouts->at(1).windows.isEmpty());
}

void LayoutDecoderTest::aLayoutWithoutIdNameAndDateGetsThem_data()
{
    QTest::addColumn<QString>("members");
    QTest::newRow("absent") << QStringLiteral(R"("windows":[])");
    QTest::newRow("null") << QStringLiteral(R"("created":null,"id":null,"name":null,"windows":[])");
}

void LayoutDecoderTest::aLayoutWithoutIdNameAndDateGetsThem()
{
    QFETCH(QString, members);
    const double before = now();
    const SavedLayout layout = onlyLayout(listOf(members));
    const double after = now();
    QVERIFY(!layout.id.isNull());
    QCOMPARE(layout.id.version(), QUuid::Random);
    QCOMPARE(layout.name, QStringLiteral("Layout"));
    // The clock asked here is cut to milliseconds.
    QVERIFY2(layout.created >= before - 0.001 && layout.created <= after + 0.001,
             qPrintable(QStringLiteral("%1 … %2 … %3").arg(before).arg(layout.created).arg(after)));
}

void LayoutDecoderTest::everyLayoutWithoutAnIdGetsItsOwn()
{
    const auto layouts = LayoutCoder::decode(QStringLiteral(R"([{"windows":[]},{"windows":[]}])"));
    QVERIFY(layouts);
    QCOMPARE(layouts->size(), 2);
    QVERIFY(layouts->at(0).id != layouts->at(1).id);
}

void LayoutDecoderTest::aWindowWithoutDisplayHasNone_data()
{
    QTest::addColumn<QString>("display");
    QTest::newRow("absent") << QString();
    QTest::newRow("null") << QStringLiteral(R"("display":null,)");
}

void LayoutDecoderTest::aWindowWithoutDisplayHasNone()
{
    QFETCH(QString, display);
    // A window with a display comes first: nothing of it may be left.
    const QString second = QString(windowText).replace(QStringLiteral(R"("display":"main",)"), display);
    const SavedLayout layout = onlyLayout(listOf(QStringLiteral(R"("windows":[%1,%2])").arg(windowText, second)));
    QCOMPARE(layout.windows.size(), 2);
    QVERIFY(layout.windows.at(0).display);
    QVERIFY(!layout.windows.at(1).display);
}

void LayoutDecoderTest::anEmptyTextIsAValueOfItsOwn()
{
    const SavedLayout layout = onlyLayout(
        listOf(QStringLiteral(R"("name":"","windows":[{"app":"","bundleID":"","title":"","display":"","rect":)"
                              R"({"h":1,"w":1,"x":0,"y":0}}])")));
    QCOMPARE(layout.name, QString());
    QCOMPARE(layout.windows.constFirst().display, std::optional(QString()));
}

void LayoutDecoderTest::anIdIsReadInEitherCase_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QUuid>("expected");
    QTest::newRow("capitals") << QStringLiteral("3F2504E0-4F89-41D3-9A0C-0305E82C3301") << Sample::id;
    QTest::newRow("small") << QStringLiteral("3f2504e0-4f89-41d3-9a0c-0305e82c3301") << Sample::id;
    QTest::newRow("both") << QStringLiteral("3f2504E0-4F89-41d3-9a0C-0305e82C3301") << Sample::id;
    QTest::newRow("all zero") << QStringLiteral("00000000-0000-0000-0000-000000000000") << QUuid();
    QTest::newRow("no random one") << QStringLiteral("ffffffff-ffff-ffff-ffff-ffffffffffff")
                                   << QUuid(0xffffffff, 0xffff, 0xffff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff);
}

void LayoutDecoderTest::anIdIsReadInEitherCase()
{
    QFETCH(QString, id);
    QFETCH(QUuid, expected);
    QCOMPARE(onlyLayout(listOf(QStringLiteral(R"("id":"%1","windows":[])").arg(id))).id, expected);
}

void LayoutDecoderTest::anythingElseIsNoId_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("empty") << QString();
    QTest::newRow("a word") << QStringLiteral("layout");
    QTest::newRow("braces") << QStringLiteral("{3F2504E0-4F89-41D3-9A0C-0305E82C3301}");
    QTest::newRow("brace of 36") << QStringLiteral("{3F2504E0-4F89-41D3-9A0C-0305E82C330");
    QTest::newRow("35 characters") << QStringLiteral("3F2504E0-4F89-41D3-9A0C-0305E82C330");
    QTest::newRow("37 characters") << QStringLiteral("3F2504E0-4F89-41D3-9A0C-0305E82C33011");
    QTest::newRow("space behind") << QStringLiteral("3F2504E0-4F89-41D3-9A0C-0305E82C3301 ");
    QTest::newRow("no hyphens") << QStringLiteral("3F2504E04F8941D39A0C0305E82C3301");
    QTest::newRow("hyphens elsewhere") << QStringLiteral("3F2504E04-F89-41D3-9A0C-0305E82C3301");
    QTest::newRow("no hexadecimal digit") << QStringLiteral("3F2504E0-4F89-41D3-9A0C-0305E82C330G");
    QTest::newRow("36 bytes of other letters") << QStringLiteral("éééééééé-éééé-éé");
}

void LayoutDecoderTest::anythingElseIsNoId()
{
    QFETCH(QString, id);
    QVERIFY(!LayoutCoder::decode(listOf(QStringLiteral(R"("id":"%1","windows":[])").arg(id))));
}

void LayoutDecoderTest::anEmptyListIsAList_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("compact") << QStringLiteral("[]");
    QTest::newRow("white space") << QStringLiteral(" [\t\r\n] ");
}

void LayoutDecoderTest::anEmptyListIsAList()
{
    QFETCH(QString, text);
    const auto layouts = LayoutCoder::decode(text);
    QVERIFY(layouts);
    QVERIFY(layouts->isEmpty());
}

void LayoutDecoderTest::anotherTextIsRefused_data()
{
    QTest::addColumn<QString>("text");
    const QStringList texts = {QString(),
                               QStringLiteral(" "),
                               QStringLiteral("null"),
                               QStringLiteral("true"),
                               QStringLiteral("0"),
                               QStringLiteral(R"("[]")"),
                               QStringLiteral("{}"),
                               QStringLiteral(R"({"windows":[]})"),
                               QStringLiteral("["),
                               QStringLiteral("]"),
                               QStringLiteral("[,]"),
                               QStringLiteral("[[]]"),
                               QStringLiteral("[null]"),
                               QStringLiteral("[1]"),
                               QStringLiteral("[true]"),
                               QStringLiteral(R"(["Work"])"),
                               QStringLiteral(R"([{"windows":[]},])"),
                               QStringLiteral(R"([{"windows":[],}])"),
                               QStringLiteral(R"([{"windows":[]} {"windows":[]}])"),
                               QStringLiteral(R"([{"windows" []}])"),
                               QStringLiteral(R"([{windows:[]}])"),
                               QStringLiteral(R"([{'windows':[]}])"),
                               QStringLiteral("[]]"),
                               QStringLiteral("[] []"),
                               QStringLiteral("[]garbage"),
                               QStringLiteral("// none\n[]"),
                               QStringLiteral("[/* none */]"),
                               QStringLiteral("\u00a0[]"),
                               QStringLiteral("[\v]"),
                               QStringLiteral("[]") + QChar(u'\0'),
                               QStringLiteral("[]") + QChar(u'\0') + QStringLiteral("garbage")};
    for (const QString &text : texts)
        QTest::newRow(qPrintable(text)) << text;
}

void LayoutDecoderTest::anotherTextIsRefused()
{
    QFETCH(QString, text);
    QVERIFY(!LayoutCoder::decode(text));
}

void LayoutDecoderTest::aMissingRequiredFieldRefusesTheList_data()
{
    QTest::addColumn<QString>("text");
    const QString whole = listOfWindow(windowText);
    for (const char *member :
         {R"("app":"Editor",)", R"("bundleID":"org.example.editor",)", R"("rect":{"h":0.75,"w":0.5,"x":0,"y":0.25},)",
          R"(,"title":"Notes")", R"("h":0.75,)", R"("w":0.5,)", R"("x":0,)", R"(,"y":0.25)"}) {
        QString text = whole;
        text.remove(QLatin1StringView(member));
        QVERIFY(text != whole);
        QTest::newRow(member) << text;
    }
    QTest::newRow("windows") << listOf(QStringLiteral(R"("name":"Work")"));
    QTest::newRow("everything") << listOf(QString());
    QTest::newRow("x only outside the rectangle")
        << listOfWindow(QStringLiteral(R"({"x":0,"app":"","bundleID":"","title":"","rect":{"h":1,"w":1,"y":0}})"));
    QTest::newRow("x of the window before")
        << listOf(QStringLiteral(R"("windows":[%1,{"app":"","bundleID":"","title":"","rect":{"h":1,"w":1,"y":0}}])")
                      .arg(windowText));
    QTest::newRow("title of the window before") << listOf(
        QStringLiteral(R"("windows":[%1,{"app":"","bundleID":"","rect":{"h":1,"w":1,"x":0,"y":0}}])").arg(windowText));
    QTest::newRow("windows of the layout before") << QStringLiteral(R"([{"windows":[]},{"name":"Work"}])");
}

void LayoutDecoderTest::aMissingRequiredFieldRefusesTheList()
{
    QFETCH(QString, text);
    QVERIFY(!LayoutCoder::decode(text));
}

void LayoutDecoderTest::aWrongTypeRefusesTheList_data()
{
    QTest::addColumn<QString>("text");
    struct Typed {
        const char *member;
        QString type;
        bool canBeNull;
    };
    const QString text = QStringLiteral("text");
    const QString number = QStringLiteral("number");
    const QString array = QStringLiteral("array");
    const QString object = QStringLiteral("object");
    const std::vector<Typed> fields = {
        {R"("created":700000000.5)", number, true},
        {R"("id":"3F2504E0-4F89-41D3-9A0C-0305E82C3301")", text, true},
        {R"("name":"Work")", text, true},
        {R"("app":"Editor")", text, false},
        {R"("bundleID":"org.example.editor")", text, false},
        {R"("display":"main")", text, true},
        {R"("title":"Notes")", text, false},
        {R"("rect":{"h":0.75,"w":0.5,"x":0,"y":0.25})", object, false},
        {R"("h":0.75)", number, false},
        {R"("w":0.5)", number, false},
        {R"("x":0)", number, false},
        {R"("y":0.25)", number, false},
    };
    const QList<QPair<QString, QString>> values = {{text, QStringLiteral(R"("1")")},
                                                   {number, QStringLiteral("1")},
                                                   {array, QStringLiteral("[]")},
                                                   {object, QStringLiteral("{}")},
                                                   {QStringLiteral("Boolean"), QStringLiteral("true")},
                                                   {QStringLiteral("null"), QStringLiteral("null")}};
    for (const Typed &field : fields) {
        const QString member = QLatin1StringView(field.member);
        const QString key = member.left(member.indexOf(u':'));
        for (const auto &[type, value] : values) {
            if (type == field.type || (type == QStringLiteral("null") && field.canBeNull))
                continue;
            QString list = Sample::text;
            list.replace(member, key + u':' + value);
            QVERIFY(list != Sample::text);
            QTest::newRow(qPrintable(key + u' ' + type)) << list;
        }
    }
    for (const auto &[type, value] : values) {
        if (type != array)
            QTest::newRow(qPrintable(QStringLiteral("windows ") + type))
                << listOf(QStringLiteral(R"("windows":%1)").arg(value));
        QTest::newRow(qPrintable(QStringLiteral("a window ") + type)) << listOfWindow(value);
    }
}

void LayoutDecoderTest::aWrongTypeRefusesTheList()
{
    QFETCH(QString, text);
    QVERIFY(LayoutCoder::decode(Sample::text));
    QVERIFY2(!LayoutCoder::decode(text), qPrintable(text));
}

void LayoutDecoderTest::oneFaultyLayoutRefusesTheWholeList()
{
    const QString good = Sample::text.sliced(1, Sample::text.size() - 2);
    QVERIFY(LayoutCoder::decode(QStringLiteral("[%1,%1,%1]").arg(good)));
    QVERIFY(!LayoutCoder::decode(QStringLiteral("[%1,%1,{\"name\":\"Work\"}]").arg(good)));
    QVERIFY(!LayoutCoder::decode(QStringLiteral("[%1,{\"name\":\"Work\"},%1]").arg(good)));
}

void LayoutDecoderTest::anUnknownKeyIsPassedOver_data()
{
    QTest::addColumn<QString>("value");
    for (const char *value :
         {"null", "true", "-1.5e3", R"("text")", "[]", "{}", "[[],{},[{}]]", R"({"name":"x","windows":7,"rect":[1]})",
          R"([{"id":"none","windows":null}])", R"({"colour":{"colour":[1,2,{"x":"y"}]}})"})
        QTest::newRow(value) << QString::fromLatin1(value);
}

void LayoutDecoderTest::anUnknownKeyIsPassedOver()
{
    QFETCH(QString, value);
    const QString unknown = QStringLiteral(R"("colour":%1)").arg(value);
    QString text = Sample::text;
    text.replace(QStringLiteral("{"), QStringLiteral("{@,")).replace(QStringLiteral("}"), QStringLiteral(",@}"));
    text.replace(QStringLiteral("@"), unknown);
    QVERIFY(onlyLayout(text) == Sample::layout());
    // Names count exactly.
    QVERIFY(!LayoutCoder::decode(listOf(QStringLiteral(R"("Windows":[])"))));
    QCOMPARE(onlyLayout(listOf(QStringLiteral(R"("Name":7,"name ":7,"":7,"title":7,"windows":[])"))).name,
             QStringLiteral("Layout"));
}

void LayoutDecoderTest::malformedTextUnderAnUnknownKeyRefusesTheList_data()
{
    QTest::addColumn<QString>("value");
    for (const char *value : {"nul", "01", "[1,]", "{1:2}", R"("\x")", R"({"a"})", "[1 2]", "(1)", "", "NaN"})
        QTest::newRow(value) << QString::fromLatin1(value);
}

void LayoutDecoderTest::malformedTextUnderAnUnknownKeyRefusesTheList()
{
    QFETCH(QString, value);
    QVERIFY(LayoutCoder::decode(listWithUnknown(QStringLiteral("1"))));
    QVERIFY(!LayoutCoder::decode(listWithUnknown(value)));
}

void LayoutDecoderTest::theFirstOfTwoEqualKeysCounts()
{
    const SavedLayout layout = onlyLayout(
        listOf(QStringLiteral(R"("name":"first","name":"second","name":7,"windows":[%1],"windows":[],"windows":null)")
                   .arg(windowText)));
    QCOMPARE(layout.name, QStringLiteral("first"));
    QCOMPARE(layout.windows.size(), 1);
    QCOMPARE(onlyLayout(listOf(QStringLiteral(R"("name":null,"name":"second","windows":[])"))).name,
             QStringLiteral("Layout"));
    QCOMPARE(onlyLayout(listOfRect(QStringLiteral(R"({"h":1,"w":1,"x":1,"y":1,"x":2,"x":"3"})")))
                 .windows.constFirst()
                 .rect.x,
             1.0);
    QVERIFY(!LayoutCoder::decode(listOf(QStringLiteral(R"("name":7,"name":"second","windows":[])"))));
}

void LayoutDecoderTest::aKeyMayBeWrittenWithEscapes()
{
    QCOMPARE(onlyLayout(listOf(QStringLiteral(R"("n\u0061me":"Work","windows":[])"))).name, QStringLiteral("Work"));
}

void LayoutDecoderTest::aNumberIsReadToTheNearestDouble_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<double>("expected");
    QTest::newRow("0") << QStringLiteral("0") << 0.0;
    QTest::newRow("whole") << QStringLiteral("12") << 12.0;
    QTest::newRow("negative") << QStringLiteral("-3") << -3.0;
    QTest::newRow("fraction") << QStringLiteral("0.1") << 0.1;
    QTest::newRow("trailing zeros") << QStringLiteral("1.000") << 1.0;
    QTest::newRow("exponent") << QStringLiteral("25E-2") << 0.25;
    QTest::newRow("signed exponent") << QStringLiteral("1e+20") << 1e20;
    QTest::newRow("2^53 + 1") << QStringLiteral("9007199254740993") << 9007199254740992.0;
    QTest::newRow("2^63") << QStringLiteral("9223372036854775808") << 9223372036854775808.0;
    QTest::newRow("-2^63 - 1") << QStringLiteral("-9223372036854775809") << -9223372036854775808.0;
    QTest::newRow("2^64") << QStringLiteral("18446744073709551616") << 18446744073709551616.0;
    QTest::newRow("many digits") << QString(u'1').leftJustified(300, u'0') << 1e299;
    QTest::newRow("many decimals") << QStringLiteral("0.").leftJustified(5000, u'3') << 1.0 / 3;
    QTest::newRow("largest") << QStringLiteral("1.7976931348623157e308") << std::numeric_limits<double>::max();
    QTest::newRow("smallest") << QStringLiteral("5e-324") << std::numeric_limits<double>::denorm_min();
    QTest::newRow("smaller") << QStringLiteral("1e-400") << 0.0;
    QTest::newRow("half way") << QStringLiteral("1.00000000000000011102230246251565404") << 1.0;
    QTest::newRow("past half way") << QStringLiteral("1.00000000000000011102230246251565405") << 1.0000000000000002;
}

void LayoutDecoderTest::aNumberIsReadToTheNearestDouble()
{
    QFETCH(QString, number);
    QFETCH(double, expected);
    // QCOMPARE takes neighbours for the same number.
    QVERIFY(onlyLayout(listOfNumber(number)).windows.constFirst().rect.x == expected);
    QVERIFY(onlyLayout(listOf(QStringLiteral(R"("created":%1,"windows":[])").arg(number))).created == expected);
}

void LayoutDecoderTest::minusZeroKeepsItsSign_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<bool>("isNegative");
    QTest::newRow("0") << QStringLiteral("0") << false;
    QTest::newRow("0.0") << QStringLiteral("0.0") << false;
    QTest::newRow("-0") << QStringLiteral("-0") << true;
    QTest::newRow("-0.0") << QStringLiteral("-0.0") << true;
    QTest::newRow("-0e9") << QStringLiteral("-0e9") << true;
}

void LayoutDecoderTest::minusZeroKeepsItsSign()
{
    QFETCH(QString, number);
    QFETCH(bool, isNegative);
    const double x = onlyLayout(listOfNumber(number)).windows.constFirst().rect.x;
    QCOMPARE(x, 0.0);
    QCOMPARE(std::signbit(x), isNegative);
}

void LayoutDecoderTest::aNumberThatIsNoneRefusesTheList_data()
{
    QTest::addColumn<QString>("number");
    for (const char *number : {"1e309",     "-1e309", "1e999999999999",
                               "NaN",       "nan",    "Infinity",
                               "-Infinity", "inf",    "+1",
                               "01",        "-01",    "00",
                               ".5",        "1.",     "-",
                               "1e",        "1e+",    "0x10",
                               "1,5",       "1_000",  "--1",
                               "1.5.2",     "١"})
        QTest::newRow(number) << QString::fromUtf8(number);
    QTest::newRow("400 digits") << QString(400, u'9');
}

void LayoutDecoderTest::aNumberThatIsNoneRefusesTheList()
{
    QFETCH(QString, number);
    QVERIFY(LayoutCoder::decode(listOfNumber(QStringLiteral("1"))));
    QVERIFY(!LayoutCoder::decode(listOfNumber(number)));
}

void LayoutDecoderTest::aTextIsReadWithItsEscapes_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("expected");
    QTest::newRow("short escapes") << QStringLiteral(R"(\"\\\/\b\f\n\r\t)") << QStringLiteral("\"\\/\b\f\n\r\t");
    QTest::newRow("slash") << QStringLiteral("a/b") << QStringLiteral("a/b");
    QTest::newRow("escaped character") << QStringLiteral(R"(\u00e9\u00E9)") << QStringLiteral("éé");
    QTest::newRow("escaped NUL") << QStringLiteral(R"(a\u0000b)") << QStringLiteral("a") + QChar(u'\0') + u'b';
    QTest::newRow("escaped pair") << QStringLiteral(R"(\ud83e\uDD8A)") << QStringLiteral("🦊");
    QTest::newRow("unescaped") << QStringLiteral("é 漢字 🦊") << QStringLiteral("é 漢字 🦊");
    QTest::newRow("delete") << QStringLiteral("\u007f") << QStringLiteral("\u007f");
    QTest::newRow("line separators") << QStringLiteral("\u2028\u2029") << QStringLiteral("\u2028\u2029");
    QTest::newRow("noncharacter") << QStringLiteral("\uffff") << QStringLiteral("\uffff");
    QTest::newRow("decomposed") << QStringLiteral("e\u0301") << QStringLiteral("e\u0301");
}

void LayoutDecoderTest::aTextIsReadWithItsEscapes()
{
    QFETCH(QString, written);
    QFETCH(QString, expected);
    QCOMPARE(onlyLayout(listOf(QStringLiteral(R"("name":"%1","windows":[])").arg(written))).name, expected);
}

void LayoutDecoderTest::aTextThatIsNoneRefusesTheList_data()
{
    QTest::addColumn<QString>("written");
    for (const char *written : {R"(\x)", R"(\)", R"(\u12)", R"(\u12g4)", R"(\U0041)", R"(\ud800)", R"(\ud800x)",
                                R"(\ud800\n)", R"(\ud800\ud800)", R"(\udc00)", R"(\udc00\ud800)"})
        QTest::newRow(written) << QString::fromLatin1(written);
    for (char16_t control = 0; control < u' '; ++control)
        QTest::addRow("U+%04x", control) << QString(QChar(control));
}

void LayoutDecoderTest::aTextThatIsNoneRefusesTheList()
{
    QFETCH(QString, written);
    QVERIFY(!LayoutCoder::decode(listOf(QStringLiteral(R"("name":"%1","windows":[])").arg(written))));
    QVERIFY(!LayoutCoder::decode(listWithUnknown(QStringLiteral("\"%1\"").arg(written))));
}

void LayoutDecoderTest::halfASurrogatePairRefusesTheList()
{
    for (const char16_t half : {u'\xd800', u'\xdbff', u'\xdc00', u'\xdfff'}) {
        QVERIFY(!LayoutCoder::decode(listOf(QStringLiteral(R"("name":"%1","windows":[])").arg(QChar(half)))));
        QVERIFY(!LayoutCoder::decode(QStringLiteral("[]") + QChar(half)));
    }
}

void LayoutDecoderTest::aByteOrderMarkInFrontIsPassedOver()
{
    const QChar mark(QChar::ByteOrderMark);
    QVERIFY(onlyLayout(mark + Sample::text) == Sample::layout());
    QVERIFY(!LayoutCoder::decode(QString(2, mark) + Sample::text));
    QVERIFY(!LayoutCoder::decode(Sample::text + mark));
    QVERIFY(!LayoutCoder::decode(QString(mark)));
}

void LayoutDecoderTest::aByteOrderMarkInsideANameBelongsToIt()
{
    const QString name = QStringLiteral("\ufeffWork\ufeff");
    QCOMPARE(onlyLayout(listOf(QStringLiteral(R"("name":"%1","windows":[])").arg(name))).name, name);
}

void LayoutDecoderTest::aValueIsReadDownToTheDepthOf512_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QString>("close");
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("isRead");
    // The list and the layout are the first two.
    for (const int depth : {510, 511}) {
        QTest::addRow("arrays %d", depth + 2) << QStringLiteral("[") << QStringLiteral("]") << depth << (depth <= 510);
        QTest::addRow("objects %d", depth + 2)
            << QStringLiteral(R"({"a":)") << QStringLiteral("}") << depth << (depth <= 510);
    }
}

void LayoutDecoderTest::aValueIsReadDownToTheDepthOf512()
{
    QFETCH(QString, open);
    QFETCH(QString, close);
    QFETCH(int, depth);
    QFETCH(bool, isRead);
    const QString value = open.repeated(depth) + u'1' + close.repeated(depth);
    QCOMPARE(LayoutCoder::decode(listWithUnknown(value)).has_value(), isRead);
    // Beside one another they do not add up.
    const QString pair = QStringLiteral("[[],[],{}]");
    QVERIFY(LayoutCoder::decode(listWithUnknown(u'[' + QString(pair + u',').repeated(600) + pair + u']')));
}

void LayoutDecoderTest::aNestingBombIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("arrays") << QString(1'000'000, u'[');
    QTest::newRow("objects") << QStringLiteral(R"({"a":)").repeated(200'000);
    QTest::newRow("under an unknown key") << QStringLiteral(R"([{"a":)") + QString(1'000'000, u'[');
    QTest::newRow("closed") << listWithUnknown(QString(1'000'000, u'[') + QString(1'000'000, u']'));
    QTest::newRow("windows in windows") << QStringLiteral(R"([{"windows":)") + QString(1'000'000, u'[');
    QTest::newRow("layouts in layouts") << QStringLiteral(R"([{"windows":[{"rect":)").repeated(100'000);
}

void LayoutDecoderTest::aNestingBombIsRefused()
{
    QFETCH(QString, text);
    QVERIFY(!LayoutCoder::decode(text));
}

void LayoutDecoderTest::aNameOfAMegabyteIsRead()
{
    const QString name = QStringLiteral("é/🦊\"").repeated(200'000);
    const auto text = LayoutCoder::encode({{Sample::id, name, {}, 0}});
    QVERIFY(text);
    QVERIFY(text->size() > 1'000'000);
    QCOMPARE(onlyLayout(*text).name, name);
}

void LayoutDecoderTest::tenThousandLayoutsAreRead()
{
    const QString one = Sample::text.sliced(1, Sample::text.size() - 2);
    const auto layouts = LayoutCoder::decode(u'[' + QString(one + u',').repeated(9'999) + one + u']');
    QVERIFY(layouts);
    QCOMPARE(layouts->size(), 10'000);
    QVERIFY(layouts->constLast() == Sample::layout());
}

void LayoutDecoderTest::everyCutOfAListIsRefused()
{
    for (qsizetype length = 0; length < Sample::text.size(); ++length)
        QVERIFY2(!LayoutCoder::decode(Sample::text.left(length)), qPrintable(Sample::text.left(length)));
}

CORVANE_TEST(LayoutDecoderTest, runInCore)
#include "tst_layoutdecoder.moc"
