#include "DconfDatabase.h"
#include "TestProgram.h"

#include <QScopeGuard>
#include <QTemporaryDir>

#include <fstream>

/// Where a program looks for the library that reads the store.
class StoreLibraryTest : public QObject {
    Q_OBJECT

private slots:
    void itLiesInABundleAroundTheProgram_data();
    void itLiesInABundleAroundTheProgram();
    void elsewhereTheLoaderLooks_data();
    void elsewhereTheLoaderLooks();
};

void StoreLibraryTest::itLiesInABundleAroundTheProgram_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("the agent") << QByteArray("MacOS/corvane-agent");
    QTest::newRow("the application") << QByteArray("Helpers/Corvane Settings.app/Contents/MacOS/corvane-settings");
    // A file that was replaced while it runs.
    QTest::newRow("a program that is gone") << QByteArray("MacOS/corvane-agent (deleted)");
}

void StoreLibraryTest::itLiesInABundleAroundTheProgram()
{
    QFETCH(QByteArray, program);
    const QTemporaryDir folder;
    // The name of a folder need not be text.
    const std::filesystem::path nameless = std::filesystem::path(folder.path().toStdString()) / "\xe9";
    const auto remove = qScopeGuard([&nameless] { std::filesystem::remove_all(nameless); });
    const std::filesystem::path contents = nameless / "Corvane.app" / "Contents";
    std::filesystem::create_directories(contents / "Frameworks");
    const std::filesystem::path library = contents / "Frameworks" / "libcorvane-dconf.so";
    std::ofstream(library).close();
    QCOMPARE(DconfDatabase::library(contents / program.toStdString()).string(), library.string());
}

void StoreLibraryTest::elsewhereTheLoaderLooks_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("no bundle") << QByteArray("/usr/bin/corvane-bench");
    QTest::newRow("a bundle without it") << QByteArray("/nowhere/Other.app/Contents/MacOS/other");
    QTest::newRow("nobody knows which program this is") << QByteArray();
}

void StoreLibraryTest::elsewhereTheLoaderLooks()
{
    QFETCH(QByteArray, program);
    QCOMPARE(DconfDatabase::library(program.toStdString()).string(), std::string("libcorvane-dconf.so"));
}

CORVANE_TEST(StoreLibraryTest, runInCore)
#include "tst_storelibrary.moc"
