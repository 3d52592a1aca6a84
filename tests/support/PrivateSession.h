#pragma once

#include "TestProgram.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <memory>

class BusDaemon;

/// A login session of the test's own: new folders for settings, data, state, caches and run-time files, and a
/// message bus once it is started. The environment of this process is changed to it, so it is made first in
/// main(), before the application object, and one process has one of them. Children inherit it. Everything
/// ends with this object, and with the test however that one ends.
class PrivateSession {
public:
    PrivateSession();
    ~PrivateSession();

    /// Starts the bus. It can start the installed services named in `services` and those that a test puts into
    /// dataFolder()/dbus-1/services, and no others. False when no bus could be started.
    bool start(const QStringList &services = {QStringLiteral("ca.desrt.dconf")});

    /// The bus may also start the service that the file describes, as soon as it has read its configuration again.
    bool installService(const QString &file) const;

    /// Ends the bus. Its address stays in the environment, as it does in a real session, and another one that is
    /// started has the same.
    void stop();

    /// The file through which the bus is spoken to.
    QString busSocket() const { return runtimeFolder() + QStringLiteral("/private-bus"); }

    QString configFolder() const { return m_folder.filePath(QStringLiteral("config")); }
    QString dataFolder() const { return m_folder.filePath(QStringLiteral("data")); }
    QString runtimeFolder() const { return m_folder.filePath(QStringLiteral("run")); }
    QString stateFolder() const { return m_folder.filePath(QStringLiteral("state")); }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<BusDaemon> m_bus;
};

/// The main() of a test that lives in a private session with a bus, and is told of it.
template <typename Test> int runInPrivateSession(int argc, char **argv)
{
    PrivateSession session;
    if (!session.start())
        return 1;
    const QGuiApplication application(argc, argv);
    return runTest<Test>(argc, argv, session);
}
