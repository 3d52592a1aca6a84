#include "AppStorage.h"
#include "FakePlatform.h"
#include "Shared.h"
#include "TestProgram.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>

#include <limits>
#include <memory>

namespace {

const QString theme = QStringLiteral("buttonTheme");
const QString hidden = QStringLiteral("menuBarIconHidden");
const QString gap = QStringLiteral("layouts.gap");
const QString saved = QStringLiteral("layouts.saved");

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

}

class TestAppStorage : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_root.reset(); }

    void anAbsentKeyReadsAsTheDefaultOfTheTable();
    void readingNeverWrites();
    void aStoredValueIsRead();
    void anEmptyTextIsAValue();
    void aStoredValueOfAnotherTypeReadsAsTheDefaultAndIsLeft_data();
    void aStoredValueOfAnotherTypeReadsAsTheDefaultAndIsLeft();

    void writingStoresWithTheTypeOfTheKey();
    void writingTellsOnce();
    void writingTheDefaultStoresIt();
    void writingOverAnotherTypeStores();
    void aWriteOfAnotherTypeDoesNothing_data();
    void aWriteOfAnotherTypeDoesNothing();

    void aChangeByAnotherProcessIsFollowed();
    void aChangeOfAnyKeyIsFollowed();
    void aChangeOfAnotherKeyIsNotTold();
    void aKeyThatVanishesReadsAsTheDefault();
    void twoBindingsOfOneKeyAgree();

    void itsOwnDefaultStandsInForTheTable();
    void theDefaultMayComeBeforeOrAfterTheKey();
    void aWholeNumberAsDefaultMakesANumber();
    void aDefaultThatIsNoStorableValueIsUnset();
    void anotherKeyBringsItsOwnValueAndDefault();
    void withoutAKeyNothingIsReadOrStored();
    void anUnknownKeyNeedsADefault();

    void inQmlTheKeyIsRequired();
    void inQmlEveryBindingHasTheValueOnceItIsMade_data();
    void inQmlEveryBindingHasTheValueOnceItIsMade();
    void inQmlAValueWrittenEarlyIsStoredOnceComplete_data();
    void inQmlAValueWrittenEarlyIsStoredOnceComplete();
    void inQmlUndefinedAndNullAreNotStored();
    void inQmlAWholeNumberIsStoredAsADouble();
    void inQmlABindingFollowsTheStore();
    void inQmlTheKeyMayChange();
    void inQmlTheNamesOfTheKeysAreThoseOfTheTable();

private:
    QObject *make(const QByteArray &qml);

    FakePlatform *m_platform = nullptr;
    FakeUserDefaults *m_store = nullptr;
    std::unique_ptr<QObject> m_root;
};

void TestAppStorage::init()
{
    m_platform = &FakePlatform::install();
    m_store = &m_platform->suite(QStringLiteral("com.vexmoor.corvane"));
}

QObject *TestAppStorage::make(const QByteArray &qml)
{
    static QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Corvane.Shared\n" + qml, QUrl());
    m_root.reset(component.create());
    if (!m_root)
        qCritical("%s", qPrintable(component.errorString()));
    return m_root.get();
}

void TestAppStorage::anAbsentKeyReadsAsTheDefaultOfTheTable()
{
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        AppStorage storage;
        storage.setKey(key.name);
        QCOMPARE(storage.value(), key.defaultValue);
        QCOMPARE(storage.value().metaType(), key.defaultValue.metaType());
        QCOMPARE(storage.defaultValue(), key.defaultValue);
    }
}

void TestAppStorage::readingNeverWrites()
{
    m_store->values = {{hidden, QStringLiteral("yes")}, {theme, QStringLiteral("no such theme")}};
    const QVariantMap before = m_store->values;
    QSignalSpy changes(m_store, &UserDefaults::changed);
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        AppStorage storage;
        storage.setKey(key.name);
        storage.setDefaultValue(key.defaultValue);
    }
    QCOMPARE(m_store->values, before);
    QVERIFY(changes.isEmpty());
}

