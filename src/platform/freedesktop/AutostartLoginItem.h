#pragma once

#include "LoginItem.h"

#include <QFileSystemWatcher>

/// A desktop entry in the autostart folder.
///
/// An entry that waits for the person's approval is there, but hidden; enabling it in the desktop's autostart settings
/// approves it.
class AutostartLoginItem : public LoginItem {
    Q_OBJECT
public:
    /// With `needsApproval` a new registration waits for approval.
    AutostartLoginItem(const Program &program, bool needsApproval);

    /// The person's folder of programs started at login, which may be missing.
    static QString folder();

    State state() const override;
    void setRegistered(bool registered) override;

private:
    void watch();

    Program m_program;
    QString m_path;
    bool m_needsApproval;
    QFileSystemWatcher m_watcher;
};
