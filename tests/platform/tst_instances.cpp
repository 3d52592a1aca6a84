#include "OtherInstance.h"
#include "ServiceTest.h"

/// What the names of a session promise. Each function has a name of its own: a process holds what it has claimed.
class InstancesTest : public ServiceTest {
    Q_OBJECT
public:
    using ServiceTest::ServiceTest;

private slots:
    void aNameThatNobodyHoldsIsClaimed();
    void aNameIsHeldByOneProcess();
    void theHolderIsAskedForWhatIsWanted_data();
    void theHolderIsAskedForWhatIsWanted();
    void whoRefusesGivesItsNameUp();
    void whereNobodyHoldsTheNameNobodyIsAsked();
    void aRequestReachesTheHandler();
    void aRefusalReachesWhoeverAsked();
    void withoutAHandlerARequestIsDone();
    void whatIsNotInstalledIsNotStarted();

private:
    /// A name that only the running function uses, a different one for each implementation.
    QString name()
    {
        return QStringLiteral("org.example.%1.n%2").arg(QTest::currentTestFunction()).arg(quintptr(&implementation()));
    }
    static Instances &instances() { return platform().instances(); }
};

void InstancesTest::aNameThatNobodyHoldsIsClaimed()
{
    QVERIFY(instances().claim(name()));
}

void InstancesTest::aNameIsHeldByOneProcess()
{
    implementation().hold(name(), Implementation::Answer::Done);
    QVERIFY(!instances().claim(name()));
}

void InstancesTest::theHolderIsAskedForWhatIsWanted_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("argument");
    QTest::newRow("to come to the front") << QString() << QString();
    QTest::newRow("an action") << "guide" << QString();
    QTest::newRow("an action with an argument") << "page"
                                                << "layouts";
}

void InstancesTest::theHolderIsAskedForWhatIsWanted()
{
    QFETCH(QString, action);
    QFETCH(QString, argument);
    implementation().hold(name(), Implementation::Answer::Done);
    const Instances::Request request = {action, argument};
    QVERIFY(instances().ask(name(), request));
    QCOMPARE(implementation().asked(), QList{request});
    QVERIFY(!instances().claim(name()));
}

void InstancesTest::whoRefusesGivesItsNameUp()
{
    implementation().hold(name(), Implementation::Answer::Refused);
    QVERIFY(!instances().claim(name()));
    QVERIFY(!instances().ask(name(), {}));
    QVERIFY(instances().claim(name()));
}

void InstancesTest::whereNobodyHoldsTheNameNobodyIsAsked()
{
    QVERIFY(!instances().ask(name(), {}));
}

void InstancesTest::aRequestReachesTheHandler()
{
    QList<Instances::Request> heard;
    instances().setHandler([&](const Instances::Request &request) {
        heard.append(request);
        return true;
    });
    QVERIFY(instances().claim(name()));
    const Instances::Request request = {"page", "layouts"};
    QVERIFY(implementation().isAsked(name(), request));
    QCOMPARE(heard, QList{request});
}

void InstancesTest::aRefusalReachesWhoeverAsked()
{
    instances().setHandler([](const Instances::Request &) { return false; });
    QVERIFY(instances().claim(name()));
    QVERIFY(!implementation().isAsked(name(), {}));
    implementation().hold(name(), Implementation::Answer::Done);
}

void InstancesTest::withoutAHandlerARequestIsDone()
{
    QVERIFY(instances().claim(name()));
    QVERIFY(implementation().isAsked(name(), {}));
}

void InstancesTest::whatIsNotInstalledIsNotStarted()
{
    std::optional<Instances::Start> outcome;
    instances().start(name(), [&](Instances::Start start) { outcome = start; });
    QTRY_COMPARE(outcome, Instances::Start::notInstalled);
    instances().start(name(), {});
    QVERIFY(instances().claim(name()));
}

static int runInstances(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (!OtherInstance::isMeant(arguments))
        return runOnDesktop<InstancesTest>(argc, argv);
    const QCoreApplication application(argc, argv);
    return OtherInstance::run(arguments);
}

CORVANE_TEST_MAIN(runInstances)

#include "tst_instances.moc"
