#include "LoginItem.h"

#include "DesktopEntry.h"

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
    const QString text = QStringLiteral("\"%1\"").arg(argument.replace(u'%', QStringLiteral("%%")));
    // The file's own escapes are undone before those of the quotes.
    return QString(text).replace(u'\\', QStringLiteral("\\\\"));
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
    if (!QFile::exists(m_path))
        return State::NotRegistered;
    const bool isHidden = DesktopEntry::value(m_path, QStringLiteral("Hidden")) == QLatin1String("true");
    const QString enabled = DesktopEntry::value(m_path, QStringLiteral("X-GNOME-Autostart-enabled"));
    if (isHidden || enabled == QLatin1String("false"))
        return State::NeedsApproval;
    return State::Enabled;
}

void LoginItem::setRegistered(bool registered)
{
    if (!registered) {
        QFile::remove(m_path);
    } else if (state() == State::NotRegistered) {
        QDir().mkpath(autostartFolder());
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
