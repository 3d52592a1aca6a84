#include "FreedesktopPlatform.h"

#include "DBusInstances.h"
#include "DBusNotificationCenter.h"
#include "DconfUserDefaults.h"
#include "FreedesktopWorkspace.h"
#include "KeyDownFilter.h"
#include "PlistBundle.h"
#include "PortalAppearance.h"
#include "SessionBus.h"
#include "X11WindowList.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <map>

namespace {

class FreedesktopPlatform : public Platform {
public:
    Bundle &mainBundle() override { return plistBundle(); }
    std::unique_ptr<Bundle> bundle(const QUrl &url) override;
    UserDefaults &standardUserDefaults() override;
    UserDefaults *userDefaults(const QString &suiteName) override;
    QString stateFolder() const override;
    DistributedNotificationCenter &distributedNotificationCenter() override { return m_notifications; }
    Workspace &workspace() override;
    Appearance &appearance() override;
    std::unique_ptr<KeyMonitor> monitorKeyDown(KeyMonitor::Handler handler) override;
    MainQueue &mainQueue() override { return m_mainQueue; }
    WindowList &windowList() override { return m_windows; }
    Instances &instances() override { return m_instances; }

private:
    PlistBundle &plistBundle();
    UserDefaults &suite(const QString &name);

    std::optional<PlistBundle> m_mainBundle;
    std::map<QString, DconfUserDefaults> m_suites;
    DBusNotificationCenter m_notifications;
    MainQueue m_mainQueue;
    X11WindowList m_windows;
    // The application object, which comes later, takes a part of it out of the environment.
    DBusInstances m_instances{ActivationToken::inEnvironment()};
    std::optional<FreedesktopWorkspace> m_workspace;
    std::optional<PortalAppearance> m_appearance;
    std::optional<KeyDownFilter> m_keyDown;
};

PlistBundle &FreedesktopPlatform::plistBundle()
{
    if (!m_mainBundle)
        m_mainBundle = PlistBundle::around(QStringLiteral("/proc/self/exe"));
    return *m_mainBundle;
}

std::unique_ptr<Bundle> FreedesktopPlatform::bundle(const QUrl &url)
{
    if (!url.isLocalFile() || !QFileInfo(url.toLocalFile()).isDir())
        return nullptr;
    return std::make_unique<PlistBundle>(url.toLocalFile());
}

// A program that lies in no bundle is known by its name.
UserDefaults &FreedesktopPlatform::standardUserDefaults()
{
    const QString identifier = plistBundle().bundleIdentifier();
    return suite(identifier.isEmpty() ? QCoreApplication::applicationName() : identifier);
}

UserDefaults *FreedesktopPlatform::userDefaults(const QString &suiteName)
{
    return DconfUserDefaults::canOpen(suiteName) ? &suite(suiteName) : nullptr;
}

UserDefaults &FreedesktopPlatform::suite(const QString &name)
{
    return m_suites.try_emplace(name, name).first->second;
}

// A path that is not absolute counts as none, as everywhere in XDG's folders.
QString FreedesktopPlatform::stateFolder() const
{
    const QString named = qEnvironmentVariable("XDG_STATE_HOME");
    if (named.startsWith(u'/'))
        return named + QStringLiteral("/corvane-settings");
    const QString home = qEnvironmentVariable("HOME");
    return home.startsWith(u'/') ? home + QStringLiteral("/.local/state/corvane-settings") : QString();
}

Workspace &FreedesktopPlatform::workspace()
{
    if (!m_workspace)
        m_workspace.emplace(plistBundle());
    return *m_workspace;
}

Appearance &FreedesktopPlatform::appearance()
{
    if (!m_appearance) {
        // Every view takes its colours from here, so this comes before the first one.
        SessionBus::guardToolkit();
        m_appearance.emplace();
    }
    return *m_appearance;
}

std::unique_ptr<KeyMonitor> FreedesktopPlatform::monitorKeyDown(KeyMonitor::Handler handler)
{
    if (!m_keyDown)
        m_keyDown.emplace();
    return m_keyDown->add(std::move(handler));
}

}

std::unique_ptr<Platform> makeFreedesktopPlatform()
{
    return std::make_unique<FreedesktopPlatform>();
}
