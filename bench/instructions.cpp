#include "Process.h"
#include "Screen.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextStream>

#include <cmath>
#include <thread>

using namespace std::chrono;

namespace {

constexpr QRgb paper = qRgb(0xF7, 0xF6, 0xF2);
constexpr int probe = 140;
/// What a start may differ from the number in the repository, as a share of it.
constexpr double tolerance = 0.03;

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Instructions that the program executes until its window is shown and nothing more happens.
double instructionsOfStart(const QString &program)
{
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("log"));
    Screen screen;
    Process process(QStringLiteral("/usr/bin/valgrind"),
                    {QStringLiteral("--tool=cachegrind"), QStringLiteral("--cache-sim=no"),
                     QStringLiteral("--cachegrind-out-file=/dev/null"), QStringLiteral("--log-file=") + log, program});
    if (!screen.waitForColor(paper, probe, seconds(120)))
        qFatal("the program painted no window in time");
    std::this_thread::sleep_for(seconds(3));
    process.terminate();
    static const QRegularExpression line(QStringLiteral("I +refs: +([0-9,]+)"));
    return line.match(QString::fromUtf8(content(log))).captured(1).remove(QLatin1Char(',')).toDouble();
}

}

/// Holds the instructions of a start against the number in a file. They hardly depend on what else the machine does, so
/// that a start that has become dearer shows where no time could be measured.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() != 2)
        qFatal("usage: corvane-bench-instructions APPLICATION FILE-WITH-THE-NUMBER");
    const double expected = content(arguments.at(1)).trimmed().toDouble();
    const double found = instructionsOfStart(arguments.at(0));
    QTextStream(stdout) << QStringLiteral("instructions of a start  %1  expected %2  difference %3 %\n")
                               .arg(found, 0, 'f', 0)
                               .arg(expected, 0, 'f', 0)
                               .arg(100 * (found / expected - 1), 0, 'f', 2);
    return std::abs(found / expected - 1) <= tolerance ? 0 : 1;
}
