#include "ServiceTest.h"

/// What a bundle promises.
class BundleTest : public ServiceTest {
    Q_OBJECT
public:
    using ServiceTest::ServiceTest;

private slots:
    void factsHaveTheirTypes();
    void anythingElseIsInvalid();
    void aResourceIsFoundByNameAndExtension();
    void whereThereIsNoBundleThereIsNone();
};

void BundleTest::factsHaveTheirTypes()
{
    const QUrl url = implementation().makeBundle(
        {{"CFBundleIdentifier", "com.vexmoor.corvane"}, {"Name", "Übersicht ⌘"}, {"On", true}, {"Count", 42}}, {});
    const auto bundle = platform().bundle(url);
    QVERIFY(bundle && bundle->hasInfoDictionary());
    QCOMPARE(bundle->bundleURL(), url);
    QCOMPARE(bundle->bundleIdentifier(), "com.vexmoor.corvane");
    QCOMPARE(bundle->string("Name"), QStringLiteral("Übersicht ⌘"));
    QCOMPARE(bundle->objectForInfoDictionaryKey("On").typeId(), QMetaType::Bool);
    QCOMPARE(bundle->objectForInfoDictionaryKey("On"), QVariant(true));
    QCOMPARE(bundle->objectForInfoDictionaryKey("Count").toInt(), 42);
}

void BundleTest::anythingElseIsInvalid()
{
    const auto bundle = platform().bundle(implementation().makeBundle({{"On", true}, {"List", QVariantList()}}, {}));
    QVERIFY(bundle && bundle->hasInfoDictionary());
    QVERIFY(!bundle->objectForInfoDictionaryKey("List").isValid());
    QVERIFY(!bundle->objectForInfoDictionaryKey("Absent").isValid());
    QCOMPARE(bundle->string("On"), "");
    QCOMPARE(bundle->bundleIdentifier(), "");
}

void BundleTest::aResourceIsFoundByNameAndExtension()
{
    const auto bundle = platform().bundle(implementation().makeBundle({}, {"Mono.ttf", "LICENCE"}));
    QVERIFY(bundle);
    QCOMPARE(bundle->urlForResource("Mono", "ttf").fileName(), "Mono.ttf");
    QCOMPARE(bundle->urlForResource("LICENCE", "").fileName(), "LICENCE");
    QVERIFY(bundle->urlForResource("Mono", "").isEmpty());
    QVERIFY(bundle->urlForResource("Sans", "ttf").isEmpty());
}

void BundleTest::whereThereIsNoBundleThereIsNone()
{
    const QUrl url = implementation().makeBundle({}, {});
    QVERIFY(platform().bundle(url));
    QVERIFY(!platform().bundle(QUrl(url.toString() + "-absent")));
    QVERIFY(!platform().bundle(QUrl("https://example.com/")));
    QVERIFY(!platform().bundle(QUrl()));
}

CORVANE_TEST(BundleTest, runOnDesktop)

#include "tst_bundle.moc"
