#include "ServiceTest.h"

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

private:
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
    QVERIFY(!platform().userDefaults("com.vexmoor.other")->value(m_key).isValid());
    QVERIFY(!platform().standardUserDefaults().value(m_key).isValid());
}

CORVANE_TEST(UserDefaultsTest, runOnDesktop)

#include "tst_userdefaults.moc"
