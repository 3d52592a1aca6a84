#pragma once

#include "ViewEngine.h"

#include <QObject>

#include <memory>

class EBSettingsWindowController;

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
    void openSettings();

    ViewEngine m_engine;
    std::unique_ptr<EBSettingsWindowController> m_settings;
};
