#include "DconfUserDefaults.h"
#include "FakePlatform.h"
#include "LayoutStore.h"
#include "PrivateSession.h"
#include "RandomLayouts.h"
#include "Sample.h"
#include "SettingsTransfer.h"
#include "Shared.h"
#include "TestProgram.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString layoutsKey = u"layouts.saved"_s;

/// What an export file that was written and read again says.
ExportFile::Settings carried(const ExportFile::Settings &settings)
{
    const auto reading = ExportFile::read(ExportFile::write(settings), Contract::storeKeys());
    REQUIRE(reading.faults.isEmpty());
    return reading.settings;
}

}

/// What passes between the store and an export file: with the real dconf where all is stored, with a store in memory
/// where it fails.
class SettingsTransferTest : public QObject {
    Q_OBJECT
public:
    explicit SettingsTransferTest(PrivateSession &) { }

private slots:
    void init();

    void exportResetAndImportGiveTheSameStore_data();
    void exportResetAndImportGiveTheSameStore();
    void aKeyThatIsNotSetIsUnsetByTheImport();
    void aKeyThatIsNotInTheFileIsLeftAlone();
    void theAgentsKeysAreNeitherExportedNorImported();
    void layoutsInAnotherFormAreExportedInTheNormalOne();
    void whatNobodyBelievesIsLeftOut_data();
    void whatNobodyBelievesIsLeftOut();
    void severalChangesAreAppliedOnceAfterTheLastIsStored();
    void layoutsOfTheAgentAreKeptBeforeTheImport();
    void anImportThatChangesNothingStoresAndPostsNothing();
    void aLockedKeyKeepsEverythingAsItIs();
    void whatCannotBeStoredHalfWayIsTakenBack();

private:
    FakeUserDefaults &store() { return m_platform->suite(Shared::suiteName); }

    FakePlatform *m_platform = nullptr;
};

void SettingsTransferTest::init()
{
    m_platform = &FakePlatform::install();
}

void SettingsTransferTest::exportResetAndImportGiveTheSameStore_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 4242U, 0xc0ffeeU})
        QTest::addRow("seed %u", seed) << seed;
}

void SettingsTransferTest::exportResetAndImportGiveTheSameStore()
{
    QFETCH(quint32, seed);
    RandomLayouts layouts(seed);
    QRandomGenerator random(seed);
    DconfUserDefaults store(Shared::suiteName);
    QVariantMap before;
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        QVariant value;
        if (random.bounded(4) == 0)
            value = QVariant();
        else if (key.name == layoutsKey)
            value = *LayoutStore::encode(layouts.list());
        else if (!key.choices.isEmpty())
            value = key.choices.at(random.bounded(int(key.choices.size())));
        else if (key.defaultValue.typeId() == QMetaType::Double)
            value = std::ldexp(random.generateDouble(), random.bounded(20));
        else
            value = random.bounded(2) == 0;
        store.setValue(key.name, value);
        before.insert(key.name, value);
    }
    QVERIFY(store.finishWrites(60s));
    const auto taken = SettingsTransfer::exportFrom(store);
    QCOMPARE(taken.omitted.size(), 0);
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        if (!Contract::isAgentState(key.name))
            store.setValue(key.name, QVariant());
    }
    QCOMPARE(SettingsTransfer::apply(SettingsTransfer::changes(carried(taken.settings), store), store, 60s),
             UserDefaults::Trouble::none);
    const DconfUserDefaults reader(Shared::suiteName);
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        const QVariant value = reader.value(key.name);
        QVERIFY2(value == before.value(key.name) && value.metaType() == before.value(key.name).metaType(),
                 qPrintable(key.name));
    }
}

void SettingsTransferTest::aKeyThatIsNotSetIsUnsetByTheImport()
{
    const auto taken = SettingsTransfer::exportFrom(store());
    QCOMPARE(taken.settings.size(), Contract::storeKeys().size() - 3);
    store().values = {{u"buttonTheme"_s, u"mono"_s}, {layoutsKey, u"[]"_s}};
    QCOMPARE(SettingsTransfer::apply(SettingsTransfer::changes(carried(taken.settings), store()), store(), 1s),
             UserDefaults::Trouble::none);
    QCOMPARE(store().values, QVariantMap());
}

void SettingsTransferTest::aKeyThatIsNotInTheFileIsLeftAlone()
{
    store().values = {{u"buttonTheme"_s, u"mono"_s}, {u"layouts.gap"_s, 6.0}};
    const auto changes = SettingsTransfer::changes({{u"layouts.gap"_s, 12.0}}, store());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.constFirst().key, u"layouts.gap"_s);
    QCOMPARE(changes.constFirst().before, QVariant(6.0));
    QCOMPARE(changes.constFirst().after, QVariant(12.0));
}

void SettingsTransferTest::theAgentsKeysAreNeitherExportedNorImported()
{
    store().values = {{u"agent.launchAtLogin"_s, true}};
    for (const QString &key : SettingsTransfer::exportFrom(store()).settings.keys())
        QVERIFY2(!key.startsWith(u"agent."), qPrintable(key));
    QCOMPARE(SettingsTransfer::changes({{u"agent.launchAtLogin"_s, false}}, store()).size(), 0);
}

