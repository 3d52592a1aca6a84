#include "FailureReport.h"

#include "Accessible.h"
#include "Program.h"
#include "Screen.h"

#include <QDir>
#include <QTest>

namespace {

void writeText(const QString &path, const QString &text)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(text.toUtf8());
}

QString testName()
{
    QString name = QCoreApplication::applicationName() + u'/' + QLatin1String(QTest::currentTestFunction());
    if (const char *row = QTest::currentDataTag())
        name += u'-' + QString::fromUtf8(row).replace(u'/', u'_');
    return name;
}

}

QString writeFailureReport(const Screen &screen, const Accessible &root, const Program *program)
{
    const QString folder = QStringLiteral(CORVANE_FAILURES_FOLDER "/") + testName();
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    screen.picture().save(folder + QStringLiteral("/screen.png"));
    writeText(folder + QStringLiteral("/tree.txt"), root.dump());
    if (program) {
        writeText(folder + QStringLiteral("/stderr.txt"), program->standardError().join(u'\n'));
        writeText(folder + QStringLiteral("/stdout.txt"), program->standardOutput().join(u'\n'));
    }
    return folder;
}
