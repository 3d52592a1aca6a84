#pragma once

#include "PlistBundle.h"
#include "Workspace.h"

/// Links go to the desktop's handlers, applications are bundles, and login items are the desktop's own
/// autostart page.
class FreedesktopWorkspace : public Workspace {
public:
    /// `mainBundle` is the running application's, which can be started again even from outside a bundle's
    /// folder.
    explicit FreedesktopWorkspace(const PlistBundle &mainBundle) : m_mainBundle(mainBundle) { }

    void open(const QUrl &url) override;
    void openApplication(const QUrl &bundleURL, const QStringList &arguments,
                         std::function<void()> completion) override;
    void openLoginItemsSettings() override;

private:
    const PlistBundle &m_mainBundle;
};
