#include "DesktopEntry.h"

#include <QFile>

QString DesktopEntry::value(const QString &path, const QString &key)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    bool isInEntry = false;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        const auto equals = line.indexOf(u'=');
        if (line.startsWith(u'['))
            isInEntry = line == QLatin1String("[Desktop Entry]");
        else if (isInEntry && equals > 0 && QStringView(line).left(equals).trimmed() == key)
            return line.mid(equals + 1).trimmed();
    }
    return {};
}
