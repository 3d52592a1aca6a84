#pragma once

#include "FakeAppearance.h"
#include "FakeBundle.h"
#include "FakeDistributedNotificationCenter.h"
#include "FakeInstances.h"
#include "FakeMainQueue.h"
#include "FakeUserDefaults.h"
#include "FakeWindowList.h"
#include "FakeWorkspace.h"
#include "KeyMonitors.h"
#include "Platform.h"

#include <map>

/// A desktop in memory, whose services are public members to look at and to set.
class FakePlatform : public Platform {
public:
    FakePlatform();
    ~FakePlatform() override;

    /// Makes a new one the current platform and returns it; the one before is destroyed.
    static FakePlatform &install();

    FakeBundle main;
    FakeUserDefaults standard;
    FakeDistributedNotificationCenter notifications;
    FakeWorkspace space;
    FakeAppearance look;
    FakeMainQueue queue;
    FakeWindowList windows;
    FakeInstances programs;

    /// A key going down in a window of the application. True when a monitor swallowed it.
    bool pressKey(const KeyDown &key) { return m_keyMonitors.swallow(key); }

    qsizetype keyMonitorCount() const { return m_keyMonitors.count(); }

    /// The bundles that exist beside the main one.
    QList<FakeBundle> bundles;

    /// False: no suite can be opened by name.
    bool suitesCanBeOpened = true;

    /// Where state is kept; empty for nowhere.
    QString state;

    /// The suite of that name, empty until it is written to, and there even while it cannot be opened.
    FakeUserDefaults &suite(const QString &name) { return m_suites[name]; }

    Bundle &mainBundle() override { return main; }
    std::unique_ptr<Bundle> bundle(const QUrl &url) override;
    UserDefaults &standardUserDefaults() override { return standard; }
    UserDefaults *userDefaults(const QString &suiteName) override;
    QString stateFolder() const override { return state; }
    DistributedNotificationCenter &distributedNotificationCenter() override { return notifications; }
    Workspace &workspace() override { return space; }
    Appearance &appearance() override { return look; }
    std::unique_ptr<KeyMonitor> monitorKeyDown(KeyMonitor::Handler handler) override
    {
        return m_keyMonitors.add(std::move(handler));
    }
    MainQueue &mainQueue() override { return queue; }
    WindowList &windowList() override { return windows; }
    Instances &instances() override { return programs; }

private:
    KeyMonitors m_keyMonitors;
    std::map<QString, FakeUserDefaults> m_suites;
};
