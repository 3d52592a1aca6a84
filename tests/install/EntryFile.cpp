#include "EntryFile.h"

#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

EntryFile::EntryFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return;
    QString group;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (line.startsWith(u'['))
            group = line.mid(1).chopped(1);
        else
            m_values.insert(group + u'/' + line.section(u'=', 0, 0), line.section(u'=', 1));
    }
}

QString EntryFile::value(const QString &key, const QString &action) const
{
    const QString group = action.isEmpty() ? u"Desktop Entry"_s : u"Desktop Action "_s + action;
    return m_values.value(group + u'/' + key);
}

QStringList EntryFile::command(const QString &action) const
{
    return QProcess::splitCommand(value(u"Exec"_s, action)).replaceInStrings(u"%%"_s, u"%"_s);
}
