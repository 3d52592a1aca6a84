#include "DconfService.h"

#include "Require.h"
#include "Tool.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDir>
#include <QFile>

#include <csignal>
#include <sys/resource.h>

namespace {

void write(const QString &name, const QString &content)
{
    QFile file(name);
    REQUIRE(file.open(QFile::WriteOnly));
    file.write(content.toUtf8());
}

}

pid_t DconfService::process()
{
    const QString service = QStringLiteral("ca.desrt.dconf");
    QDBusConnectionInterface *bus = QDBusConnection::sessionBus().interface();
    bus->startService(service);
    const QDBusReply<uint> process = bus->servicePid(service);
    REQUIRE(process.isValid());
    return pid_t(process.value());
}

void DconfService::setHasRoom(bool hasRoom)
{
    rlimit limit = {};
    REQUIRE(prlimit(process(), RLIMIT_FSIZE, nullptr, &limit) == 0);
    limit.rlim_cur = hasRoom ? limit.rlim_max : 0;
    REQUIRE(prlimit(process(), RLIMIT_FSIZE, &limit, nullptr) == 0);
}

void DconfService::setHangs(bool hangs)
{
    REQUIRE(kill(process(), hangs ? SIGSTOP : SIGCONT) == 0);
}

QString DconfService::makeLock(const QString &path, const QString &folder)
{
    const QString locks = folder + QStringLiteral("/keys/locks");
    const QString database = folder + QStringLiteral("/database");
    const QString profile = folder + QStringLiteral("/profile");
    REQUIRE(QDir().mkpath(locks));
    write(locks + QStringLiteral("/locked"), path + u'\n');
    outputOf(QStringLiteral("dconf"), {QStringLiteral("compile"), database, folder + QStringLiteral("/keys")});
    write(profile, QStringLiteral("user-db:user\nfile-db:%1\n").arg(database));
    return profile;
}
