#include "EBApp.h"
#include "EBKit.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QRegularExpression>

class TestEBApp : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        FakePlatform::install();
    }

    void theProductsComeInOrder();
    void aRawValueIsTheCaseName();
    void anyOtherTextNamesNoProduct_data();
    void anyOtherTextNamesNoProduct();
    void aProductOwnsItsAccentFamily_data();
    void aProductOwnsItsAccentFamily();
};

void TestEBApp::theProductsComeInOrder()
{
    QCOMPARE(EBApps::allCases, (std::array{EBApp::quiller, EBApp::corvane, EBApp::parcelo}));
}

void TestEBApp::aRawValueIsTheCaseName()
{
    QCOMPARE(EBApps::fromRawValue(u"quiller"), std::optional(EBApp::quiller));
    QCOMPARE(EBApps::fromRawValue(u"corvane"), std::optional(EBApp::corvane));
    QCOMPARE(EBApps::fromRawValue(u"parcelo"), std::optional(EBApp::parcelo));
    QCOMPARE(EBApps::rawValue(EBApp::quiller), "quiller");
    QCOMPARE(EBApps::rawValue(EBApp::corvane), "corvane");
    QCOMPARE(EBApps::rawValue(EBApp::parcelo), "parcelo");
}

void TestEBApp::anyOtherTextNamesNoProduct_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("capitalised") << "Corvane";
    QTest::newRow("upper case") << "CORVANE";
    QTest::newRow("empty") << "";
    QTest::newRow("with a space") << "corvane ";
    QTest::newRow("unknown") << "embera";
    QTest::newRow("a number") << "1";
}

void TestEBApp::anyOtherTextNamesNoProduct()
{
    QFETCH(QString, text);
    QVERIFY(!EBApps::fromRawValue(text));
}

void TestEBApp::aProductOwnsItsAccentFamily_data()
{
    using Colors = QList<const EBKitColor *>;
    QTest::addColumn<EBApp>("app");
    QTest::addColumn<Colors>("family");

    QTest::newRow("quiller") << EBApp::quiller
                             << Colors{&EBKit::coral(), &EBKit::onCoral(), &EBKit::loudCoral(), &EBKit::onLoudCoral(),
                                       &EBKit::loudCoralDot()};
    QTest::newRow("corvane") << EBApp::corvane
                             << Colors{&EBKit::indigo(), &EBKit::onIndigo(), &EBKit::loudIndigo(),
                                       &EBKit::onLoudIndigo(), &EBKit::loudIndigoDot()};
    QTest::newRow("parcelo") << EBApp::parcelo
                             << Colors{&EBKit::teal(), &EBKit::onTeal(), &EBKit::loudTeal(), &EBKit::onLoudTeal(),
                                       &EBKit::loudTealDot()};
}

void TestEBApp::aProductOwnsItsAccentFamily()
{
    QFETCH(EBApp, app);
    QFETCH(QList<const EBKitColor *>, family);
    const EBApps::Family &owned = EBApps::family(app);
    QCOMPARE((QList{&owned.accent, &owned.onAccent, &owned.loud, &owned.onLoud, &owned.loudDot}), family);
}

CORVANE_TEST(TestEBApp, runInCore)
#include "tst_ebapp.moc"
