#include "ServiceTest.h"

using namespace std::chrono_literals;
using Trouble = UserDefaults::Trouble;

/// What a suite of settings promises.
class UserDefaultsTest : public ServiceTest {
    Q_OBJECT
public:
    using ServiceTest::ServiceTest;

private slots:
    void aValueReadsAsWhatWasStored_data();
    void aValueReadsAsWhatWasStored();
    void anAbsentKeyReadsAsInvalid();
    void aKeyMayHoldDots();
    void aWholeNumberBecomesADouble();
    void aValueOfAnotherTypeIsIgnored();
    void anInvalidValueRemovesTheKey();
    void anOwnChangeIsAnnouncedOnceAndAtOnce();
    void storingWhatIsThereAlreadyAnnouncesNothing();
    void aChangeByAnotherProcessIsAnnounced();
    void aValueOfAnotherTypeByAnotherProcessReadsAsInvalid();
    void aSuiteIsOneObjectApartFromTheOthers();

    void aValueIsStoredWithItsTypeMeanwhile_data() { aValueReadsAsWhatWasStored_data(); }
    void aValueIsStoredWithItsTypeMeanwhile();
    void anActionRunsOnceEverythingBeforeItIsStored();
    void anActionWithNothingToWaitForRunsAtOnce();
    void whatCannotBeStoredIsTakenBackAndNoActionRuns();
    void whatWaitedIsStoredInItsOrderEachFollowedByItsAction();
    void aSecondActionOfTheSameNameIsDropped();
    void aLaterValueTakesThePlaceOfOneThatWaits();
    void choosingWhatIsStoredGivesUpWhatWaits();
    void aChangeByAnotherProcessGivesUpWhatWaits();
    void timeAloneGivesAnotherTry();
    void nobodyWaitsForAStoreThatHangs();
    void aLockedKeyIsNotWritable();
    void aLockedKeyKeepsItsValueAndHoldsUpNoOther();

private:
    /// Waits until it is decided whether what was set is stored.
    static bool finish() { return suite().finishWrites(5s); }
    /// Notes in m_done, once it runs, that name and what another process finds under the key.
    void noteAfterWrites(const QString &name);

    QStringList m_done;
    static UserDefaults &suite() { return *platform().userDefaults(Implementation::suiteName()); }
    const QString m_key = QStringLiteral("agent.accessibilityTrusted");
};

void UserDefaultsTest::aValueReadsAsWhatWasStored_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("true") << QVariant(true);
    QTest::newRow("false") << QVariant(false);
    QTest::newRow("text") << QVariant("classic");
    QTest::newRow("no text") << QVariant("");
    QTest::newRow("symbols") << QVariant(QStringLiteral("⌘ 'ü' 🪟"));
    QTest::newRow("zero") << QVariant(0.0);
    QTest::newRow("number") << QVariant(-12.5);
}

void UserDefaultsTest::aValueReadsAsWhatWasStored()
{
    QFETCH(const QVariant, value);
    suite().setValue(m_key, value);
    QCOMPARE(suite().value(m_key), value);
    QCOMPARE(suite().value(m_key).typeId(), value.typeId());
}

void UserDefaultsTest::anAbsentKeyReadsAsInvalid()
{
    QVERIFY(!suite().value(m_key).isValid());
}

void UserDefaultsTest::aKeyMayHoldDots()
{
    suite().setValue("hotkey.close.disabled", true);
    suite().setValue("hotkey.close", "text");
    QCOMPARE(suite().value("hotkey.close.disabled"), QVariant(true));
    QCOMPARE(suite().value("hotkey.close"), QVariant("text"));
    QVERIFY(!suite().value("hotkey").isValid());
}

void UserDefaultsTest::aWholeNumberBecomesADouble()
{
    suite().setValue(m_key, 12);
    QCOMPARE(suite().value(m_key).typeId(), QMetaType::Double);
    QCOMPARE(suite().value(m_key).toDouble(), 12.0);
}

void UserDefaultsTest::aValueOfAnotherTypeIsIgnored()
{
    suite().setValue(m_key, true);
    QSignalSpy changes(&suite(), &UserDefaults::changed);
    suite().setValue(m_key, QStringList{"a"});
    QCOMPARE(suite().value(m_key), QVariant(true));
    QCOMPARE(changes.size(), 0);
}

void UserDefaultsTest::anInvalidValueRemovesTheKey()
{
    suite().setValue(m_key, true);
    QSignalSpy changes(&suite(), &UserDefaults::changed);
    suite().setValue(m_key, QVariant());
    QVERIFY(!suite().value(m_key).isValid());
    QCOMPARE(changes.size(), 1);
}

void UserDefaultsTest::anOwnChangeIsAnnouncedOnceAndAtOnce()
{
    QSignalSpy changes(&suite(), &UserDefaults::changed);
    suite().setValue(m_key, true);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.constFirst().constFirst(), QVariant(m_key));
}

