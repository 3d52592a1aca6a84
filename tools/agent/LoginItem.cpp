#include "LoginItem.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

QString autostartFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/autostart");
}

/// An argument as the Exec key of a desktop entry quotes it.
QString quoted(QString argument)
{
    for (const QChar special : QStringLiteral("\\\"`$"))
        argument.replace(special, QStringLiteral("\\") + special);
    return QStringLiteral("\"%1\"").arg(argument.replace(u'%', QStringLiteral("%%")));
}

/// Whether a line of a desktop entry keeps it from being started.
bool isOff(const QByteArray &line)
{
    const auto equals = line.indexOf('=');
    const QByteArray key = line.left(equals).trimmed();
    const QByteArray value = line.mid(equals + 1).trimmed();
    return (key == "Hidden" && value == "true") || (key == "X-GNOME-Autostart-enabled" && value == "false");
}

}

LoginItem::LoginItem(const QString &executable, bool needsApproval, QObject *parent)
    : QObject(parent),
      m_executable(executable),
      m_path(autostartFolder() + QStringLiteral("/com.vexmoor.corvane.desktop")),
      m_needsApproval(needsApproval)
{
    QDir().mkpath(autostartFolder());
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &LoginItem::watch);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &LoginItem::watch);
    watch();
}

LoginItem::State LoginItem::state() const
{
    QFile entry(m_path);
    if (!entry.open(QIODevice::ReadOnly))
        return State::NotRegistered;
    while (!entry.atEnd()) {
        if (isOff(entry.readLine()))
            return State::NeedsApproval;
    }
    return State::Enabled;
}

void LoginItem::setRegistered(bool registered)
{
    if (!registered) {
        QFile::remove(m_path);
    } else if (state() == State::NotRegistered) {
        QSaveFile entry(m_path);
        if (!entry.open(QIODevice::WriteOnly))
            return;
        const QString text =
            QStringLiteral("[Desktop Entry]\nType=Application\nName=Corvane\nExec=%1\n%2")
                .arg(quoted(m_executable), m_needsApproval ? QStringLiteral("Hidden=true\n") : QString());
        entry.write(text.toUtf8());
        entry.commit();
    }
    watch();
}

void LoginItem::watch()
{
    // A file that was replaced drops out of the watcher, so both are named again each time.
    m_watcher.addPath(autostartFolder());
    if (QFile::exists(m_path))
        m_watcher.addPath(m_path);
    emit changed();
}
