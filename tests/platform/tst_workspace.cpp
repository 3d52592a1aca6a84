#include "ServiceTest.h"

/// What the desktop around the application promises, as far as every desktop can.
class WorkspaceTest : public ServiceTest {
    Q_OBJECT
public:
    using ServiceTest::ServiceTest;

private slots:
    void theCompletionComesOnceAndAfterTheCall();
    void anUnknownApplicationHasNoIcon();
    void everyFileHasAnIcon();
    void whatTheDesktopDoesNotHaveDoesNotHappen();
};

void WorkspaceTest::theCompletionComesOnceAndAfterTheCall()
{
    int completions = 0;
    for (const QUrl &url : {implementation().makeBundle({}, {}), QUrl("file:///nonexistent.app"), QUrl()}) {
        completions = 0;
        platform().workspace().openApplication(url, {"--about"}, [&] {
            QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
            ++completions;
        });
        QCOMPARE(completions, 0);
        VERIFY_SOON(completions > 0);
        QCOMPARE(completions, 1);
    }
}

void WorkspaceTest::anUnknownApplicationHasNoIcon()
{
    QVERIFY(platform().workspace().iconForApplication("org.example.unknown").isNull());
    QVERIFY(platform().workspace().iconForApplication("").isNull());
}

void WorkspaceTest::everyFileHasAnIcon()
{
    for (const QString &path : {implementation().makeBundle({}, {}).toLocalFile(), QString("/nonexistent"), QString()})
        QVERIFY(!platform().workspace().iconForFile(path).pixmap(32, 32).isNull());
}

void WorkspaceTest::whatTheDesktopDoesNotHaveDoesNotHappen()
{
    QWindow window;
    platform().workspace().open(QUrl());
    platform().workspace().openMissionControl();
    platform().workspace().floatOnAllSpaces(window);
    QVERIFY(!window.isVisible());
}

CORVANE_TEST(WorkspaceTest, runOnDesktop)

#include "tst_workspace.moc"
