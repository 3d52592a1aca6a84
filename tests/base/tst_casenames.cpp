#include "ButtonSize.h"
#include "DemoModel.h"
#include "EBApp.h"
#include "EBButtonStyle.h"
#include "EBKitGlyph.h"
#include "EBKitMark.h"
#include "EBType.h"
#include "GlyphName.h"
#include "Hotkey.h"
#include "OnboardingStep.h"
#include "TestProgram.h"
#include "Theme.h"

namespace {

enum class Plain { first, second, third };
using Plains = NamedCases<Plain>;
using Numbers = NumberedCases<Plain>;

struct Holder {
    enum class Inner : int { one, twoWords };
};

template <typename Enum> QStringList names()
{
    QStringList names;
    for (const Enum value : NamedCases<Enum>::allCases)
        names.append(NamedCases<Enum>::rawValue(value));
    return names;
}

const QString glyphs = QStringLiteral(
    "apps arrow buds call check chevrons clock close cmd cursor dock dots download eye flag gear globe head "
    "info key levels mic minus mute note play playpause plus power refresh search share sliders spark "
    "speaker terminal undo volume warning wifi wins");

}

class CaseNamesTest : public QObject {
    Q_OBJECT
private slots:
    void theCasesComeInTheOrderOfTheirDeclaration();
    void aCaseIsCalledAsItIsWritten();
    void aCaseIsFoundByItsName();
    void anyOtherTextNamesNone_data();
    void anyOtherTextNamesNone();
    void aCaseIsFoundByItsPlace();
    void anyOtherNumberNamesNone_data();
    void anyOtherNumberNamesNone();

    void theStoreAndTheViewsKnowTheseNames_data();
    void theStoreAndTheViewsKnowTheseNames();
};

void CaseNamesTest::theCasesComeInTheOrderOfTheirDeclaration()
{
    QCOMPARE(Plains::allCases, (std::array{Plain::first, Plain::second, Plain::third}));
    QCOMPARE(Numbers::allCases, (std::array{Plain::first, Plain::second, Plain::third}));
}

void CaseNamesTest::aCaseIsCalledAsItIsWritten()
{
    QCOMPARE(names<Plain>(), QStringList({"first", "second", "third"}));
    QCOMPARE(names<Holder::Inner>(), QStringList({"one", "twoWords"}));
    QCOMPARE(Numbers::caseName(Plain::second), "second");
}

void CaseNamesTest::aCaseIsFoundByItsName()
{
    QCOMPARE(Plains::fromRawValue(u"third"), std::optional(Plain::third));
    QCOMPARE(Numbers::fromCaseName(u"third"), std::optional(Plain::third));
}

void CaseNamesTest::anyOtherTextNamesNone_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("upper case") << "First";
    QTest::newRow("only its beginning") << "fir";
    QTest::newRow("more than the name") << "first ";
    QTest::newRow("with its type") << "Plain::first";
    QTest::newRow("the next number") << "(Plain)3";
    QTest::newRow("two names") << "first, second";
    QTest::newRow("not Latin") << QString::fromUtf8("fırst");
    QTest::newRow("a null character") << QStringLiteral("first").append(QChar(0));
}

void CaseNamesTest::anyOtherTextNamesNone()
{
    QFETCH(const QString, text);
    QVERIFY(!Plains::fromRawValue(text));
    QVERIFY(!Numbers::fromCaseName(text));
}

void CaseNamesTest::aCaseIsFoundByItsPlace()
{
    QCOMPARE(Numbers::fromRawValue(0), std::optional(Plain::first));
    QCOMPARE(Numbers::fromRawValue(2), std::optional(Plain::third));
    QCOMPARE(Numbers::rawValue(Plain::third), 2);
}

void CaseNamesTest::anyOtherNumberNamesNone_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("before the first") << -1;
    QTest::newRow("after the last") << 3;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void CaseNamesTest::anyOtherNumberNamesNone()
{
    QFETCH(const int, number);
    QVERIFY(!Numbers::fromRawValue(number));
}

// Renaming or moving an enumerator would change what stands in stores and views.
void CaseNamesTest::theStoreAndTheViewsKnowTheseNames_data()
{
    QTest::addColumn<QStringList>("found");
    QTest::addColumn<QString>("expected");
    QTest::newRow("products") << names<EBApp>() << "quiller corvane parcelo";
    QTest::newRow("marks") << names<EBKitMark>() << "quiller corvane parcelo";
    QTest::newRow("type roles") << names<EBTypeRole>()
                                << "hero display title heading subheading lead body bodyStrong small caption mono "
                                   "monoSmall";
    QTest::newRow("button variants") << names<EBButtonStyle::Variant>() << "primary secondary onLoud plain";
    QTest::newRow("button sizes") << names<EBButtonStyle::Size>() << "md sm xs";
    QTest::newRow("glyphs") << names<GlyphName>() << glyphs;
    QTest::newRow("glyphs of the view classes") << names<EBKitGlyph>() << glyphs;
    QTest::newRow("shortcuts") << names<Hotkey>() << "close closeAll minimize maximize hide hideOthers kill";
    QTest::newRow("themes") << names<Theme>() << "classic soft graphite mono outline";
    QTest::newRow("sizes of overlay buttons") << names<ButtonSize>() << "small medium large";
    QTest::newRow("overlay buttons") << names<OverlayButton>() << "close minimize maximize";
    QTest::newRow("states of a window") << names<DemoState>() << "normal closed minimized hidden full";
    QTest::newRow("tasks") << names<DemoModel::Task>() << "hover close minimize fullscreen";
    QTest::newRow("steps") << names<OnboardingStep>() << "welcome tryIt access customize done";
}

void CaseNamesTest::theStoreAndTheViewsKnowTheseNames()
{
    QFETCH(const QStringList, found);
    QTEST(found.join(u' '), "expected");
}

CORVANE_TEST(CaseNamesTest, runBare)
#include "tst_casenames.moc"
