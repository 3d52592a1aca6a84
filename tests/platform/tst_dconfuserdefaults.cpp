#include "DconfUserDefaults.h"
#include "OutsideStore.h"
#include "PrivateSession.h"
#include "TestProgram.h"

#include <QSignalSpy>

using namespace std::chrono_literals;

namespace {

constexpr int keysOfOneProcess = 150;

void set(UserDefaults &defaults, const QString &key, const QVariant &value)
{
    defaults.setValue(key, value);
    REQUIRE(defaults.finishWrites(5s));
}

/// Everything that was announced before another process makes a change now.
QStringList announced(QSignalSpy &spy)
{
    static int fences = 0;
    const QString fence = QStringLiteral("fence%1").arg(++fences);
    writeFromOutside(fence, QStringLiteral("true"));
    QStringList keys;
    const auto isHeard = [&] {
        while (!spy.isEmpty() && !keys.contains(fence))
            keys.append(spy.takeFirst().first().toString());
        return keys.contains(fence);
    };
    if (!QTest::qWaitFor(isHeard))
        QTest::qFail("a change from outside was not announced", __FILE__, __LINE__);
    keys.removeAll(fence);
    return keys;
}

/// A suite that watches the store, and what it has announced since. It may announce that everything has changed, at the
/// beginning or after the first change, if something did change before it watched.
struct Followed {
    DconfUserDefaults defaults{suiteName};
    QSignalSpy spy{&defaults, &UserDefaults::changed};

    Followed()
    {
        announced(spy);
        announced(spy);
    }
};

void writeManyKeys(const QString &prefix)
{
    DconfUserDefaults defaults(suiteName);
    for (int i = 0; i < keysOfOneProcess; ++i)
        defaults.setValue(prefix + QString::number(i), static_cast<double>(i));
    REQUIRE(defaults.finishWrites(20s));
}

}

class DconfUserDefaultsTest : public QObject {
    Q_OBJECT
public:
    explicit DconfUserDefaultsTest(PrivateSession &session)
        : m_database(session.configFolder() + QStringLiteral("/dconf/user"))
    {
    }

private slots:
    void cleanup() { dconf({QStringLiteral("reset"), QStringLiteral("-f"), QStringLiteral("/")}); }

    void aValueIsStoredWithItsType_data();
    void aValueIsStoredWithItsType();
    void aKeyIsReadUnderItsNameWithItsDots();
    void aNumberOfAnyTypeIsReadAsADouble_data();
    void aNumberOfAnyTypeIsReadAsADouble();
    void aValueOfAnotherTypeReadsAsInvalid_data();
    void aValueOfAnotherTypeReadsAsInvalid();
    void aWholeNumberIsStoredAsADouble();
    void aValueNoSuiteHoldsIsIgnored();
    void anInvalidValueRemovesTheKey();
    void aLongValueIsNotKeptInMemory();
    void aChangeByAnotherProcessIsAnnounced();
    void severalKeysChangedAtOnceAreAnnouncedOneByOne();
    void removingAFolderAroundTheSuiteAnnouncesThatEverythingMayHaveChanged();
    void aChangeInANeighbouringSuiteIsNotAnnounced();
    void anOwnWriteIsAnnouncedOnceAndAtOnce();
    void writingWhatIsStoredAlreadyAnnouncesNothing();
    void aChangeByAnotherProcessAfterAnOwnWriteIsAnnounced();
    void twoSuitesOfOneNameFollowEachOther();
    void aKeyThatIsNoPathLivesInMemory_data();
    void aKeyThatIsNoPathLivesInMemory();
    void aSuiteWhoseNameIsNoFolderCannotBeOpenedAndLivesInMemory_data();
    void aSuiteWhoseNameIsNoFolderCannotBeOpenedAndLivesInMemory();
    void processesThatWriteAtTheSameTimeLoseNothing();

private:
    qint64 mappedPages() const;

    QString m_database;
};

