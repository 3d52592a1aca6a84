#include "FakePlatform.h"
#include "FakeUserDefaults.h"
#include "LayoutStore.h"
#include "Sample.h"
#include "TestProgram.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>

#include <functional>

namespace {

/// A suite that counts what is written to it, and in which an agent may write between a read and the next write.
class WatchedStore : public FakeUserDefaults {
public:
    int writes = 0;
    std::function<void()> afterRead;

    explicit WatchedStore(const QVariant &saved = {})
    {
        if (saved.isValid())
            values.insert(Sample::key, saved);
    }

    QString saved() const { return values.value(Sample::key).toString(); }

protected:
    QVariant storedValue(const QString &name) const override
    {
        QVariant value = FakeUserDefaults::storedValue(name);
        if (afterRead)
            afterRead();
        return value;
    }

    void store(const QString &name, const QVariant &value) override
    {
        ++writes;
        FakeUserDefaults::store(name, value);
    }
};

SavedLayout named(const QUuid &id, const QString &name)
{
    SavedLayout layout = Sample::layout();
    layout.id = id;
    layout.name = name;
    return layout;
}

const SavedLayout a = named(Sample::id, QStringLiteral("a"));
const SavedLayout b = named(Sample::otherId, QStringLiteral("b"));
const SavedLayout c = named(Sample::id, QStringLiteral("c"));

QString textOf(const QList<SavedLayout> &layouts)
{
    return LayoutStore::encode(layouts).value();
}

/// Values no list of layouts can be read from.
void unreadableValues()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("empty text") << QVariant(QString());
    QTest::newRow("malformed") << QVariant(QStringLiteral("[{\"windows\":[]}"));
    QTest::newRow("no list") << QVariant(QStringLiteral("{}"));
    QTest::newRow("no windows") << QVariant(QStringLiteral(R"([ {"name":"Work"} ])"));
    QTest::newRow("a window without its fields") << QVariant(QStringLiteral(R"([{"windows":[{}]}])"));
    QTest::newRow("a rectangle without x") << QVariant(QString(Sample::text).remove(QStringLiteral(R"("x":0,)")));
    QTest::newRow("wrong type") << QVariant(QStringLiteral(R"([{"name":7,"windows":[]}])"));
    QTest::newRow("huge number") << QVariant(QStringLiteral(R"([{"created":1e999,"windows":[]}])"));
    QTest::newRow("half a surrogate pair") << QVariant(QStringLiteral(R"([{"name":"\ud800","windows":[]}])"));
    QTest::newRow("nesting bomb") << QVariant(QString(100'000, u'['));
    QTest::newRow("no text") << QVariant(1.0);
}

}

class LayoutStoreTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void anAbsentValueIsAnEmptyListAndNothingIsWritten();
    void anotherTypeIsAnEmptyListAndNothingIsWritten_data();
    void anotherTypeIsAnEmptyListAndNothingIsWritten();
    void anEmptyListIsNotRewritten();
    void aListInItsOneFormIsNotRewritten();
    void anyOtherFormIsRewrittenOnce_data();
    void anyOtherFormIsRewrittenOnce();
    void aLayoutWithoutIdNameAndDateGetsThemForGood();
    void anUnreadableListStaysAsItWas_data() { unreadableValues(); }
    void anUnreadableListStaysAsItWas();
    void encodeGivesTheStoredText();

    void removingDeletesEveryLayoutOfThatId();
    void removingKeepsTheOrder();
    void removingAnUnknownIdLeavesTheList();
    void removingTheLastLayoutStoresAnEmptyList();
    void removingFromAnAbsentValueStoresAnEmptyList();
    void removingFromAnUnreadableListStoresAnEmptyOne_data() { unreadableValues(); }
    void removingFromAnUnreadableListStoresAnEmptyOne();

    void everyLayoutOfAnIdIsFoundWithItsPlace();
    void restoringPutsALayoutBackToItsPlace_data();
    void restoringPutsALayoutBackToItsPlace();
    void restoringBringsBackAllThatOneRemovalTook();
    void restoringKeepsWhatWasStoredMeanwhile();
    void restoringIntoAShorterListPutsTheLayoutAtItsEnd();
    void restoringIntoAnUnreadableListLeavesItAsItIs_data() { unreadableValues(); }
    void restoringIntoAnUnreadableListLeavesItAsItIs();
    void restoringWhatIsStoredWritesNothing();
    void restoringNothingWritesNothing();
    void renamingChangesOnlyTheFirstLayoutOfThatId();
    void aNameIsStoredAsGiven_data();
    void aNameIsStoredAsGiven();
    void renamingAnUnknownIdWritesNothing();
    void renamingInAnUnreadableListWritesNothing_data() { unreadableValues(); }
    void renamingInAnUnreadableListWritesNothing();
    void aNameWithoutATextIsNotStored();

    void renamingAndRemovingSettleWhatTheAgentLeftOut();
    void renamingOverwritesWhatTheAgentAddedMeanwhile();
    void removingOverwritesWhatTheAgentAddedMeanwhile();
    void theAgentOverwritesARename();
    void tenThousandLayoutsWithAMegabyteOfNameAreRenamedAndRemoved();
    void noOtherKeyIsTouched();

    void aTextOfOthersIsKeptBeforeItIsReplaced_data();
    void aTextOfOthersIsKeptBeforeItIsReplaced();
    void aTextOfOursIsNotKept();
    void aTextOfOthersIsKeptOnce();
    void theLastFiveAreKept();
    void withoutAStateFolderNothingIsKept();

private:
    QDir archive() const { return QDir(m_folder->filePath("state/layouts")); }
    QStringList kept() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    FakePlatform *m_platform = nullptr;
};

void LayoutStoreTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_platform = &FakePlatform::install();
    m_platform->state = m_folder->filePath("state");
}