void UserDefaultsTest::storingWhatIsThereAlreadyAnnouncesNothing()
{
    suite().setValue(m_key, "a");
    QSignalSpy changes(&suite(), &UserDefaults::changed);
    suite().setValue(m_key, "a");
    QCOMPARE(changes.size(), 0);
}

// An empty key says that any may have changed.
void UserDefaultsTest::aChangeByAnotherProcessIsAnnounced()
{
    QVariant announced;
    connect(&suite(), &UserDefaults::changed, this, [&](const QString &key) {
        if (key == m_key || key.isEmpty())
            announced = suite().value(m_key);
    });
    const auto disconnected = qScopeGuard([this] { suite().disconnect(this); });
    implementation().store(m_key, true);
    VERIFY_SOON(announced == QVariant(true));
    implementation().store(m_key, 1.5);
    VERIFY_SOON(announced == QVariant(1.5));
    implementation().store(m_key, QVariant());
    VERIFY_SOON(!announced.isValid());
}

void UserDefaultsTest::aValueOfAnotherTypeByAnotherProcessReadsAsInvalid()
{
    implementation().store(m_key, QStringList{"a", "b"});
    QVERIFY(!suite().value(m_key).isValid());
}

void UserDefaultsTest::aSuiteIsOneObjectApartFromTheOthers()
{
    QCOMPARE(platform().userDefaults(Implementation::suiteName()), &suite());
    suite().setValue(m_key, true);
    QVERIFY(finish());
    QVERIFY(!platform().userDefaults("com.vexmoor.other")->value(m_key).isValid());
    QVERIFY(!platform().standardUserDefaults().value(m_key).isValid());
}

void UserDefaultsTest::noteAfterWrites(const QString &name)
{
    suite().afterWrites(name, [this, name] { m_done.append(name + u' ' + implementation().stored(m_key).toString()); });
}

void UserDefaultsTest::aValueIsStoredWithItsTypeMeanwhile()
{
    QFETCH(const QVariant, value);
    suite().setValue(m_key, value);
    QVERIFY(finish());
    QCOMPARE(implementation().stored(m_key), value);
    QCOMPARE(suite().trouble(), Trouble::none);
}

void UserDefaultsTest::anActionRunsOnceEverythingBeforeItIsStored()
{
    m_done.clear();
    suite().setValue("other", 1.0);
    suite().setValue(m_key, "a");
    noteAfterWrites("first");
    suite().setValue(m_key, "b");
    noteAfterWrites("second");
    QVERIFY(finish());
    QCOMPARE(m_done.size(), 2);
    QVERIFY(m_done.first() == "first a" || m_done.first() == "first b");
    QCOMPARE(m_done.last(), "second b");
}

void UserDefaultsTest::anActionWithNothingToWaitForRunsAtOnce()
{
    m_done.clear();
    noteAfterWrites("first");
    noteAfterWrites("first");
    QCOMPARE(m_done, QStringList({"first ", "first "}));
}

void UserDefaultsTest::whatCannotBeStoredIsTakenBackAndNoActionRuns()
{
    m_done.clear();
    suite().setValue(m_key, "before");
    QVERIFY(finish());
    implementation().setHasRoom(false);
    QSignalSpy changes(&suite(), &UserDefaults::changed);
    QSignalSpy troubles(&suite(), &UserDefaults::troubleChanged);
    suite().setValue(m_key, "after");
    noteAfterWrites("first");
    QVERIFY(!finish());
    QCOMPARE(suite().value(m_key), QVariant("before"));
    QCOMPARE(suite().trouble(), Trouble::noRoom);
    QCOMPARE(troubles.size(), 1);
    QCOMPARE(changes.count(QVariantList{m_key}), 2);
    QVERIFY(m_done.isEmpty());

    implementation().setHasRoom(true);
    QVERIFY(finish());
    QCOMPARE(suite().value(m_key), QVariant("after"));
    QCOMPARE(suite().trouble(), Trouble::none);
    QCOMPARE(troubles.size(), 2);
    QCOMPARE(changes.count(QVariantList{m_key}), 3);
    QCOMPARE(m_done, QStringList("first after"));
}

void UserDefaultsTest::whatWaitedIsStoredInItsOrderEachFollowedByItsAction()
{
    m_done.clear();
    implementation().setHasRoom(false);
    suite().setValue(m_key, "a");
    noteAfterWrites("first");
    suite().setValue("other", 1.0);
    noteAfterWrites("second");
    QVERIFY(!finish());
    implementation().setHasRoom(true);
    // A further value that can be stored is reason to hope.
    suite().setValue("another", 2.0);
    noteAfterWrites("third");
    VERIFY_SOON(m_done.size() == 3);
    QCOMPARE(m_done.filter("first") + m_done.filter("second"), QStringList({"first a", "second a"}));
    QVERIFY(m_done.indexOf("first a") < m_done.indexOf("second a"));
    QCOMPARE(implementation().stored("other"), QVariant(1.0));
    QCOMPARE(suite().trouble(), Trouble::none);
}

