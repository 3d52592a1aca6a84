#pragma once

#include "PlistBundle.h"
#include "Workspace.h"

#include <QHash>

/// Links go to the desktop's handlers, applications are bundles. Login items are the desktop's own autostart page, or
/// the autostart folder where it has none; Mission Control is its overview, or the bare desktop where it has none.
class FreedesktopWorkspace : public Workspace {
public:
    /// `mainBundle` is the running application's, which can be started again even from outside a bundle's
    /// folder.
    explicit FreedesktopWorkspace(const PlistBundle &mainBundle) : m_mainBundle(mainBundle) { }

    void open(const QUrl &url) override;
    void openApplication(const QUrl &bundleURL, const QStringList &arguments,
                         std::function<void()> completion) override;
    QIcon iconForApplication(const QString &bundleIdentifier) override;
    QIcon iconForFile(const QString &path) override;
    void openLoginItemsSettings() override;
    void openMissionControl() override;
    void floatOnAllSpaces(QWindow &window) override;
    void setShadow(QWindow &window, const QMargins &shadow) override;
    bool placesWindows() override;
    void bringToFront(QWindow &window) override;
    bool blendsWindows() override;

private:
    QHash<QString, QIcon> m_icons;
    const PlistBundle &m_mainBundle;
};
