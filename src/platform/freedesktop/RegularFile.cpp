#include "RegularFile.h"

#include <QFile>
#include <QFileInfo>

bool RegularFile::isUpTo(qint64 largest, const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() <= largest;
}

std::optional<QByteArray> RegularFile::read(const QString &path, qint64 largest)
{
    QFile file(path);
    if (!isUpTo(largest, path) || !file.open(QFile::ReadOnly))
        return std::nullopt;
    return file.read(file.size());
}
