#pragma once

#include "Instances.h"
#include "ViewEngine.h"

#include <QObject>

#include <chrono>
#include <memory>
#include <optional>

class AboutWindow;
class EBWindow;
class EBSettingsWindowController;
class GuideWindowController;
class StoreKeeper;

/// Decides at launch which window this process is for, opens it and owns it.
class SettingsAppDelegate : public QObject {
    Q_OBJECT
public:
    SettingsAppDelegate();
    ~SettingsAppDelegate() override;

    /// The request to show a page of the settings, whose id is the argument. The others are named in the desktop entry.
    inline static const QString pageAction = QStringLiteral("page");

    void applicationDidFinishLaunching();

    /// Closing the last window ends the process, except in the onboarding: the guide ends it itself.
    static bool applicationShouldTerminateAfterLastWindowClosed();

    /// Begins to load what this start will show, while the caller does other things.
    void prefetch();

    /// To be called before the process ends: completes the copy of the settings as far as that takes no longer than
    /// this.
    void finish(std::chrono::milliseconds limit);

    /// Starts this application again to replay the guide, then quits this instance, whatever came of the
    /// start.
    static void openGuide();

signals:
    /// The window's first frame is shown.
    void opened();

private:
    void openOnboarding();
    void openAbout();
    /// `initial` is the id of the page to begin with, if one was named.
    void openSettings(const std::optional<QString> &initial);

    /// Shows a window that was just made, and leaves what nobody waits for until its first frame is there.
    void present(EBWindow &window);

    /// The window of this process; null while a start by the desktop has not been told what to open.
    EBWindow *window() const;

    /// What a later start, or the desktop, wants of this process. False when its window is closed and it only has to
    /// end.
    bool perform(const Instances::Request &request);
    void keepSettings();

    /// The line in the settings window: why changes are not saved, else the question what becomes of lost settings.
    void tell();

    void showSettings(const Instances::Request &request);

    /// However the onboarding ended: it is not shown by itself again, and the agent applies what was chosen.
    static void finishOnboarding();

    ViewEngine m_engine;
    /// Made once the window is shown.
    std::unique_ptr<StoreKeeper> m_keeper;
    std::unique_ptr<GuideWindowController> m_guide;
    std::unique_ptr<AboutWindow> m_about;
    std::unique_ptr<EBSettingsWindowController> m_settings;
};
