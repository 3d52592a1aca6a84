#include "LayoutArchive.h"

#include "StateFile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace {

constexpr qsizetype mostKept = 5;

const QString folder = QStringLiteral("layouts/");

QByteArray markOf(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex();
}

QStringList keptNames(const QString &anyFile)
{
    return QDir(QFileInfo(anyFile).path()).entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
}

void keep(const QByteArray &text)
{
    const QString now = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyy-MM-dd-HHmmss-zzz"));
    const StateFile file(folder + now + QStringLiteral(".json"));
    QStringList kept = keptNames(file.path());
    if (!kept.isEmpty() && StateFile(folder + kept.constLast()).read() == text)
        return;
    if (!file.write(text))
        return;
    for (kept = keptNames(file.path()); kept.size() > mostKept; kept.removeFirst())
        StateFile(folder + kept.constFirst()).remove();
}

}

void LayoutArchive::beforeReplacing(const QString &stored, const QString &next)
{
    const StateFile written(folder + QStringLiteral("written"));
    if (written.path().isEmpty())
        return;
    const QByteArray text = stored.toUtf8();
    if (!text.isEmpty() && written.read() != markOf(text))
        keep(text);
    written.write(markOf(next.toUtf8()));
}
