#include "LayoutArchive.h"

#include "Shared.h"
#include "StateFile.h"
#include "UserDefaults.h"

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

StateFile lastOwn()
{
    return StateFile(folder + QStringLiteral("written"));
}

}

void LayoutArchive::keep(const QVariant &stored)
{
    const QByteArray text = stored.typeId() == QMetaType::QString ? stored.toString().toUtf8() : QByteArray();
    if (text.isEmpty() || lastOwn().read() == markOf(text))
        return;
    const QString now = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyy-MM-dd-HHmmss-zzz"));
    const StateFile file(folder + now + QStringLiteral(".json"));
    if (file.path().isEmpty())
        return;
    QStringList kept = keptNames(file.path());
    if (!kept.isEmpty() && StateFile(folder + kept.constLast()).read() == text)
        return;
    if (!file.write(text))
        return;
    for (kept = keptNames(file.path()); kept.size() > mostKept; kept.removeFirst())
        StateFile(folder + kept.constFirst()).remove();
}

void LayoutArchive::beforeReplacing(const QString &key, const UserDefaults &store)
{
    if (key == Shared::Key::layoutsSaved)
        keep(store.value(key));
}

void LayoutArchive::noteOwn(const QString &text)
{
    lastOwn().write(markOf(text.toUtf8()));
}
