#include "TestProgram.h"
#include "ViewEngine.h"

#include <QProcess>
#include <QTemporaryDir>

namespace {

const char *const viewToMake = "VIEW_TO_MAKE";

}

/// What becomes of a process whose view cannot be made: the test runs itself as that process.
class ViewEngineTest : public QObject {
    Q_OBJECT
private slots:
    void aViewThatCannotBeMadeEndsTheProcessWithTheReason_data();
    void aViewThatCannotBeMadeEndsTheProcessWithTheReason();
    void aViewThatCanBeMadeDoesNot();

private:
    struct End {
        bool isCrash;
        QString reason;
    };
    End make(const QByteArray &view) const;
};

ViewEngineTest::End ViewEngineTest::make(const QByteArray &view) const
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("View.qml"));
    if (!view.isEmpty())
        REQUIRE(file.open(QFile::WriteOnly) && file.write(view) == view.size() && file.flush());
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(viewToMake, QUrl::fromLocalFile(file.fileName()).toString());
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {"tst_viewengine"});
    REQUIRE(process.waitForFinished());
    return {process.exitStatus() == QProcess::CrashExit, process.readAllStandardError()};
}

void ViewEngineTest::aViewThatCannotBeMadeEndsTheProcessWithTheReason_data()
{
    QTest::addColumn<QByteArray>("view");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no file") << QByteArray() << "View.qml:-1 No such file or directory";
    QTest::newRow("no QML") << QByteArray("import QtQuick\nItem {") << "View.qml:2 Expected token `}'";
    QTest::newRow("an unknown type inside")
        << QByteArray("import QtQuick\nItem { Nothing { } }") << "View.qml:2 Nothing is not a type";
    QTest::newRow("a property that is missing") << QByteArray("import QtQuick\nItem { required property int size }")
                                                << "Required property size was not initialized";
    QTest::newRow("no item") << QByteArray("import QtQml\nQtObject { }") << "View.qml is no QQuickItem";
}

void ViewEngineTest::aViewThatCannotBeMadeEndsTheProcessWithTheReason()
{
    QFETCH(QByteArray, view);
    QFETCH(QString, reason);
    const End end = make(view);
    QVERIFY2(end.reason.contains(reason), qPrintable(end.reason));
    QVERIFY(end.isCrash);
}

void ViewEngineTest::aViewThatCanBeMadeDoesNot()
{
    const End end = make("import QtQuick\nItem { }");
    QVERIFY2(!end.isCrash, qPrintable(end.reason));
}

namespace {

int runViewEngineTest(int argc, char **argv)
{
    const QString view = qEnvironmentVariable(viewToMake);
    if (view.isEmpty())
        return runInGui<ViewEngineTest>(argc, argv);
    const QGuiApplication application(argc, argv);
    ViewEngine engine;
    delete ViewEngine::make(engine, view);
    return 0;
}

}

CORVANE_TEST_MAIN(runViewEngineTest)
#include "tst_viewengine.moc"