/// The kept texts, the oldest first.
QStringList LayoutStoreTest::kept() const
{
    QStringList texts;
    const QDir archive = this->archive();
    const QStringList names = archive.entryList({"*.json"}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(archive.filePath(name));
        texts.append(file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString());
    }
    return texts;
}

void LayoutStoreTest::anAbsentValueIsAnEmptyListAndNothingIsWritten()
{
    WatchedStore store;
    QVERIFY(LayoutStore::load(store).isEmpty());
    QCOMPARE(store.writes, 0);
    QVERIFY(store.values.isEmpty());
}

void LayoutStoreTest::anotherTypeIsAnEmptyListAndNothingIsWritten_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("Boolean") << QVariant(true);
    QTest::newRow("number") << QVariant(1.0);
    QTest::newRow("binary data") << QVariant(Sample::text.toUtf8());
    QTest::newRow("list") << QVariant(QStringList{Sample::text});
}

void LayoutStoreTest::anotherTypeIsAnEmptyListAndNothingIsWritten()
{
    QFETCH(QVariant, stored);
    WatchedStore store(stored);
    QVERIFY(LayoutStore::load(store).isEmpty());
    QCOMPARE(store.writes, 0);
    QCOMPARE(store.values.value(Sample::key), stored);
}

void LayoutStoreTest::anEmptyListIsNotRewritten()
{
    WatchedStore store(QStringLiteral("[]"));
    QVERIFY(LayoutStore::load(store).isEmpty());
    QCOMPARE(store.writes, 0);
    QCOMPARE(store.saved(), QStringLiteral("[]"));
}

void LayoutStoreTest::aListInItsOneFormIsNotRewritten()
{
    WatchedStore store(Sample::text);
    QCOMPARE(LayoutStore::load(store), QList{Sample::layout()});
    QCOMPARE(store.writes, 0);
}

void LayoutStoreTest::anyOtherFormIsRewrittenOnce_data()
{
    QTest::addColumn<QString>("stored");
    const auto changed = [](const char *from, const char *to) {
        return QString(Sample::text).replace(QLatin1StringView(from), QLatin1StringView(to));
    };
    QTest::newRow("white space") << u' ' + Sample::text;
    QTest::newRow("byte-order mark") << QChar(QChar::ByteOrderMark) + Sample::text;
    QTest::newRow("small letters in the id") << changed("3F2504E0-4F89", "3f2504e0-4f89");
    QTest::newRow("unknown key") << changed("[{", "[{\"colour\":\"red\",");
    QTest::newRow("unsorted keys") << changed(R"("h":0.75,"w":0.5)", R"("w":0.5,"h":0.75)");
    QTest::newRow("whole number with a fraction") << changed(R"("x":0,)", R"("x":0.0,)");
    QTest::newRow("long number") << changed("0.75", "0.7500");
    QTest::newRow("escaped letter") << changed("Work", R"(W\u006frk)");
    QTest::newRow("key twice") << changed(R"("name":"Work")", R"("name":"Work","name":"Play")");
}

