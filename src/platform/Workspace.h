#pragma once

#include <QIcon>
#include <QStringList>
#include <QUrl>

#include <functional>

class QMargins;
class QWindow;

/// What this application asks of the desktop. A request that the desktop cannot meet does nothing.
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

    /// The icon of the application whose bundle lies at `path`: its own, or a generic one where it has none or nothing
    /// lies there. Never a null icon.
    virtual QIcon iconForFile(const QString &path) = 0;

    /// Opens the page of the desktop's settings on which login items are allowed, or what comes nearest to it.
    virtual void openLoginItemsSettings() = 0;

    /// Shows the desktop's overview of all windows, or what comes nearest to it.
    virtual void openMissionControl() = 0;

    /// Prepares `window`, which must be hidden, to appear in front of the others, on every workspace and in no list of
    /// windows. Hiding the window undoes this: call it before each show.
    virtual void floatOnAllSpaces(QWindow &window) = 0;

    /// What lies in `shadow`, along the edges of `window`, is not part of what the desktop places, and takes no clicks.
    /// Call it before the window is shown, and again once it is on the screen: some desktops look only then.
    virtual void setShadow(QWindow &window, const QMargins &shadow) = 0;

    /// Whether a window knows where on the screen it is, and goes where it is put. Where it does not, the desktop keeps
    /// the places of windows to itself, and whether one is minimised.
    virtual bool placesWindows() = 0;

    /// Gives a window that was shown before the place in front of the others and the keyboard focus, also where the
    /// desktop keeps programs from taking them: the person has asked for it, if perhaps in another program.
    virtual void bringToFront(QWindow &window) = 0;

    /// Whether transparent parts of a window show what lies behind it. Where they do not, they are black.
    virtual bool blendsWindows() = 0;
};
