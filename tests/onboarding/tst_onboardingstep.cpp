#include "OnboardingStep.h"
#include "TestProgram.h"

class TestOnboardingStep : public QObject {
    Q_OBJECT

private slots:
    void everyStepHasItsNameWordCounterAndKicker_data();
    void everyStepHasItsNameWordCounterAndKicker();
    void aDecimalIntegerNamesAStep_data();
    void aDecimalIntegerNamesAStep();
    void anyOtherTextNamesNone_data();
    void anyOtherTextNamesNone();
};

void TestOnboardingStep::everyStepHasItsNameWordCounterAndKicker_data()
{
    QTest::addColumn<OnboardingStep>("step");
    QTest::addColumn<QString>("caseName");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("counter");
    QTest::addColumn<QString>("kicker");
    QTest::newRow("welcome") << OnboardingStep::welcome << "welcome"
                             << "Welcome"
                             << "01 / 05" << QString::fromUtf8("Welcome · 01 / 05");
    QTest::newRow("tryIt") << OnboardingStep::tryIt << "tryIt"
                           << "Try it"
                           << "02 / 05" << QString::fromUtf8("Step 02 · Try it");
    QTest::newRow("access") << OnboardingStep::access << "access"
                            << "Permission"
                            << "03 / 05" << QString::fromUtf8("Step 03 · Permission");
    QTest::newRow("customize") << OnboardingStep::customize << "customize"
                               << "Make it yours"
                               << "04 / 05" << QString::fromUtf8("Step 04 · Make it yours");
    QTest::newRow("done") << OnboardingStep::done << "done"
                          << "All set"
                          << "05 / 05" << QString::fromUtf8("All set · 05 / 05");
}

void TestOnboardingStep::everyStepHasItsNameWordCounterAndKicker()
{
    QFETCH(OnboardingStep, step);
    QFETCH(QString, caseName);
    QTEST(OnboardingSteps::caseName(step), "caseName");
    QTEST(OnboardingSteps::word(step), "word");
    QTEST(OnboardingSteps::counter(step), "counter");
    QTEST(OnboardingSteps::kicker(step), "kicker");
    QCOMPARE(OnboardingSteps::fromCaseName(caseName), step);
    QVERIFY(!OnboardingSteps::fromCaseName(caseName.toUpper()));
}

void TestOnboardingStep::aDecimalIntegerNamesAStep_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<OnboardingStep>("step");
    QTest::newRow("0") << "0" << OnboardingStep::welcome;
    QTest::newRow("3") << "3" << OnboardingStep::customize;
    QTest::newRow("plus") << "+2" << OnboardingStep::access;
    QTest::newRow("minus nothing") << "-0" << OnboardingStep::welcome;
    QTest::newRow("leading zeros") << "004" << OnboardingStep::done;
}

void TestOnboardingStep::aDecimalIntegerNamesAStep()
{
    QFETCH(QString, text);
    QTEST(OnboardingSteps::fromText(text).value(), "step");
}

void TestOnboardingStep::anyOtherTextNamesNone_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"", "9", "5", "-1", "x", "3x", " 3", "3 ", "+", "-", "++2", "2.0", "0x1", "1e0", "99999999999999999999", "٣"})
        QTest::newRow(text) << QString::fromUtf8(text);
}

void TestOnboardingStep::anyOtherTextNamesNone()
{
    QFETCH(QString, text);
    QVERIFY(!OnboardingSteps::fromText(text));
}

CORVANE_TEST(TestOnboardingStep, runBare)
#include "tst_onboardingstep.moc"