void LayoutStoreTest::anyOtherFormIsRewrittenOnce()
{
    QFETCH(QString, stored);
    QVERIFY(stored != Sample::text);
    WatchedStore store(stored);
    QCOMPARE(LayoutStore::load(store), QList{Sample::layout()});
    QCOMPARE(store.writes, 1);
    QCOMPARE(store.values.value(Sample::key).typeId(), int(QMetaType::QString));
    QCOMPARE(store.saved(), Sample::text);
    QCOMPARE(LayoutStore::load(store), QList{Sample::layout()});
    QCOMPARE(store.writes, 1);
}

void LayoutStoreTest::aLayoutWithoutIdNameAndDateGetsThemForGood()
{
    WatchedStore store(QStringLiteral(R"([{"windows":[]},{"windows":[],"name":null}])"));
    const QList<SavedLayout> first = LayoutStore::load(store);
    QCOMPARE(first.size(), 2);
    QCOMPARE(first.constFirst().name, QStringLiteral("Layout"));
    QCOMPARE(store.writes, 1);
    QCOMPARE(store.saved(), textOf(first));
    QCOMPARE(LayoutStore::load(store), first);
    QCOMPARE(LayoutStore::load(store), first);
    QCOMPARE(store.writes, 1);
}

void LayoutStoreTest::anUnreadableListStaysAsItWas()
{
    QFETCH(QVariant, stored);
    WatchedStore store(stored);
    QVERIFY(LayoutStore::load(store).isEmpty());
    QCOMPARE(store.writes, 0);
    QCOMPARE(store.values.value(Sample::key), stored);
}

void LayoutStoreTest::encodeGivesTheStoredText()
{
    QCOMPARE(LayoutStore::encode({Sample::layout()}), std::optional(Sample::text));
    SavedLayout endless = Sample::layout();
    endless.created = qInf();
    QVERIFY(!LayoutStore::encode({endless}));
}

void LayoutStoreTest::removingDeletesEveryLayoutOfThatId()
{
    WatchedStore store(textOf({a, b, c}));
    QCOMPARE(LayoutStore::remove(Sample::id, store), QList{b});
    QCOMPARE(store.saved(), textOf({b}));
    QCOMPARE(store.writes, 1);
}

void LayoutStoreTest::removingKeepsTheOrder()
{
    const SavedLayout d = named(QUuid::createUuid(), QStringLiteral("d"));
    WatchedStore store(textOf({d, b, a, d}));
    QCOMPARE(LayoutStore::remove(Sample::otherId, store), (QList{d, a, d}));
    QCOMPARE(store.saved(), textOf({d, a, d}));
}

void LayoutStoreTest::removingAnUnknownIdLeavesTheList()
{
    WatchedStore store(textOf({a}));
    QCOMPARE(LayoutStore::remove(Sample::otherId, store), QList{a});
    // What is stored already is not stored again.
    QCOMPARE(store.writes, 0);
    QCOMPARE(store.saved(), textOf({a}));
}

void LayoutStoreTest::removingTheLastLayoutStoresAnEmptyList()
{
    WatchedStore store(textOf({a}));
    QVERIFY(LayoutStore::remove(Sample::id, store).isEmpty());
    QCOMPARE(store.saved(), QStringLiteral("[]"));
}

void LayoutStoreTest::removingFromAnAbsentValueStoresAnEmptyList()
{
    WatchedStore store;
    QVERIFY(LayoutStore::remove(Sample::id, store).isEmpty());
    QCOMPARE(store.saved(), QStringLiteral("[]"));
}

void LayoutStoreTest::removingFromAnUnreadableListStoresAnEmptyOne()
{
    QFETCH(QVariant, stored);
    WatchedStore store(stored);
    QVERIFY(LayoutStore::remove(Sample::id, store).isEmpty());
    QCOMPARE(store.saved(), QStringLiteral("[]"));
}

void LayoutStoreTest::everyLayoutOfAnIdIsFoundWithItsPlace()
{
    WatchedStore store(textOf({a, b, c}));
    const auto found = LayoutStore::find(Sample::id, store);
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.at(0).index, 0);
    QCOMPARE(found.at(0).layout, a);
    QCOMPARE(found.at(1).index, 2);
    QCOMPARE(found.at(1).layout, c);
    QVERIFY(LayoutStore::find(QUuid::createUuid(), store).isEmpty());
    QCOMPARE(store.writes, 0);
}

