#pragma once

#include "Appearance.h"
#include "Bundle.h"
#include "DistributedNotificationCenter.h"
#include "Instances.h"
#include "KeyMonitor.h"
#include "MainQueue.h"
#include "UserDefaults.h"
#include "WindowList.h"
#include "Workspace.h"

#include <memory>

/// The services of the desktop this process runs on. Installed once, before anything else is made.
class Platform {
public:
    virtual ~Platform() = default;

    static Platform &current();
    static void install(std::unique_ptr<Platform> platform);

    /// The bundle this executable lies in.
    virtual Bundle &mainBundle() = 0;

    /// The bundle in the folder `url`; null when there is no such folder.
    virtual std::unique_ptr<Bundle> bundle(const QUrl &url) = 0;

    /// The settings of this application alone.
    virtual UserDefaults &standardUserDefaults() = 0;

    /// The suite of that name; null when it cannot be opened.
    virtual UserDefaults *userDefaults(const QString &suiteName) = 0;

    /// The folder for what this application keeps for itself alone, which need not exist yet; empty when there is none.
    virtual QString stateFolder() const = 0;

    virtual DistributedNotificationCenter &distributedNotificationCenter() = 0;
    virtual Workspace &workspace() = 0;
    virtual Appearance &appearance() = 0;

    /// Calls `handler`, which must not be empty, for the key-down events of this application's windows while the
    /// returned monitor lives. Of several monitors the newest is asked first.
    virtual std::unique_ptr<KeyMonitor> monitorKeyDown(KeyMonitor::Handler handler) = 0;

    /// Delayed and repeated actions on the main thread.
    virtual MainQueue &mainQueue() = 0;

    /// What is on the screen.
    virtual WindowList &windowList() = 0;

    /// The other programs of the session.
    virtual Instances &instances() = 0;
};
