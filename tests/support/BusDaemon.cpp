#include "BusDaemon.h"

#include "ChildProcess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

constexpr const char *configuration =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%3</listen>
  <auth>EXTERNAL</auth>
  <servicedir>%1/services</servicedir>
  <servicedir>%2</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

}

BusDaemon::BusDaemon(const QString &socket, const QStringList &services)
{
    ChildProcess::endWithThisProcess(m_daemon);
    if (!writeConfiguration(socket, services))
        return;
    const QString file = QStringLiteral("--config-file=") + m_folder.filePath(QStringLiteral("bus.conf"));
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {file, QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
    // The rest is the mark of this daemon, which would keep others from taking its place.
    m_address = ChildProcess::firstLine(m_daemon).split(',').first();
}

BusDaemon::~BusDaemon()
{
    ChildProcess::stop(m_daemon);
}

bool BusDaemon::install(const QString &serviceFile) const
{
    const QString link = servicesFolder() + u'/' + QFileInfo(serviceFile).fileName();
    QFile::remove(link);
    return QFile::link(serviceFile, link);
}

bool BusDaemon::writeConfiguration(const QString &socket, const QStringList &services) const
{
    const QString folder = servicesFolder();
    bool complete = QDir().mkpath(folder);
    for (const QString &service : services) {
        const QString name = service + QStringLiteral(".service");
        const QString installed =
            QStandardPaths::locate(QStandardPaths::GenericDataLocation, QStringLiteral("dbus-1/services/") + name);
        complete = complete && QFile::link(installed, folder + u'/' + name);
    }
    const QString own =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/dbus-1/services");
    QFile file(m_folder.filePath(QStringLiteral("bus.conf")));
    return complete && file.open(QIODevice::WriteOnly)
        && file.write(QString::fromLatin1(configuration).arg(m_folder.path(), own, socket).toUtf8()) > 0;
}
