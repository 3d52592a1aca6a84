#include "EBApp.h"
#include "EBKit.h"
#include "FakePlatform.h"
#include "TestProgram.h"

class TestEBApp : public QObject {
    Q_OBJECT

private slots:
    void init() { FakePlatform::install(); }

    void aProductOwnsItsAccentFamily_data();
    void aProductOwnsItsAccentFamily();
};

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
