#pragma once

#include "ViewEngine.h"

#include <QObject>

#include <memory>

class AboutWindow;
class EBSettingsWindowController;
class GuideWindowController;

/// Decides at launch which window this process is for, opens it and owns it.
class SettingsAppDelegate : public QObject {
    Q_OBJECT
public:
    SettingsAppDelegate();
    ~SettingsAppDelegate() override;

    void applicationDidFinishLaunching();

    /// Closing the last window ends the process, except in the onboarding: the guide ends it itself.
    static bool applicationShouldTerminateAfterLastWindowClosed();

    /// Starts this application again to replay the guide, then quits this instance, whatever came of the
    /// start.
    static void openGuide();

private:
    void openOnboarding();
    void openAbout();
    void openSettings();

    /// However the onboarding ended: it is not shown by itself again, and the agent applies what was chosen.
    static void finishOnboarding();

    ViewEngine m_engine;
    std::unique_ptr<GuideWindowController> m_guide;
    std::unique_ptr<AboutWindow> m_about;
    std::unique_ptr<EBSettingsWindowController> m_settings;
};
