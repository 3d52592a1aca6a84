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
    m_bus.start(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
    while (!m_bus.canReadLine() && m_bus.waitForReadyRead(patience)) { }
    const QByteArray address = m_bus.readLine().trimmed();
    m_isValid = !address.isEmpty();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

TrialSession::~TrialSession()
{
    m_bus.terminate();
    if (!m_bus.waitForFinished(patience))
        m_bus.kill();
    m_bus.waitForFinished(patience);
}
