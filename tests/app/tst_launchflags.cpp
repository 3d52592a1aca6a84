#include "LaunchFlags.h"
#include "TestProgram.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>

/// Flags are read once a process, so each list of arguments is tried in a process of its own.
class TestLaunchFlags : public QObject {
    Q_OBJECT

private slots:
    void flagsAreWholeWords_data();
    void flagsAreWholeWords();
};

void TestLaunchFlags::flagsAreWholeWords_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("flags");
    QTest::newRow("none") << QStringList{} << QByteArray("- - - -");
    QTest::newRow("onboarding") << QStringList{"--onboarding"} << QByteArray("onboarding - - -");
    QTest::newRow("about") << QStringList{"--about"} << QByteArray("- about - -");
    QTest::newRow("both") << QStringList{"--about", "--onboarding"} << QByteArray("onboarding about - -");
    QTest::newRow("among others") << QStringList{"--replay", "x", "--onboarding"}
                                  << QByteArray("onboarding - replay -");
    QTest::newRow("service") << QStringList{"--service"} << QByteArray("- - - service");
    QTest::newRow("another case") << QStringList{"--Onboarding", "--ABOUT"} << QByteArray("- - - -");
    QTest::newRow("with a value") << QStringList{"--onboarding=1", "--about="} << QByteArray("- - - -");
    QTest::newRow("part of it") << QStringList{"--onboard", "-about", "about", "--replays"} << QByteArray("- - - -");
}

void TestLaunchFlags::flagsAreWholeWords()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, flags);
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), QStringList{"tst_launchflags", "print-flags"} + arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput().trimmed(), flags);
}

static int runLaunchFlags(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    LaunchFlags::setArguments(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], "print-flags") == 0) {
        std::printf("%s %s %s %s\n", LaunchFlags::onboarding() ? "onboarding" : "-",
                    LaunchFlags::about() ? "about" : "-", LaunchFlags::replay() ? "replay" : "-",
                    LaunchFlags::service() ? "service" : "-");
        return 0;
    }
    return runTest<TestLaunchFlags>(argc, argv);
}

CORVANE_TEST_MAIN(runLaunchFlags)

#include "tst_launchflags.moc"