void TestAppStorage::aStoredValueIsRead()
{
    m_store->values = {{hidden, true}, {theme, QStringLiteral("soft")}, {gap, 6.5}};
    AppStorage boolean, text, number;
    boolean.setKey(hidden);
    text.setKey(theme);
    number.setKey(gap);
    QCOMPARE(boolean.value(), QVariant(true));
    QCOMPARE(text.value(), QVariant(QStringLiteral("soft")));
    QCOMPARE(number.value(), QVariant(6.5));
}

void TestAppStorage::anEmptyTextIsAValue()
{
    m_store->values = {{theme, QString()}};
    AppStorage storage;
    storage.setKey(theme);
    QCOMPARE(storage.value(), QVariant(QString()));
}

void TestAppStorage::aStoredValueOfAnotherTypeReadsAsTheDefaultAndIsLeft_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("read");

    QTest::newRow("text for a Boolean") << hidden << QVariant(QStringLiteral("true")) << QVariant(false);
    QTest::newRow("number for a Boolean") << hidden << QVariant(1.0) << QVariant(false);
    QTest::newRow("Boolean for a text") << theme << QVariant(true) << QVariant(QStringLiteral("classic"));
    QTest::newRow("number for a text") << theme << QVariant(2.0) << QVariant(QStringLiteral("classic"));
    QTest::newRow("text for a number") << gap << QVariant(QStringLiteral("12")) << QVariant(0.0);
    QTest::newRow("Boolean for a number") << gap << QVariant(true) << QVariant(0.0);
    QTest::newRow("list for a text") << theme << QVariant(QStringList{"soft"}) << QVariant(QStringLiteral("classic"));
    QTest::newRow("bytes for a text") << saved << QVariant(QByteArray("[]")) << QVariant(QString());
    QTest::newRow("no number") << gap << QVariant(notANumber) << QVariant(0.0);
    QTest::newRow("infinite") << gap << QVariant(infinity) << QVariant(0.0);
    QTest::newRow("negative infinite") << gap << QVariant(-infinity) << QVariant(0.0);
}

void TestAppStorage::aStoredValueOfAnotherTypeReadsAsTheDefaultAndIsLeft()
{
    QFETCH(QString, key);
    QFETCH(QVariant, stored);
    m_store->values = {{key, stored}};
    AppStorage storage;
    storage.setKey(key);
    QTEST(storage.value(), "read");
    QCOMPARE(storage.value().metaType(), Contract::defaultValue(key).metaType());

    QSignalSpy changes(&storage, &AppStorage::valueChanged);
    emit m_store->changed(key);
    QVERIFY(changes.isEmpty());
    QCOMPARE(m_store->values.size(), 1);
    QCOMPARE(m_store->values.value(key).metaType(), stored.metaType());
}

void TestAppStorage::writingStoresWithTheTypeOfTheKey()
{
    AppStorage boolean, text, number;
    boolean.setKey(hidden);
    text.setKey(theme);
    number.setKey(gap);
    boolean.setValue(true);
    text.setValue(QStringLiteral("mono"));
    number.setValue(12);
    QCOMPARE(m_store->values, (QVariantMap{{hidden, true}, {theme, QStringLiteral("mono")}, {gap, 12.0}}));
    QCOMPARE(m_store->values.value(gap).typeId(), int(QMetaType::Double));
    QCOMPARE(number.value(), QVariant(12.0));
}

void TestAppStorage::writingTellsOnce()
{
    AppStorage storage;
    storage.setKey(theme);
    QSignalSpy changes(&storage, &AppStorage::valueChanged);
    storage.setValue(QStringLiteral("soft"));
    QCOMPARE(changes.size(), 1);
    storage.setValue(QStringLiteral("soft"));
    QCOMPARE(changes.size(), 1);
}

void TestAppStorage::writingTheDefaultStoresIt()
{
    AppStorage storage;
    storage.setKey(hidden);
    storage.setValue(false);
    QCOMPARE(m_store->values, (QVariantMap{{hidden, false}}));
}

void TestAppStorage::writingOverAnotherTypeStores()
{
    m_store->values = {{hidden, QStringLiteral("yes")}};
    AppStorage storage;
    storage.setKey(hidden);
    storage.setValue(false);
    QCOMPARE(m_store->values.value(hidden).metaType(), QMetaType::fromType<bool>());
    QCOMPARE(m_store->values.value(hidden), QVariant(false));
}