void LayoutStoreTest::restoringPutsALayoutBackToItsPlace_data()
{
    QTest::addColumn<int>("place");
    QTest::newRow("first") << 0;
    QTest::newRow("in the middle") << 1;
    QTest::newRow("last") << 2;
}

void LayoutStoreTest::restoringPutsALayoutBackToItsPlace()
{
    QFETCH(const int, place);
    QList<SavedLayout> layouts = {named(QUuid::createUuid(), QStringLiteral("d")), b,
                                  named(QUuid::createUuid(), QStringLiteral("e"))};
    layouts.move(1, place);
    WatchedStore store(textOf(layouts));
    const auto removed = LayoutStore::find(Sample::otherId, store);
    LayoutStore::remove(Sample::otherId, store);
    QCOMPARE(LayoutStore::restore(removed, store), layouts);
    QCOMPARE(store.saved(), textOf(layouts));
    QCOMPARE(store.writes, 2);
}

void LayoutStoreTest::restoringBringsBackAllThatOneRemovalTook()
{
    WatchedStore store(textOf({a, b, c}));
    const auto removed = LayoutStore::find(Sample::id, store);
    QCOMPARE(LayoutStore::remove(Sample::id, store), QList{b});
    QCOMPARE(LayoutStore::restore(removed, store), (QList{a, b, c}));
    QCOMPARE(store.saved(), textOf({a, b, c}));
}

void LayoutStoreTest::restoringKeepsWhatWasStoredMeanwhile()
{
    const SavedLayout d = named(QUuid::createUuid(), QStringLiteral("d"));
    WatchedStore store(textOf({d, b}));
    const auto removed = LayoutStore::find(Sample::otherId, store);
    LayoutStore::remove(Sample::otherId, store);
    store.values.insert(Sample::key, textOf({a, d}));
    QCOMPARE(LayoutStore::restore(removed, store), (QList{a, b, d}));
    QCOMPARE(store.saved(), textOf({a, b, d}));
}

void LayoutStoreTest::restoringIntoAShorterListPutsTheLayoutAtItsEnd()
{
    const SavedLayout d = named(QUuid::createUuid(), QStringLiteral("d"));
    WatchedStore store(textOf({d, a, b}));
    const auto removed = LayoutStore::find(Sample::otherId, store);
    store.values.insert(Sample::key, textOf({a}));
    QCOMPARE(LayoutStore::restore(removed, store), (QList{a, b}));
    store.values.remove(Sample::key);
    QCOMPARE(LayoutStore::restore(removed, store), QList{b});
    QCOMPARE(store.saved(), textOf({b}));
}

void LayoutStoreTest::restoringIntoAnUnreadableListLeavesItAsItIs()
{
    QFETCH(QVariant, stored);
    WatchedStore store(textOf({a, b}));
    const auto removed = LayoutStore::find(Sample::otherId, store);
    store.values.insert(Sample::key, stored);
    QVERIFY(!LayoutStore::restore(removed, store));
    QCOMPARE(store.writes, 0);
    QCOMPARE(store.values.value(Sample::key), stored);
    store.values.insert(Sample::key, textOf({a}));
    QCOMPARE(LayoutStore::restore(removed, store), (QList{a, b}));
}

void LayoutStoreTest::restoringWhatIsStoredWritesNothing()
{
    WatchedStore store(textOf({a, b}));
    const auto found = LayoutStore::find(Sample::otherId, store);
    QCOMPARE(LayoutStore::restore(found, store), (QList{a, b}));
    QCOMPARE(store.writes, 0);
}

void LayoutStoreTest::restoringNothingWritesNothing()
{
    WatchedStore store(textOf({a}));
    QCOMPARE(LayoutStore::restore({}, store), QList{a});
    QCOMPARE(store.writes, 0);
}

void LayoutStoreTest::renamingChangesOnlyTheFirstLayoutOfThatId()
{
    WatchedStore store(textOf({b, a, c}));
    const QList<SavedLayout> expected = {b, named(Sample::id, QStringLiteral("new")), c};
    QCOMPARE(LayoutStore::rename(Sample::id, QStringLiteral("new"), store), expected);
    QCOMPARE(store.saved(), textOf(expected));
    QCOMPARE(store.writes, 1);
}

