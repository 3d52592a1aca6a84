#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/// A message bus of the test's own. It ends with this object, and with the test process however that one ends.
class BusDaemon {
public:
    /// The bus may start the installed session services named in `services`, such as "ca.desrt.dconf", and those in the
    /// folder for data that the environment names, but no others: what else is installed on the machine cannot answer
    /// in a test. They get the environment this process has now.
    /// It listens at the file `socket`.
    BusDaemon(const QString &socket, const QStringList &services);
    ~BusDaemon();

    /// Empty when no bus could be started.
    QByteArray address() const { return m_address; }

    /// The bus may also start the service that the file describes, as soon as it has read its configuration again.
    bool install(const QString &serviceFile) const;

private:
    QString servicesFolder() const { return m_folder.filePath(QStringLiteral("services")); }
    bool writeConfiguration(const QString &socket, const QStringList &services) const;

    QTemporaryDir m_folder;
    QProcess m_daemon;
    QByteArray m_address;
};