void TestAppStorage::aWriteOfAnotherTypeDoesNothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("written");

    QTest::newRow("nothing") << hidden << QVariant();
    QTest::newRow("null") << theme << QVariant::fromValue(nullptr);
    QTest::newRow("text to a Boolean") << hidden << QVariant(QStringLiteral("true"));
    QTest::newRow("number to a Boolean") << hidden << QVariant(1);
    QTest::newRow("Boolean to a text") << theme << QVariant(true);
    QTest::newRow("text to a number") << gap << QVariant(QStringLiteral("12"));
    QTest::newRow("list to a text") << theme << QVariant(QStringList{"soft"});
    QTest::newRow("no number") << gap << QVariant(notANumber);
    QTest::newRow("infinite") << gap << QVariant(infinity);
}

void TestAppStorage::aWriteOfAnotherTypeDoesNothing()
{
    QFETCH(QString, key);
    QFETCH(QVariant, written);
    AppStorage storage;
    storage.setKey(key);
    QSignalSpy changes(&storage, &AppStorage::valueChanged);
    storage.setValue(written);
    QVERIFY(m_store->values.isEmpty());
    QVERIFY(changes.isEmpty());
    QCOMPARE(storage.value(), Contract::defaultValue(key));
}

void TestAppStorage::aChangeByAnotherProcessIsFollowed()
{
    AppStorage storage;
    storage.setKey(hidden);
    QSignalSpy changes(&storage, &AppStorage::valueChanged);
    m_store->values.insert(hidden, true);
    QCOMPARE(storage.value(), QVariant(false));
    emit m_store->changed(hidden);
    QCOMPARE(storage.value(), QVariant(true));
    QCOMPARE(changes.size(), 1);
    // The last writer wins, whichever side it is.
    storage.setValue(false);
    QCOMPARE(m_store->values.value(hidden), QVariant(false));
    m_store->setValue(hidden, true);
    QCOMPARE(storage.value(), QVariant(true));
}

void TestAppStorage::aChangeOfAnyKeyIsFollowed()
{
    AppStorage storage;
    storage.setKey(gap);
    m_store->values.insert(gap, 6.0);
    emit m_store->changed(QString());
    QCOMPARE(storage.value(), QVariant(6.0));
}

void TestAppStorage::aChangeOfAnotherKeyIsNotTold()
{
    AppStorage storage;
    storage.setKey(hidden);
    QSignalSpy changes(&storage, &AppStorage::valueChanged);
    m_store->setValue(theme, QStringLiteral("soft"));
    QVERIFY(changes.isEmpty());
}

void TestAppStorage::aKeyThatVanishesReadsAsTheDefault()
{
    m_store->values = {{theme, QStringLiteral("soft")}};
    AppStorage storage;
    storage.setKey(theme);
    m_store->values.clear();
    emit m_store->changed(QString());
    QCOMPARE(storage.value(), QVariant(QStringLiteral("classic")));
    QVERIFY(m_store->values.isEmpty());
}

void TestAppStorage::twoBindingsOfOneKeyAgree()
{
    AppStorage one, other;
    one.setKey(theme);
    other.setKey(theme);
    one.setValue(QStringLiteral("outline"));
    QCOMPARE(other.value(), QVariant(QStringLiteral("outline")));
}

void TestAppStorage::itsOwnDefaultStandsInForTheTable()
{
    AppStorage storage;
    storage.setKey(theme);
    storage.setDefaultValue(QStringLiteral("mono"));
    QCOMPARE(storage.value(), QVariant(QStringLiteral("mono")));
    QVERIFY(m_store->values.isEmpty());
    storage.setDefaultValue(QVariant());
    QCOMPARE(storage.value(), QVariant(QStringLiteral("classic")));
}

