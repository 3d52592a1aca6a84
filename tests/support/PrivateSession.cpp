#include "PrivateSession.h"

#include "BusDaemon.h"

#include <QDir>

namespace {

void makeFolder(const QString &folder, const char *variable)
{
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv(variable, folder.toLocal8Bit());
}

}

PrivateSession::PrivateSession()
{
    makeFolder(configFolder(), "XDG_CONFIG_HOME");
    makeFolder(dataFolder(), "XDG_DATA_HOME");
    makeFolder(runtimeFolder(), "XDG_RUNTIME_DIR");
    makeFolder(stateFolder(), "XDG_STATE_HOME");
    makeFolder(m_folder.filePath(QStringLiteral("cache")), "XDG_CACHE_HOME");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("XDG_CURRENT_DESKTOP");
}

PrivateSession::~PrivateSession() = default;

bool PrivateSession::start(const QStringList &services)
{
    m_bus = std::make_unique<BusDaemon>(busSocket(), services);
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->address());
    return !m_bus->address().isEmpty();
}

bool PrivateSession::installService(const QString &file) const
{
    return m_bus->install(file);
}

void PrivateSession::stop()
{
    m_bus.reset();
}
