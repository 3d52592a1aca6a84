#pragma once

#include "Appearance.h"
#include "Bundle.h"
#include "DistributedNotificationCenter.h"
#include "UserDefaults.h"
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

    virtual DistributedNotificationCenter &distributedNotificationCenter() = 0;
    virtual Workspace &workspace() = 0;
    virtual Appearance &appearance() = 0;
};
