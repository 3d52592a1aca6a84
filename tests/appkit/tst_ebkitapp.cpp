#include "EBKit.h"
#include "EBKitApp.h"
#include "FakePlatform.h"
#include "MarkShape.h"
#include "TestProgram.h"

class EBKitAppTest : public QObject {
    Q_OBJECT
private slots:
    void everyProductHasItsMark();
    void aProductsRecordHoldsItsNameMarkAndColours();
};

void EBKitAppTest::everyProductHasItsMark()
{
    const QRectF rect(1, 2, 30, 40);
    for (const EBApp app : EBApps::allCases) {
        const EBKitMark mark = EBKitMarks::of(app);
        QCOMPARE(EBKitMarks::rawValue(mark), EBApps::rawValue(app));
        QCOMPARE(EBKitMarks::path(mark, rect, {}), MarkShape{app}.sharpPath(rect, {}));
    }
}

void EBKitAppTest::aProductsRecordHoldsItsNameMarkAndColours()
{
    const struct {
        EBApp app;
        const char *name;
        EBKitMark mark;
        const EBKitColor &color;
        const EBKitColor &onColor;
    } rows[] = {
        {EBApp::quiller, "Quiller", EBKitMark::quiller, EBKit::coral(), EBKit::onCoral()},
        {EBApp::corvane, "Corvane", EBKitMark::corvane, EBKit::indigo(), EBKit::onIndigo()},
        {EBApp::parcelo, "Parcelo", EBKitMark::parcelo, EBKit::teal(), EBKit::onTeal()},
    };
    for (const auto &row : rows) {
        const EBKitApp record = EBKitApps::of(row.app);
        QCOMPARE(record.name, QString::fromLatin1(row.name));
        QCOMPARE(record.mark, row.mark);
        for (const AppearanceName name : {AppearanceName::Aqua, AppearanceName::DarkAqua}) {
            QCOMPARE(record.color.resolved(name), row.color.resolved(name));
            QCOMPARE(record.onColor.resolved(name), row.onColor.resolved(name));
        }
    }
}

CORVANE_TEST(EBKitAppTest, runInCore)
#include "tst_ebkitapp.moc"
