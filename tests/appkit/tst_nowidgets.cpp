#include "EndToEndTest.h"
#include "TestProgram.h"

#include <QFile>

using namespace Qt::StringLiterals;

/// The widgets of the kit are not for this application: it neither links nor loads the library behind them.
class TestNoWidgets : public EndToEndTest {
    Q_OBJECT

private:
    /// Every file that the program has in its memory.
    QByteArray loadedFiles() const
    {
        QFile maps(u"/proc/%1/maps"_s.arg(program().processId()));
        return maps.open(QIODevice::ReadOnly) ? maps.readAll() : QByteArray();
    }

private slots:
    void theProgramRunsWithoutTheWidgetsLibrary()
    {
        QVERIFY(open());
        const QByteArray files = loadedFiles();
        QVERIFY(files.contains("libQt6Quick.so"));
        QVERIFY(!files.contains("libQt6Widgets"));
    }
};

CORVANE_TEST(TestNoWidgets, runInCore)
#include "tst_nowidgets.moc"
