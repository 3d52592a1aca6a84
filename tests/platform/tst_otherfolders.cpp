#include "DconfService.h"
#include "DconfUserDefaults.h"
#include "OutsideStore.h"
#include "PrivateSession.h"
#include "TestProgram.h"

using namespace std::chrono_literals;
using Trouble = UserDefaults::Trouble;

namespace {

QByteArray variable()
{
    return qgetenv("CORVANE_OTHER_FOLDER");
}

}

/// A process, started by hand or from another session, with other folders than the service has that stores its
/// settings.
class OtherFoldersTest : public QObject {
    Q_OBJECT
private slots:
    void whatIsStoredWhereItIsReadCountsAndNothingElseDoes();
    void aChangeByAnotherProcessIsRead();
};

void OtherFoldersTest::whatIsStoredWhereItIsReadCountsAndNothingElseDoes()
{
    const bool isSameDatabase = variable() == "XDG_RUNTIME_DIR";
    bool isAnnounced = false;
    DconfUserDefaults defaults(suiteName);
    QVERIFY(!defaults.value(QStringLiteral("key")).isValid());
    defaults.setValue(QStringLiteral("key"), true);
    defaults.afterWrites(QStringLiteral("command"), [&] { isAnnounced = true; });
    QCOMPARE(defaults.finishWrites(5s), isSameDatabase);
    QCOMPARE(defaults.value(QStringLiteral("key")), isSameDatabase ? QVariant(true) : QVariant());
    QCOMPARE(defaults.trouble(), isSameDatabase ? Trouble::none : Trouble::unknown);
    QCOMPARE(isAnnounced, isSameDatabase);
}

void OtherFoldersTest::aChangeByAnotherProcessIsRead()
{
    if (variable() != "XDG_RUNTIME_DIR")
        QSKIP("it is stored elsewhere");
    DconfUserDefaults defaults(suiteName);
    defaults.setValue(QStringLiteral("key"), true);
    QVERIFY(defaults.finishWrites(5s));
    writeFromOutside(QStringLiteral("key"), QStringLiteral("false"));
    QTRY_COMPARE(defaults.value(QStringLiteral("key")), QVariant(false));
}

static int runOtherFolders(int argc, char **argv)
{
    PrivateSession session;
    if (!session.start())
        return 1;
    // The service starts with the folders of the session, and this process changes one of its own.
    dconf({QStringLiteral("write"), QStringLiteral("/com/vexmoor/other"), QStringLiteral("true")});
    const QTemporaryDir other;
    qputenv(variable().constData(), other.path().toLocal8Bit());
    const QGuiApplication application(argc, argv);
    return runTest<OtherFoldersTest>(argc, argv);
}

CORVANE_TEST_MAIN(runOtherFolders)

#include "tst_otherfolders.moc"