void SettingsTransferTest::layoutsInAnotherFormAreExportedInTheNormalOne()
{
    store().values = {{layoutsKey, u" [ {\"windows\" : [] } ] "_s}};
    const QVariant exported = SettingsTransfer::exportFrom(store()).settings.value(layoutsKey);
    QVERIFY(exported.toString().startsWith(u"[{\"created\":"));
    // The id that it was given stays.
    QCOMPARE(store().values.value(layoutsKey), exported);
}

void SettingsTransferTest::whatNobodyBelievesIsLeftOut_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("another type") << u"showMinimizeButton"_s << QVariant(u"yes"_s);
    QTest::newRow("an unknown choice") << u"buttonTheme"_s << QVariant(u"neon"_s);
    QTest::newRow("no number") << u"layouts.gap"_s << QVariant(qInf());
    QTest::newRow("broken layouts") << layoutsKey << QVariant(u"[{]"_s);
}

void SettingsTransferTest::whatNobodyBelievesIsLeftOut()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    store().values = {{key, value}, {u"menuBarIconHidden"_s, true}};
    const auto taken = SettingsTransfer::exportFrom(store());
    QCOMPARE(taken.omitted.size(), 1);
    QCOMPARE(taken.omitted.constFirst().key, key);
    QVERIFY(taken.omitted.constFirst().reason.contains(key));
    QVERIFY(!taken.settings.contains(key));
    QCOMPARE(taken.settings.value(u"menuBarIconHidden"_s), QVariant(true));
    QCOMPARE(store().values.value(key), value);
}

void SettingsTransferTest::severalChangesAreAppliedOnceAfterTheLastIsStored()
{
    const ExportFile::Settings settings = {{u"buttonTheme"_s, u"soft"_s},
                                           {u"showMinimizeButton"_s, true},
                                           {layoutsKey, *LayoutStore::encode({Sample::layout()})}};
    QCOMPARE(SettingsTransfer::apply(SettingsTransfer::changes(settings, store()), store(), 1s),
             UserDefaults::Trouble::none);
    QCOMPARE(store().values.size(), 3);
    QCOMPARE(m_platform->notifications.posts.size(), 1);
    const QVariantMap userInfo{{u"command"_s, u"applySettings"_s}};
    QCOMPARE(m_platform->notifications.posts.constFirst().userInfo, userInfo);
}

void SettingsTransferTest::layoutsOfTheAgentAreKeptBeforeTheImport()
{
    const QTemporaryDir state;
    m_platform->state = state.path();
    const QByteArray ofTheAgent = R"([{"name":"Work","newer":1,"windows":[]}])";
    store().values = {{layoutsKey, QString(ofTheAgent)}};
    QCOMPARE(SettingsTransfer::apply({{layoutsKey, QString(ofTheAgent), u"[]"_s}}, store(), 1s),
             UserDefaults::Trouble::none);
    QCOMPARE(store().values.value(layoutsKey), QVariant(u"[]"_s));
    const QDir archive(state.filePath(u"layouts"_s));
    const QStringList kept = archive.entryList({u"*.json"_s});
    QCOMPARE(kept.size(), 1);
    QFile file(archive.filePath(kept.constFirst()));
    QVERIFY(file.open(QFile::ReadOnly));
    QCOMPARE(file.readAll(), ofTheAgent);
}

void SettingsTransferTest::anImportThatChangesNothingStoresAndPostsNothing()
{
    store().values = {{u"buttonTheme"_s, u"soft"_s}};
    const auto changes = SettingsTransfer::changes(SettingsTransfer::exportFrom(store()).settings, store());
    QCOMPARE(changes.size(), 0);
    QCOMPARE(SettingsTransfer::apply(changes, store(), 1s), UserDefaults::Trouble::none);
    QCOMPARE(m_platform->notifications.posts.size(), 0);
}

void SettingsTransferTest::aLockedKeyKeepsEverythingAsItIs()
{
    store().locked = {u"showMinimizeButton"_s};
    const ExportFile::Settings settings = {{u"buttonTheme"_s, u"soft"_s}, {u"showMinimizeButton"_s, true}};
    QCOMPARE(SettingsTransfer::apply(SettingsTransfer::changes(settings, store()), store(), 1s),
             UserDefaults::Trouble::locked);
    QCOMPARE(store().values, QVariantMap());
    QCOMPARE(m_platform->notifications.posts.size(), 0);
}

void SettingsTransferTest::whatCannotBeStoredHalfWayIsTakenBack()
{
    store().values = {{u"buttonTheme"_s, u"mono"_s}};
    const QVariantMap before = store().values;
    // The second of the two hangs.
    connect(&store(), &UserDefaults::changed, this,
            [this](const QString &key) { store().isHanging = key == u"showMinimizeButton"_s; });
    const ExportFile::Settings settings = {{u"buttonTheme"_s, u"soft"_s}, {u"showMinimizeButton"_s, true}};
    QCOMPARE(SettingsTransfer::apply(SettingsTransfer::changes(settings, store()), store(), 20ms),
             UserDefaults::Trouble::noAnswer);
    store().disconnect(this);
    store().isHanging = false;
    store().answer();
    QCOMPARE(store().values, before);
    QCOMPARE(m_platform->notifications.posts.size(), 0);
}

CORVANE_TEST(SettingsTransferTest, runInPrivateSession)
#include "tst_settingstransfer.moc"
