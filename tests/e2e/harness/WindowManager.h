#pragma once

#include "Program.h"

class Desktop;

/// A window manager on the virtual display. It goes with this object.
class WindowManager {
public:
    WindowManager(const Desktop &desktop, const QString &program);
    ~WindowManager();
    WindowManager(const WindowManager &) = delete;
    WindowManager &operator=(const WindowManager &) = delete;

    /// Waits until it manages windows. False when that takes too long.
    bool start(const QStringList &arguments = {});

private:
    bool isManaging() const;

    const Desktop &m_desktop;
    Program m_program;
};
