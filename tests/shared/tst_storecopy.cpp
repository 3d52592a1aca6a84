#include "StoreCopy.h"
#include "TestProgram.h"

#include <limits>

namespace {

const QVariantMap values = {{"buttonTheme", "soft"},
                            {"layouts.gap", 6.0},
                            {"layouts.saved", "[{\"name\":\"é \\u0000 🦊\"}]\n\u0001"},
                            {"onboardingCompleted", true},
                            {"showMinimizeButton", false}};

}

class TestStoreCopy : public QObject {
    Q_OBJECT

private slots:
    void whatIsEncodedDecodes_data();
    void whatIsEncodedDecodes();
    void equalValuesHaveOneForm();
    void whatCannotBeKeptIsLeftOut();
    void everyCutCopyCountsAsNone();
    void everyChangedByteCountsAsNone();
    void anythingElseCountsAsNone_data();
    void anythingElseCountsAsNone();
};

void TestStoreCopy::whatIsEncodedDecodes_data()
{
    QTest::addColumn<QVariantMap>("map");
    QTest::newRow("none") << QVariantMap();
    QTest::newRow("every type") << values;
    QTest::newRow("numbers") << QVariantMap{
        {"a", 0.1}, {"b", 1e300}, {"c", -0.25}, {"d", 9007199254740993.0}, {"e", 0.0}};
    QTest::newRow("a megabyte") << QVariantMap{{"layouts.saved", QString(1'000'000, u'"')}};
}

void TestStoreCopy::whatIsEncodedDecodes()
{
    QFETCH(QVariantMap, map);
    const auto decoded = StoreCopy::decode(StoreCopy::encode(map));
    QVERIFY(decoded);
    QCOMPARE(*decoded, map);
    for (auto value = map.cbegin(); value != map.cend(); ++value)
        QCOMPARE(decoded->value(value.key()).typeId(), value->typeId());
}

void TestStoreCopy::equalValuesHaveOneForm()
{
    QCOMPARE(StoreCopy::encode(values), StoreCopy::encode(*StoreCopy::decode(StoreCopy::encode(values))));
}

void TestStoreCopy::whatCannotBeKeptIsLeftOut()
{
    const QVariantMap mixed = {{"a", std::numeric_limits<double>::infinity()},
                               {"b", std::numeric_limits<double>::quiet_NaN()},
                               {"c", QStringList{"text"}},
                               {"d", QVariant()},
                               {"e", true}};
    QCOMPARE(StoreCopy::decode(StoreCopy::encode(mixed)), (QVariantMap{{"e", true}}));
}

void TestStoreCopy::everyCutCopyCountsAsNone()
{
    const QByteArray whole = StoreCopy::encode(values);
    for (qsizetype length = 0; length < whole.size(); ++length)
        QVERIFY2(!StoreCopy::decode(whole.left(length)), qPrintable(QString::number(length)));
    QVERIFY(!StoreCopy::decode(whole + '\n'));
}

void TestStoreCopy::everyChangedByteCountsAsNone()
{
    const QByteArray whole = StoreCopy::encode(values);
    for (qsizetype place = 0; place < whole.size(); ++place) {
        QByteArray changed = whole;
        changed[place] = char(changed.at(place) ^ 1);
        QVERIFY2(!StoreCopy::decode(changed), qPrintable(QString::number(place)));
    }
}

void TestStoreCopy::anythingElseCountsAsNone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("zeros") << QByteArray(1000, '\0');
    QTest::newRow("JSON alone") << QByteArray("{\"a\":true}");
    QTest::newRow("line ends") << QByteArray(1000, '\n');
    QByteArray newer = StoreCopy::encode(values);
    QTest::newRow("another version") << newer.replace("settings 1 ", "settings 2 ");
    // The checksums are right.
    QTest::newRow("a list") << QByteArray(
        "corvane-settings 1 4f53cda18c2baa0c0354bb5f9a3ecbe5ed12ab4d8e11ba873c2f11161202b945\n[]");
    QTest::newRow("a null") << QByteArray(
        "corvane-settings 1 d091f9c83c091f79652fe8786375b3fe4ce0861a56f5bfbafedbe431877ff0e8\n{\"a\":null}");
}

void TestStoreCopy::anythingElseCountsAsNone()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!StoreCopy::decode(bytes));
}

CORVANE_TEST(TestStoreCopy, runInCore)
#include "tst_storecopy.moc"