void DconfUserDefaultsTest::aValueIsStoredWithItsType_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("stored");
    QTest::newRow("true") << QVariant(true) << QStringLiteral("true");
    QTest::newRow("false") << QVariant(false) << QStringLiteral("false");
    QTest::newRow("text") << QVariant(QStringLiteral("classic")) << QStringLiteral("'classic'");
    QTest::newRow("no text") << QVariant(QString()) << QStringLiteral("''");
    QTest::newRow("symbols") << QVariant(QStringLiteral("⌘ ü 🪟")) << QStringLiteral("'⌘ ü 🪟'");
    QTest::newRow("zero") << QVariant(0.0) << QStringLiteral("0.0");
    QTest::newRow("number") << QVariant(-12.5) << QStringLiteral("-12.5");
}

void DconfUserDefaultsTest::aValueIsStoredWithItsType()
{
    QFETCH(QVariant, value);
    QFETCH(QString, stored);
    DconfUserDefaults defaults(suiteName);
    set(defaults, QStringLiteral("key"), value);
    QCOMPARE(readFromOutside(QStringLiteral("key")), stored);
    const QVariant readBack = DconfUserDefaults(suiteName).value(QStringLiteral("key"));
    QCOMPARE(readBack.typeId(), value.typeId());
    QCOMPARE(readBack, value);
}

void DconfUserDefaultsTest::aKeyIsReadUnderItsNameWithItsDots()
{
    const QString key = QStringLiteral("hotkey.close.disabled");
    writeFromOutside(key, QStringLiteral("true"));
    QCOMPARE(DconfUserDefaults(suiteName).value(key), QVariant(true));
}

void DconfUserDefaultsTest::aNumberOfAnyTypeIsReadAsADouble_data()
{
    QTest::addColumn<QString>("stored");
    for (const char *type : {"byte", "int16", "uint16", "int32", "uint32", "int64", "uint64", "double"})
        QTest::newRow(type) << QString::fromLatin1(type) + QStringLiteral(" 8");
}

void DconfUserDefaultsTest::aNumberOfAnyTypeIsReadAsADouble()
{
    QFETCH(QString, stored);
    writeFromOutside(QStringLiteral("layouts.gap"), stored);
    const QVariant value = DconfUserDefaults(suiteName).value(QStringLiteral("layouts.gap"));
    QCOMPARE(value.typeId(), QMetaType::Double);
    QCOMPARE(value.toDouble(), 8.0);
}

void DconfUserDefaultsTest::aValueOfAnotherTypeReadsAsInvalid_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("list") << QStringLiteral("['a', 'b']");
    QTest::newRow("tuple") << QStringLiteral("(1, true)");
    QTest::newRow("nothing") << QStringLiteral("@mb nothing");
    QTest::newRow("wrapped") << QStringLiteral("<true>");
    QTest::newRow("path") << QStringLiteral("objectpath '/a'");
}

void DconfUserDefaultsTest::aValueOfAnotherTypeReadsAsInvalid()
{
    QFETCH(QString, stored);
    writeFromOutside(QStringLiteral("key"), stored);
    QVERIFY(!DconfUserDefaults(suiteName).value(QStringLiteral("key")).isValid());
    QCOMPARE(readFromOutside(QStringLiteral("key")), stored);
}

void DconfUserDefaultsTest::aWholeNumberIsStoredAsADouble()
{
    DconfUserDefaults defaults(suiteName);
    set(defaults, QStringLiteral("layouts.gap"), 12);
    QCOMPARE(readFromOutside(QStringLiteral("layouts.gap")), QStringLiteral("12.0"));
}

void DconfUserDefaultsTest::aValueNoSuiteHoldsIsIgnored()
{
    DconfUserDefaults defaults(suiteName);
    set(defaults, QStringLiteral("key"), true);
    set(defaults, QStringLiteral("key"), QStringList{QStringLiteral("a")});
    QCOMPARE(defaults.value(QStringLiteral("key")), QVariant(true));
    QCOMPARE(readFromOutside(QStringLiteral("key")), QStringLiteral("true"));
}

void DconfUserDefaultsTest::anInvalidValueRemovesTheKey()
{
    DconfUserDefaults defaults(suiteName);
    set(defaults, QStringLiteral("layouts.saved"), QStringLiteral("[]"));
    set(defaults, QStringLiteral("layouts.saved"), QVariant());
    QVERIFY(!defaults.value(QStringLiteral("layouts.saved")).isValid());
    QCOMPARE(readFromOutside(QStringLiteral("layouts.saved")), QString());
}