// The one that is taken back is announced, and so is the one that is stored in the end: whoever sends a command at each
// change asks three times.
void UserDefaultsTest::aSecondActionOfTheSameNameIsDropped()
{
    m_done.clear();
    implementation().setHasRoom(false);
    connect(&suite(), &UserDefaults::changed, this, [this](const QString &key) {
        if (key == m_key)
            noteAfterWrites("first");
    });
    const auto disconnected = qScopeGuard([this] { suite().disconnect(this); });
    suite().setValue(m_key, "a");
    QVERIFY(!finish());
    QVERIFY(m_done.isEmpty());
    implementation().setHasRoom(true);
    QVERIFY(finish());
    QCOMPARE(m_done, QStringList("first a"));
}

void UserDefaultsTest::aLaterValueTakesThePlaceOfOneThatWaits()
{
    m_done.clear();
    implementation().setHasRoom(false);
    suite().setValue(m_key, "a");
    noteAfterWrites("first");
    QVERIFY(!finish());
    suite().setValue(m_key, "b");
    noteAfterWrites("second");
    QVERIFY(!finish());
    implementation().setHasRoom(true);
    QVERIFY(finish());
    QCOMPARE(m_done, QStringList("second b"));
}

void UserDefaultsTest::choosingWhatIsStoredGivesUpWhatWaits()
{
    suite().setValue(m_key, "before");
    noteAfterWrites("before");
    QVERIFY(finish());
    m_done.clear();
    implementation().setHasRoom(false);
    suite().setValue(m_key, "after");
    noteAfterWrites("first");
    QVERIFY(!finish());
    suite().setValue(m_key, "before");
    QCOMPARE(suite().trouble(), Trouble::none);
    implementation().setHasRoom(true);
    QVERIFY(finish());
    QCOMPARE(implementation().stored(m_key), QVariant("before"));
    QVERIFY(m_done.isEmpty());
}

void UserDefaultsTest::aChangeByAnotherProcessGivesUpWhatWaits()
{
    m_done.clear();
    implementation().setHasRoom(false);
    suite().setValue(m_key, "a");
    noteAfterWrites("first");
    QVERIFY(!finish());
    implementation().setHasRoom(true);
    implementation().store(m_key, "outside");
    VERIFY_SOON(suite().trouble() == Trouble::none);
    QVERIFY(finish());
    QCOMPARE(suite().value(m_key), QVariant("outside"));
    QVERIFY(m_done.isEmpty());
}

void UserDefaultsTest::timeAloneGivesAnotherTry()
{
    suite().setRetryInterval(50ms);
    implementation().setHasRoom(false);
    suite().setValue(m_key, "a");
    QVERIFY(!finish());
    implementation().setHasRoom(true);
    QVERIFY(QTest::qWaitFor([] { return suite().trouble() == Trouble::none; }));
    QCOMPARE(implementation().stored(m_key), QVariant("a"));
}

void UserDefaultsTest::nobodyWaitsForAStoreThatHangs()
{
    m_done.clear();
    implementation().setHangs(true);
    QElapsedTimer time;
    time.start();
    suite().setValue(m_key, "a");
    suite().setValue(m_key, "b");
    noteAfterWrites("first");
    QCOMPARE(suite().value(m_key), QVariant("b"));
    QVERIFY(!suite().finishWrites(100ms));
    QVERIFY(time.elapsed() < 1000);
    QVERIFY(m_done.isEmpty());
    implementation().setHangs(false);
    QVERIFY(finish());
    QCOMPARE(m_done, QStringList("first b"));
}

void UserDefaultsTest::aLockedKeyIsNotWritable()
{
    implementation().lock(m_key);
    QVERIFY(!suite().isWritable(m_key));
    QVERIFY(suite().isWritable("other"));
}

void UserDefaultsTest::aLockedKeyKeepsItsValueAndHoldsUpNoOther()
{
    m_done.clear();
    implementation().lock(m_key);
    suite().setValue(m_key, "a");
    noteAfterWrites("first");
    QVERIFY(finish());
    QVERIFY(!suite().value(m_key).isValid());
    QCOMPARE(suite().trouble(), Trouble::locked);
    suite().setValue("other", 1.0);
    noteAfterWrites("second");
    QVERIFY(finish());
    QCOMPARE(suite().trouble(), Trouble::none);
    QCOMPARE(m_done, QStringList("second "));
}

CORVANE_TEST(UserDefaultsTest, runOnDesktop)

#include "tst_userdefaults.moc"