void LayoutStoreTest::aNameIsStoredAsGiven_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("spaces") << QStringLiteral("  two  words \t");
    QTest::newRow("line ends") << QStringLiteral("a\nb\r\n");
    QTest::newRow("JSON") << QStringLiteral(R"("},{"windows":[])");
    QTest::newRow("NUL") << QStringLiteral("a") + QChar(u'\0') + u'b';
    QTest::newRow("other scripts") << QStringLiteral("\ufeffé e\u0301 🦊 / \\ \u2028");
}

void LayoutStoreTest::aNameIsStoredAsGiven()
{
    QFETCH(QString, name);
    WatchedStore store(textOf({a}));
    QCOMPARE(LayoutStore::rename(Sample::id, name, store), QList{named(Sample::id, name)});
    QCOMPARE(store.writes, 1);
    QCOMPARE(LayoutStore::load(store), QList{named(Sample::id, name)});
    QCOMPARE(store.writes, 1);
}

void LayoutStoreTest::renamingAnUnknownIdWritesNothing()
{
    WatchedStore store(textOf({a}));
    QCOMPARE(LayoutStore::rename(Sample::otherId, QStringLiteral("new"), store), QList{a});
    QCOMPARE(store.writes, 0);
    QCOMPARE(store.saved(), textOf({a}));
    WatchedStore empty;
    QVERIFY(LayoutStore::rename(Sample::otherId, QStringLiteral("new"), empty).isEmpty());
    QCOMPARE(empty.writes, 0);
}

void LayoutStoreTest::renamingInAnUnreadableListWritesNothing()
{
    QFETCH(QVariant, stored);
    WatchedStore store(stored);
    QVERIFY(LayoutStore::rename(Sample::id, QStringLiteral("new"), store).isEmpty());
    QCOMPARE(store.writes, 0);
    QCOMPARE(store.values.value(Sample::key), stored);
}

void LayoutStoreTest::aNameWithoutATextIsNotStored()
{
    WatchedStore store(textOf({a}));
    const QString half = QStringLiteral("a") + QChar(u'\xd800');
    QCOMPARE(LayoutStore::rename(Sample::id, half, store), QList{named(Sample::id, half)});
    QCOMPARE(store.writes, 0);
    QCOMPARE(LayoutStore::load(store), QList{a});
}

void LayoutStoreTest::renamingAndRemovingSettleWhatTheAgentLeftOut()
{
    const QString unsettled = QStringLiteral(R"([{"windows":[]}])");
    WatchedStore store(unsettled);
    const QList<SavedLayout> renamed = LayoutStore::rename(Sample::id, QStringLiteral("new"), store);
    QCOMPARE(renamed.size(), 1);
    QCOMPARE(store.saved(), textOf(renamed));
    store.values.insert(Sample::key, unsettled);
    const QList<SavedLayout> left = LayoutStore::remove(Sample::id, store);
    QCOMPARE(left.size(), 1);
    QCOMPARE(store.saved(), textOf(left));
    QCOMPARE(LayoutStore::load(store), left);
}

void LayoutStoreTest::renamingOverwritesWhatTheAgentAddedMeanwhile()
{
    WatchedStore store(textOf({a}));
    store.afterRead = [&store] { store.values.insert(Sample::key, textOf({a, b})); };
    const QList<SavedLayout> expected = {named(Sample::id, QStringLiteral("new"))};
    QCOMPARE(LayoutStore::rename(Sample::id, QStringLiteral("new"), store), expected);
    QCOMPARE(store.saved(), textOf(expected));
}

void LayoutStoreTest::removingOverwritesWhatTheAgentAddedMeanwhile()
{
    WatchedStore store(textOf({a}));
    store.afterRead = [&store] { store.values.insert(Sample::key, textOf({a, b})); };
    QVERIFY(LayoutStore::remove(Sample::id, store).isEmpty());
    QCOMPARE(store.saved(), QStringLiteral("[]"));
}

void LayoutStoreTest::theAgentOverwritesARename()
{
    WatchedStore store(textOf({a}));
    LayoutStore::rename(Sample::id, QStringLiteral("new"), store);
    store.values.insert(Sample::key, textOf({a, b}));
    QCOMPARE(LayoutStore::load(store), (QList{a, b}));
    QCOMPARE(LayoutStore::rename(Sample::otherId, QStringLiteral("new"), store),
             (QList{a, named(Sample::otherId, QStringLiteral("new"))}));
}