/// How much of the database's file lies in the memory of this process, in KiB.
qint64 DconfUserDefaultsTest::mappedPages() const
{
    QFile maps(QStringLiteral("/proc/self/smaps"));
    REQUIRE(maps.open(QFile::ReadOnly));
    qint64 pages = 0;
    bool isDatabase = false;
    for (const QByteArray &line : maps.readAll().split('\n')) {
        if (line.contains('-') && line.contains('/'))
            isDatabase = line.contains(QFile::encodeName(m_database));
        else if (isDatabase && line.startsWith("Rss:"))
            pages += line.simplified().split(' ').at(1).toLongLong();
    }
    return pages;
}

void DconfUserDefaultsTest::aLongValueIsNotKeptInMemory()
{
    const QString key = QStringLiteral("layouts.saved");
    DconfUserDefaults defaults(suiteName);
    set(defaults, QStringLiteral("buttonTheme"), QStringLiteral("a"));
    QVERIFY(mappedPages() > 0);
    set(defaults, key, QString(1'000'000, u'a'));
    QVERIFY(mappedPages() < 100);
    QCOMPARE(defaults.value(key).toString().size(), 1'000'000);
    QVERIFY(mappedPages() < 100);
}

void DconfUserDefaultsTest::aChangeByAnotherProcessIsAnnounced()
{
    const QString key = QStringLiteral("agent.accessibilityTrusted");
    Followed followed;
    auto &[defaults, spy] = followed;
    writeFromOutside(key, QStringLiteral("true"));
    QTRY_COMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first(), QVariant(key));
    QCOMPARE(defaults.value(key), QVariant(true));
}

void DconfUserDefaultsTest::severalKeysChangedAtOnceAreAnnouncedOneByOne()
{
    Followed followed;
    auto &[defaults, spy] = followed;
    dconf({QStringLiteral("load"), suiteFolder}, "[/]\nbuttonTheme='a'\nlayouts.gap=2.0\n");
    QStringList keys = announced(spy);
    keys.sort();
    QCOMPARE(keys, QStringList({QStringLiteral("buttonTheme"), QStringLiteral("layouts.gap")}));
}

void DconfUserDefaultsTest::removingAFolderAroundTheSuiteAnnouncesThatEverythingMayHaveChanged()
{
    Followed followed;
    auto &[defaults, spy] = followed;
    set(defaults, QStringLiteral("key"), true);
    announced(spy);
    dconf({QStringLiteral("reset"), QStringLiteral("-f"), QStringLiteral("/com/vexmoor/")});
    QTRY_COMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first(), QVariant(QString()));
    QVERIFY(!defaults.value(QStringLiteral("key")).isValid());
}

void DconfUserDefaultsTest::aChangeInANeighbouringSuiteIsNotAnnounced()
{
    Followed followed;
    auto &[defaults, spy] = followed;
    DconfUserDefaults neighbour(QStringLiteral("com.vexmoor.corvane2"));
    set(neighbour, QStringLiteral("key"), true);
    dconf({QStringLiteral("reset"), QStringLiteral("-f"), QStringLiteral("/com/vexmoor/corvane2/")});
    QCOMPARE(announced(spy), QStringList());
}

void DconfUserDefaultsTest::anOwnWriteIsAnnouncedOnceAndAtOnce()
{
    Followed followed;
    auto &[defaults, spy] = followed;
    set(defaults, QStringLiteral("buttonTheme"), QStringLiteral("a"));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(announced(spy), QStringList(QStringLiteral("buttonTheme")));
}

void DconfUserDefaultsTest::writingWhatIsStoredAlreadyAnnouncesNothing()
{
    Followed followed;
    auto &[defaults, spy] = followed;
    set(defaults, QStringLiteral("buttonTheme"), QStringLiteral("a"));
    announced(spy);
    set(defaults, QStringLiteral("buttonTheme"), QStringLiteral("a"));
    QCOMPARE(announced(spy), QStringList());
}