void TestAppStorage::theDefaultMayComeBeforeOrAfterTheKey()
{
    m_store->values = {{QStringLiteral("own"), 4.0}};
    AppStorage before, after;
    before.setDefaultValue(1.5);
    before.setKey(QStringLiteral("own"));
    after.setKey(QStringLiteral("own"));
    after.setDefaultValue(1.5);
    QCOMPARE(before.value(), QVariant(4.0));
    QCOMPARE(after.value(), QVariant(4.0));
    m_store->setValue(QStringLiteral("own"), QVariant());
    QCOMPARE(before.value(), QVariant(1.5));
    QCOMPARE(after.value(), QVariant(1.5));
}

void TestAppStorage::aWholeNumberAsDefaultMakesANumber()
{
    m_store->values = {{gap, 6.0}};
    AppStorage storage;
    storage.setKey(gap);
    storage.setDefaultValue(0);
    QCOMPARE(storage.value(), QVariant(6.0));
    storage.setValue(12);
    QCOMPARE(m_store->values.value(gap).typeId(), int(QMetaType::Double));
}

void TestAppStorage::aDefaultThatIsNoStorableValueIsUnset()
{
    AppStorage storage;
    storage.setKey(gap);
    for (const QVariant &unusable : {QVariant(notANumber), QVariant(QStringList()), QVariant()}) {
        storage.setDefaultValue(unusable);
        QCOMPARE(storage.defaultValue(), QVariant(0.0));
        QCOMPARE(storage.value(), QVariant(0.0));
    }
}

void TestAppStorage::anotherKeyBringsItsOwnValueAndDefault()
{
    AppStorage storage;
    storage.setKey(theme);
    QSignalSpy keys(&storage, &AppStorage::keyChanged);
    QSignalSpy defaults(&storage, &AppStorage::defaultValueChanged);
    QSignalSpy values(&storage, &AppStorage::valueChanged);
    storage.setKey(QStringLiteral("layouts.enabled"));
    QCOMPARE(storage.value(), QVariant(true));
    QCOMPARE(storage.defaultValue(), QVariant(true));
    QCOMPARE(keys.size(), 1);
    QCOMPARE(defaults.size(), 1);
    QCOMPARE(values.size(), 1);
}

void TestAppStorage::withoutAKeyNothingIsReadOrStored()
{
    m_store->values = {{QString(), true}};
    AppStorage storage;
    storage.setDefaultValue(false);
    storage.setValue(false);
    QVERIFY(!storage.value().isValid());
    QCOMPARE(m_store->values, (QVariantMap{{QString(), true}}));
    storage.setKey(hidden);
    QCOMPARE(storage.value(), QVariant(false));
    storage.setKey(QString());
    QVERIFY(!storage.value().isValid());
}

void TestAppStorage::anUnknownKeyNeedsADefault()
{
    m_store->values = {{QStringLiteral("own"), true}};
    AppStorage storage;
    storage.setKey(QStringLiteral("own"));
    QVERIFY(!storage.value().isValid());
    storage.setValue(false);
    QCOMPARE(m_store->values.value(QStringLiteral("own")), QVariant(true));
    storage.setDefaultValue(false);
    QCOMPARE(storage.value(), QVariant(true));
}

void TestAppStorage::inQmlTheKeyIsRequired()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import Corvane.Shared\nAppStorage {}", QUrl());
    std::unique_ptr<QObject> made(component.create());
    QVERIFY(!made);
    QVERIFY(component.errorString().contains(QStringLiteral("key")));
}

void TestAppStorage::inQmlEveryBindingHasTheValueOnceItIsMade_data()
{
    QTest::addColumn<QByteArray>("storage");
    QTest::newRow("a literal key") << QByteArray("key: 'menuBarIconHidden'");
    QTest::newRow("a bound key") << QByteArray("key: Key.menuBarIconHidden");
    QTest::newRow("a default before the key") << QByteArray("defaultValue: false; key: Key.menuBarIconHidden");
    QTest::newRow("a default after the key") << QByteArray("key: Key.menuBarIconHidden; defaultValue: false");
    QTest::newRow("a computed key") << QByteArray("key: 'hotkey.' + root.name + '.disabled'");
}

