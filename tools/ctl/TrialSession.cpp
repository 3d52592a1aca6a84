#include "TrialSession.h"

#include <QDir>

namespace {

constexpr int patience = 10000; // milliseconds

}

TrialSession::TrialSession()
{
    for (const char *variable :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"}) {
        const QString folder = m_folder.filePath(QString::fromLatin1(variable));
        QDir().mkpath(folder);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(variable, folder.toLocal8Bit());
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(m_folder.filePath(QStringLiteral("bus"))));
    m_isValid = startBus();
}

TrialSession::~TrialSession()
{
    stopBus();
}

bool TrialSession::restartBus()
{
    stopBus();
    return startBus();
}

bool TrialSession::startBus()
{
    m_bus.start(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
                 QStringLiteral("--address=") + qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS")});
    while (!m_bus.canReadLine() && m_bus.waitForReadyRead(patience)) { }
    return !m_bus.readLine().trimmed().isEmpty();
}

void TrialSession::stopBus()
{
    m_bus.terminate();
    if (!m_bus.waitForFinished(patience))
        m_bus.kill();
    m_bus.waitForFinished(patience);
}