void DconfUserDefaultsTest::aChangeByAnotherProcessAfterAnOwnWriteIsAnnounced()
{
    const QString key = QStringLiteral("agent.launchAtLogin");
    Followed followed;
    auto &[defaults, spy] = followed;
    set(defaults, key, true);
    announced(spy);
    writeFromOutside(key, QStringLiteral("false"));
    QTRY_COMPARE(spy.size(), 1);
    QCOMPARE(defaults.value(key), QVariant(false));
}

void DconfUserDefaultsTest::twoSuitesOfOneNameFollowEachOther()
{
    DconfUserDefaults one(suiteName);
    Followed followed;
    auto &[other, spy] = followed;
    set(one, QStringLiteral("key"), 3.0);
    QCOMPARE(other.value(QStringLiteral("key")), QVariant(3.0));
    QCOMPARE(announced(spy), QStringList(QStringLiteral("key")));
}

void DconfUserDefaultsTest::aKeyThatIsNoPathLivesInMemory_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("empty") << QString();
    QTest::newRow("slash first") << QStringLiteral("/a");
    QTest::newRow("slash last") << QStringLiteral("a/");
    QTest::newRow("two slashes") << QStringLiteral("a//b");
    QTest::newRow("zero inside") << QString(QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b"));
}

void DconfUserDefaultsTest::aKeyThatIsNoPathLivesInMemory()
{
    QFETCH(QString, key);
    DconfUserDefaults defaults(suiteName);
    QVERIFY(!defaults.value(key).isValid());
    QSignalSpy spy(&defaults, &UserDefaults::changed);
    defaults.setValue(key, QStringLiteral("kept"));
    QCOMPARE(defaults.value(key), QVariant(QStringLiteral("kept")));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(dconf({QStringLiteral("dump"), suiteFolder}), QString());
}

void DconfUserDefaultsTest::aSuiteWhoseNameIsNoFolderCannotBeOpenedAndLivesInMemory_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("two dots") << QStringLiteral("com..vexmoor");
    QTest::newRow("dot last") << QStringLiteral("com.vexmoor.");
}

void DconfUserDefaultsTest::aSuiteWhoseNameIsNoFolderCannotBeOpenedAndLivesInMemory()
{
    QFETCH(QString, name);
    QVERIFY(!DconfUserDefaults::canOpen(name));
    DconfUserDefaults defaults(name);
    defaults.setValue(QStringLiteral("key"), true);
    QCOMPARE(defaults.value(QStringLiteral("key")), QVariant(true));
    QCOMPARE(dconf({QStringLiteral("dump"), QStringLiteral("/")}), QString());
}

void DconfUserDefaultsTest::processesThatWriteAtTheSameTimeLoseNothing()
{
    QProcess second;
    QProcess third;
    second.start(QCoreApplication::applicationFilePath(),
                 {QStringLiteral("tst_dconfuserdefaults"), QStringLiteral("--write"), QStringLiteral("second")});
    third.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("tst_dconfuserdefaults"), QStringLiteral("--write"), QStringLiteral("third")});
    QVERIFY(second.waitForReadyRead() && third.waitForReadyRead());
    second.write("go\n");
    third.write("go\n");
    writeManyKeys(QStringLiteral("first"));
    for (QProcess *process : {&second, &third}) {
        QTRY_COMPARE(process->state(), QProcess::NotRunning);
        QCOMPARE(process->exitStatus(), QProcess::NormalExit);
        QCOMPARE(process->exitCode(), 0);
    }
    const DconfUserDefaults defaults(suiteName);
    for (int i = 0; i < keysOfOneProcess; ++i) {
        for (const char *prefix : {"first", "second", "third"})
            QCOMPARE(defaults.value(QLatin1String(prefix) + QString::number(i)), QVariant(static_cast<double>(i)));
    }
}

namespace {

// One of the other writers: it says that it is there, waits for the word, and writes.
int writeOnCommand(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    puts("ready");
    fflush(stdout);
    getchar();
    writeManyKeys(QString::fromLocal8Bit(argv[2]));
    return 0;
}

}

static int runDconfUserDefaults(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--write") == 0)
        return writeOnCommand(argc, argv);
    return runInPrivateSession<DconfUserDefaultsTest>(argc, argv);
}

CORVANE_TEST_MAIN(runDconfUserDefaults)

#include "tst_dconfuserdefaults.moc"