void TestAppStorage::inQmlEveryBindingHasTheValueOnceItIsMade()
{
    QFETCH(QByteArray, storage);
    m_store->values = {{hidden, true}, {QStringLiteral("hotkey.kill.disabled"), true}};
    const QObject *root = make("QtObject {\n id: root\n property string name: 'kill'\n"
                               " property bool before: storage.value\n"
                               " property AppStorage storage: AppStorage { id: storage; "
                               + storage
                               + " }\n property bool after: storage.value\n"
                                 " property QtObject inner: QtObject { property bool inside: storage.value }\n}");
    QVERIFY(root);
    QCOMPARE(root->property("before"), QVariant(true));
    QCOMPARE(root->property("after"), QVariant(true));
    QCOMPARE(root->property("inner").value<QObject *>()->property("inside"), QVariant(true));
}

void TestAppStorage::inQmlAValueWrittenEarlyIsStoredOnceComplete_data()
{
    QTest::addColumn<QByteArray>("storage");
    QTest::newRow("before the key") << QByteArray("value: 6; key: 'layouts.gap'");
    QTest::newRow("after the key") << QByteArray("key: 'layouts.gap'; value: 6");
    QTest::newRow("before a bound key") << QByteArray("value: 6; key: Key.layoutsGap");
    QTest::newRow("before the default") << QByteArray("value: 6; defaultValue: 1; key: Key.layoutsGap");
}

void TestAppStorage::inQmlAValueWrittenEarlyIsStoredOnceComplete()
{
    QFETCH(QByteArray, storage);
    const QObject *root = make("AppStorage { " + storage + " }");
    QVERIFY(root);
    QCOMPARE(root->property("value"), QVariant(6.0));
    QCOMPARE(m_store->values, (QVariantMap{{gap, 6.0}}));
}

void TestAppStorage::inQmlUndefinedAndNullAreNotStored()
{
    const QObject *root =
        make("AppStorage { key: Key.buttonTheme\n"
             " Component.onCompleted: { value = undefined; value = null; value = {}; value = [1] }\n}");
    QVERIFY(root);
    QCOMPARE(root->property("value"), QVariant(QStringLiteral("classic")));
    QVERIFY(m_store->values.isEmpty());
}

void TestAppStorage::inQmlAWholeNumberIsStoredAsADouble()
{
    const QObject *root = make("AppStorage { key: Key.layoutsGap; defaultValue: 0\n"
                               " Component.onCompleted: value = 12\n}");
    QVERIFY(root);
    QCOMPARE(m_store->values.value(gap).typeId(), int(QMetaType::Double));
    QCOMPARE(root->property("value"), QVariant(12.0));
}

void TestAppStorage::inQmlABindingFollowsTheStore()
{
    const QObject *root = make("QtObject {\n property AppStorage storage: AppStorage { id: s; key: Key.buttonTheme }\n"
                               " property string shown: s.value\n}");
    QVERIFY(root);
    QCOMPARE(root->property("shown"), QVariant(QStringLiteral("classic")));
    m_store->setValue(theme, QStringLiteral("graphite"));
    QCOMPARE(root->property("shown"), QVariant(QStringLiteral("graphite")));
}

void TestAppStorage::inQmlTheKeyMayChange()
{
    QObject *root = make("QtObject {\n property string name: 'close'\n"
                         " property AppStorage storage: AppStorage { id: s; key: `hotkey.${name}.disabled` }\n"
                         " property bool off: s.value\n}");
    QVERIFY(root);
    QCOMPARE(root->property("off"), QVariant(false));
    m_store->setValue(QStringLiteral("hotkey.kill.disabled"), true);
    root->setProperty("name", QStringLiteral("kill"));
    QCOMPARE(root->property("off"), QVariant(true));
}

void TestAppStorage::inQmlTheNamesOfTheKeysAreThoseOfTheTable()
{
    const QObject *root = make("QtObject { property var names: [Key.onboardingCompleted,"
                               " Key.agentAccessibilityTrusted, Key.layoutsLaunchApps] }");
    QVERIFY(root);
    QCOMPARE(root->property("names").toStringList(),
             QStringList({QStringLiteral("onboardingCompleted"), QStringLiteral("agent.accessibilityTrusted"),
                          QStringLiteral("layouts.launchApps")}));
}

CORVANE_TEST(TestAppStorage, runInCore)
#include "tst_appstorage.moc"
