#include "DconfProfile.h"

#include <QFile>

#include <algorithm>
#include <unistd.h>

namespace {

const QString defaultDatabase = QStringLiteral("user-db:user");

QString firstLine(QFile &file)
{
    while (!file.atEnd()) {
        const QString description = QString::fromUtf8(file.readLine()).section(u'#', 0, 0).trimmed();
        if (!description.isEmpty())
            return description;
    }
    return {};
}

/// The file of a profile that is named without its folder: the administrator's, else the first that is installed.
QString fileOf(const QString &profile)
{
    const QString administrators = QStringLiteral("/etc/dconf/profile/") + profile;
    const QStringList folders =
        qEnvironmentVariable("XDG_DATA_DIRS", QStringLiteral("/usr/local/share:/usr/share")).split(u':');
    QStringList candidates = {administrators};
    for (const QString &folder : folders)
        candidates.append(folder + QStringLiteral("/dconf/profile/") + profile);
    const auto found =
        std::find_if(candidates.cbegin(), candidates.cend(), [](const QString &file) { return QFile::exists(file); });
    return found != candidates.cend() ? *found : administrators;
}

}

QString DconfProfile::firstDatabase()
{
    QFile mandatory(QStringLiteral("/run/dconf/user/%1").arg(getuid()));
    if (mandatory.open(QFile::ReadOnly))
        return firstLine(mandatory);
    if (qEnvironmentVariableIsSet("DCONF_PROFILE")) {
        const QString named = qEnvironmentVariable("DCONF_PROFILE");
        QFile file(named.startsWith(u'/') ? named : fileOf(named));
        return file.open(QFile::ReadOnly) ? firstLine(file) : QString();
    }
    QFile session(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/dconf/profile"));
    if (session.open(QFile::ReadOnly))
        return firstLine(session);
    QFile user(fileOf(QStringLiteral("user")));
    return user.open(QFile::ReadOnly) ? firstLine(user) : defaultDatabase;
}