void LayoutStoreTest::tenThousandLayoutsWithAMegabyteOfNameAreRenamedAndRemoved()
{
    QList<SavedLayout> layouts(9'999, a);
    layouts.append(b);
    WatchedStore store(textOf(layouts));
    const QString name(1'000'000, u'é');
    layouts.last().name = name;
    QCOMPARE(LayoutStore::rename(Sample::otherId, name, store), layouts);
    QCOMPARE(LayoutStore::load(store), layouts);
    QCOMPARE(LayoutStore::remove(Sample::id, store), QList{layouts.constLast()});
    QCOMPARE(store.saved(), textOf({layouts.constLast()}));
}

void LayoutStoreTest::noOtherKeyIsTouched()
{
    WatchedStore store(QString(u' ' + textOf({a})));
    store.values.insert(QStringLiteral("layouts.gap"), 6.0);
    LayoutStore::load(store);
    LayoutStore::rename(Sample::id, QStringLiteral("new"), store);
    LayoutStore::remove(Sample::id, store);
    QCOMPARE(store.values, (QVariantMap{{Sample::key, QStringLiteral("[]")}, {QStringLiteral("layouts.gap"), 6.0}}));
}

void LayoutStoreTest::aTextOfOthersIsKeptBeforeItIsReplaced_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("fields of a newer agent") << textOf({a}).replace("[{", "[{\"hotkey\":5,");
    QTest::newRow("a newer form") << R"({"version":2,"layouts":["é \" ' \\ 🦊"]})";
    QTest::newRow("cut off") << Sample::text.chopped(10);
    QTest::newRow("in our form") << textOf({a, b});
}

void LayoutStoreTest::aTextOfOthersIsKeptBeforeItIsReplaced()
{
    QFETCH(QString, stored);
    WatchedStore store(stored);
    const QDateTime before = QDateTime::currentDateTimeUtc();
    LayoutStore::remove(Sample::id, store);
    QCOMPARE(kept(), QStringList{stored});
    const QString name = archive().entryList({"*.json"}).constFirst();
    QDateTime moment = QDateTime::fromString(name.chopped(5), "yyyy-MM-dd-HHmmss-zzz");
    moment.setTimeSpec(Qt::UTC);
    QVERIFY(before <= moment && moment <= QDateTime::currentDateTimeUtc());
    const auto owners = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QCOMPARE(QFile::permissions(archive().filePath(name)), owners);
}

void LayoutStoreTest::aTextOfOursIsNotKept()
{
    WatchedStore store;
    LayoutStore::remove(Sample::id, store);
    LayoutStore::restore({{0, a}, {1, b}}, store);
    LayoutStore::rename(Sample::id, "new", store);
    LayoutStore::remove(Sample::otherId, store);
    QCOMPARE(kept(), QStringList());
}

void LayoutStoreTest::aTextOfOthersIsKeptOnce()
{
    const QString stored = u' ' + textOf({a});
    WatchedStore store(stored);
    store.obstacle = UserDefaults::Trouble::noRoom;
    LayoutStore::load(store);
    LayoutStore::load(store);
    QCOMPARE(kept(), QStringList{stored});
}

void LayoutStoreTest::theLastFiveAreKept()
{
    QStringList texts;
    WatchedStore store;
    for (int i = 0; i < 7; ++i) {
        texts.append(QString(i + 1, u' ') + textOf({a}));
        store.values.insert(Sample::key, texts.constLast());
        LayoutStore::load(store);
        // Two of the same thousandth of a second would be one.
        const QDateTime now = QDateTime::currentDateTimeUtc();
        QTRY_VERIFY(QDateTime::currentDateTimeUtc() > now.addMSecs(1));
    }
    QCOMPARE(kept(), texts.sliced(2));
}

void LayoutStoreTest::withoutAStateFolderNothingIsKept()
{
    m_platform->state.clear();
    WatchedStore store(QString(u' ' + textOf({a})));
    LayoutStore::load(store);
    QCOMPARE(store.saved(), textOf({a}));
    QVERIFY(!QDir(m_folder->filePath("state")).exists());
}

CORVANE_TEST(LayoutStoreTest, runInCore)
#include "tst_layoutstore.moc"
