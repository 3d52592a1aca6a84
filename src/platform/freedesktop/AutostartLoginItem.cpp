#include "AutostartLoginItem.h"

#include "DesktopEntry.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

AutostartLoginItem::AutostartLoginItem(const Program &program, bool needsApproval)
    : m_program(program),
      m_path(folder() + u'/' + program.identifier + QStringLiteral(".desktop")),
      m_needsApproval(needsApproval)
{
    QDir().mkpath(folder());
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &AutostartLoginItem::watch);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &AutostartLoginItem::watch);
    watch();
}

QString AutostartLoginItem::folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/autostart");
}

LoginItem::State AutostartLoginItem::state() const
{
    if (!QFile::exists(m_path))
        return State::NotRegistered;
    const bool isHidden = DesktopEntry::boolean(m_path, "Hidden") == true;
    const bool isSwitchedOff = DesktopEntry::boolean(m_path, "X-GNOME-Autostart-enabled") == false;
    return isHidden || isSwitchedOff ? State::NeedsApproval : State::Enabled;
}

void AutostartLoginItem::setRegistered(bool registered)
{
    if (!registered) {
        QFile::remove(m_path);
    } else if (state() == State::NotRegistered) {
        QDir().mkpath(folder());
        DesktopEntry::write(m_path, m_program.name, m_program.executable, m_needsApproval);
    }
    watch();
}

void AutostartLoginItem::watch()
{
    // A file that was replaced drops out of the watcher, so both are named again each time.
    m_watcher.addPath(folder());
    if (QFile::exists(m_path))
        m_watcher.addPath(m_path);
    emit changed();
}
