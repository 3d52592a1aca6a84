#pragma once

#include <QIcon>
#include <QStringList>
#include <QUrl>

#include <functional>

/// What this application asks of the desktop around it. What the desktop does not have does not happen.
class Workspace {
public:
    virtual ~Workspace() = default;

    virtual void open(const QUrl &url) = 0;

    /// Starts a new instance of the application in `bundleURL`. `completion` runs on the main thread once the
    /// start was attempted, whatever came of it, and never before this call has returned.
    virtual void openApplication(const QUrl &bundleURL, const QStringList &arguments,
                                 std::function<void()> completion) = 0;

    /// The icon of the installed application with that bundle identifier; a null icon when there is none.
    virtual QIcon iconForApplication(const QString &bundleIdentifier) = 0;

    /// Opens the page of the desktop's settings on which login items are allowed.
    virtual void openLoginItemsSettings() = 0;
};
