#pragma once

#include <QFileSystemWatcher>
#include <QObject>

/// The agent's entry among the programs the desktop starts at login: a desktop entry in the autostart folder.
///
/// An entry that waits for the person's approval is there, but hidden; enabling it in the desktop's autostart
/// settings approves it.
class LoginItem : public QObject {
    Q_OBJECT
public:
    enum class State { NotRegistered, NeedsApproval, Enabled };

    /// `executable` is what the desktop starts. With `needsApproval` a new registration waits for approval.
    LoginItem(const QString &executable, bool needsApproval, QObject *parent = nullptr);

    State state() const;
    void setRegistered(bool registered);

signals:
    /// The entry was changed, by this process or by the desktop's settings.
    void changed();

private:
    void watch();

    QString m_executable;
    QString m_path;
    bool m_needsApproval;
    QFileSystemWatcher m_watcher;
};
