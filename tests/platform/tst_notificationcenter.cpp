#include "ServiceTest.h"

/// What notices between processes promise.
class NotificationCenterTest : public ServiceTest {
    Q_OBJECT
public:
    using ServiceTest::ServiceTest;

private slots:
    void everyObserverHearsWhatIsPosted();
    void anObserverHearsItsOwnNameAlone();
    void anObserverHearsNothingAfterItsContextIsGone();
    void whatNobodyHearsIsLost();
    void itIsAvailableInASession();

private:
    static DistributedNotificationCenter &center() { return platform().distributedNotificationCenter(); }
    const QString m_name = QStringLiteral("com.vexmoor.corvane.command");
};

void NotificationCenterTest::everyObserverHearsWhatIsPosted()
{
    QObject context;
    QList<QVariantMap> one;
    QList<QVariantMap> two;
    center().observe(m_name, &context, [&](const QVariantMap &userInfo) { one.append(userInfo); });
    center().observe(m_name, &context, [&](const QVariantMap &userInfo) { two.append(userInfo); });
    const QVariantMap sent = {{"command", "setLaunchAtLogin"}, {"value", false}};
    center().post(m_name, sent);
    VERIFY_SOON(one.size() == 1 && two.size() == 1);
    QCOMPARE(one.constFirst(), sent);
    QCOMPARE(two.constFirst(), sent);
    QCOMPARE(one.constFirst().value("value").typeId(), QMetaType::Bool);
    QCOMPARE(one.constFirst().value("command").typeId(), QMetaType::QString);
}

void NotificationCenterTest::anObserverHearsItsOwnNameAlone()
{
    QObject context;
    QStringList heard;
    center().observe(m_name, &context, [&](const QVariantMap &userInfo) { heard << userInfo.value("n").toString(); });
    center().post("com.vexmoor.corvane.other", {{"n", "other"}});
    center().post(m_name, {{"n", "own"}});
    VERIFY_SOON(!heard.isEmpty());
    QCOMPARE(heard, QStringList("own"));
}

void NotificationCenterTest::anObserverHearsNothingAfterItsContextIsGone()
{
    auto gone = std::make_unique<QObject>();
    QObject context;
    int before = 0;
    int after = 0;
    center().observe(m_name, gone.get(), [&](const QVariantMap &) { ++before; });
    center().observe(m_name, &context, [&](const QVariantMap &) { ++after; });
    gone.reset();
    center().post(m_name, {});
    VERIFY_SOON(after == 1);
    QCOMPARE(before, 0);
}

void NotificationCenterTest::whatNobodyHearsIsLost()
{
    QObject context;
    QStringList heard;
    center().post(m_name, {{"n", "early"}});
    center().observe(m_name, &context, [&](const QVariantMap &userInfo) { heard << userInfo.value("n").toString(); });
    center().post(m_name, {{"n", "late"}});
    VERIFY_SOON(!heard.isEmpty());
    QCOMPARE(heard, QStringList("late"));
}

void NotificationCenterTest::itIsAvailableInASession()
{
    QVERIFY(center().isAvailable());
}

CORVANE_TEST(NotificationCenterTest, runOnDesktop)

#include "tst_notificationcenter.moc"
