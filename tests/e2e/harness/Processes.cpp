#include "Processes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

QByteArray content(qint64 process, const char *file)
{
    QFile source(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(file)));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

qint64 parentOf(qint64 process)
{
    // The name in brackets may itself hold brackets and spaces; the state and the parent follow it.
    const QByteArray status = content(process, "stat");
    return status.mid(status.lastIndexOf(')') + 2).split(' ').value(1).toLongLong();
}

QList<qint64> descendants()
{
    QMultiHash<qint64, qint64> children;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &entry : entries) {
        bool isNumber = false;
        const qint64 id = entry.toLongLong(&isNumber);
        if (isNumber)
            children.insert(parentOf(id), id);
    }
    QList<qint64> found = children.values(getpid());
    for (qsizetype i = 0; i < found.size(); ++i)
        found += children.values(found.at(i));
    return found;
}

QStringList argumentsOf(qint64 process)
{
    const QStringList given = QString::fromUtf8(content(process, "cmdline")).split(QChar::Null);
    // The program stands first, and every argument ends with a null.
    return given.sliced(qMin(1, given.size()), qMax(0, given.size() - 2));
}

}

void Processes::adoptOrphans()
{
    prctl(PR_SET_CHILD_SUBREAPER, 1);
}

QList<Processes::Process> Processes::instancesOf(const QString &executable)
{
    const QString wanted = QFileInfo(executable).canonicalFilePath();
    QList<Process> found;
    const QList<qint64> candidates = descendants();
    for (const qint64 id : candidates) {
        if (QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(id)) == wanted)
            found.append({id, argumentsOf(id)});
    }
    return found;
}

void Processes::endAll()
{
    const QList<qint64> left = descendants();
    for (const qint64 id : left)
        kill(pid_t(id), SIGKILL);
}
