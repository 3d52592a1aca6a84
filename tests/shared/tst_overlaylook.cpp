#include "FakePlatform.h"
#include "OverlayLook.h"
#include "Shared.h"
#include "TestProgram.h"

#include <QSignalSpy>

#include <memory>

/// The look of the buttons as one object over the store.
class TestOverlayLook : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_look.reset(); }

    void anEmptyStoreReadsAsTheDefaultsAndStaysEmpty();
    void itReadsWhatIsStored();
    void aTextThatNobodyKnowsIsHandedOn();
    void writingStores();
    void writingWhatIsStoredAlreadyStoresItAndIsNoChange();
    void everyChangeIsTold_data();
    void everyChangeIsTold();
    void changesOfAllAtOnceAreToldOneByOne();
    void anotherKeyIsNoChange();
    void theValueIsThereWhenTheChangeIsTold();
    void resettingStoresTheDefaults();
    void twoLooksAgree();

private:
    FakeUserDefaults *m_store = nullptr;
    std::unique_ptr<OverlayLook> m_look;
};

void TestOverlayLook::init()
{
    m_store = &FakePlatform::install().suite("com.vexmoor.corvane");
    m_look = std::make_unique<OverlayLook>();
}

void TestOverlayLook::anEmptyStoreReadsAsTheDefaultsAndStaysEmpty()
{
    QCOMPARE(m_look->theme(), "classic");
    QCOMPARE(m_look->size(), "medium");
    QVERIFY(!m_look->showMinimize());
    QVERIFY(!m_look->showMaximize());
    QVERIFY(m_store->values.isEmpty());
}

void TestOverlayLook::itReadsWhatIsStored()
{
    m_store->values = {{"buttonTheme", "mono"},
                       {"buttonSizeOption", "large"},
                       {"showMinimizeButton", true},
                       {"showMaximizeButton", true}};
    const OverlayLook look;
    QCOMPARE(look.theme(), "mono");
    QCOMPARE(look.size(), "large");
    QVERIFY(look.showMinimize());
    QVERIFY(look.showMaximize());
}

void TestOverlayLook::aTextThatNobodyKnowsIsHandedOn()
{
    m_store->setValue("buttonTheme", "neon");
    m_store->setValue("buttonSizeOption", "huge");
    QCOMPARE(m_look->theme(), "neon");
    QCOMPARE(m_look->size(), "huge");
}

void TestOverlayLook::writingStores()
{
    m_look->setTheme("soft");
    m_look->setSize("small");
    m_look->setShowMinimize(true);
    m_look->setShowMaximize(true);
    const QVariantMap stored = {{"buttonTheme", "soft"},
                                {"buttonSizeOption", "small"},
                                {"showMinimizeButton", true},
                                {"showMaximizeButton", true}};
    QCOMPARE(m_store->values, stored);
    QCOMPARE(m_look->theme(), "soft");
    QCOMPARE(m_look->size(), "small");
    QVERIFY(m_look->showMinimize());
    QVERIFY(m_look->showMaximize());
}

void TestOverlayLook::writingWhatIsStoredAlreadyStoresItAndIsNoChange()
{
    const QSignalSpy changes(m_look.get(), &OverlayLook::changed);
    m_look->setTheme("classic");
    m_look->setSize("medium");
    m_look->setShowMinimize(false);
    m_look->setShowMaximize(false);
    QCOMPARE(m_store->values.size(), 4);
    QCOMPARE(changes.size(), 0);
}

void TestOverlayLook::everyChangeIsTold_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("theme") << "buttonTheme" << QVariant("soft");
    QTest::newRow("size") << "buttonSizeOption" << QVariant("large");
    QTest::newRow("minimize") << "showMinimizeButton" << QVariant(true);
    QTest::newRow("maximize") << "showMaximizeButton" << QVariant(true);
}

void TestOverlayLook::everyChangeIsTold()
{
    QFETCH(const QString, key);
    QFETCH(const QVariant, value);
    const QSignalSpy changes(m_look.get(), &OverlayLook::changed);
    m_store->setValue(key, value);
    QCOMPARE(changes.size(), 1);
    m_store->setValue(key, value);
    QCOMPARE(changes.size(), 1);
}

void TestOverlayLook::changesOfAllAtOnceAreToldOneByOne()
{
    const QSignalSpy changes(m_look.get(), &OverlayLook::changed);
    m_store->values = {{"buttonTheme", "mono"}, {"buttonSizeOption", "large"}, {"showMinimizeButton", true}};
    emit m_store->changed({});
    QCOMPARE(changes.size(), 3);
}

void TestOverlayLook::anotherKeyIsNoChange()
{
    const QSignalSpy changes(m_look.get(), &OverlayLook::changed);
    m_store->setValue("maximizeMode", "fill");
    QCOMPARE(changes.size(), 0);
}

void TestOverlayLook::theValueIsThereWhenTheChangeIsTold()
{
    QStringList seen;
    connect(m_look.get(), &OverlayLook::changed, this,
            [&] { seen.append(m_look->theme() + ' ' + m_store->value("buttonTheme").toString()); });
    m_look->setTheme("outline");
    QCOMPARE(seen, QStringList("outline outline"));
}

void TestOverlayLook::resettingStoresTheDefaults()
{
    m_look->setTheme("neon");
    m_look->setSize("large");
    m_look->setShowMinimize(true);
    m_look->reset();
    const QVariantMap defaults = {{"buttonTheme", "classic"},
                                  {"buttonSizeOption", "medium"},
                                  {"showMinimizeButton", false},
                                  {"showMaximizeButton", false}};
    QCOMPARE(m_store->values, defaults);
    QCOMPARE(m_look->theme(), "classic");
}

void TestOverlayLook::twoLooksAgree()
{
    const OverlayLook other;
    m_look->setTheme("graphite");
    QCOMPARE(other.theme(), "graphite");
}

CORVANE_TEST(TestOverlayLook, runInCore)
#include "tst_overlaylook.moc"
