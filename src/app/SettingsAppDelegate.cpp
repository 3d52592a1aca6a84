#include "SettingsAppDelegate.h"

#include "Accessibility.h"
#include "EBKitFonts.h"
#include "EBSettingsWindowController.h"
#include "GeneralActions.h"
#include "LaunchFlags.h"
#include "Platform.h"
#include "SettingsPages.h"

#include <QGuiApplication>

SettingsAppDelegate::SettingsAppDelegate()
{
    QGuiApplication::setQuitOnLastWindowClosed(applicationShouldTerminateAfterLastWindowClosed());
    installKitAccessibility();
    GeneralActions::setGuideOpener(&SettingsAppDelegate::openGuide);
}

SettingsAppDelegate::~SettingsAppDelegate() = default;

void SettingsAppDelegate::applicationDidFinishLaunching()
{
    EBKitFonts::registerFonts();
    if (LaunchFlags::onboarding() || LaunchFlags::about()) {
        // This build has neither window yet, and a process without one would linger unseen.
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        return;
    }
    openSettings();
}

void SettingsAppDelegate::openSettings()
{
    Platform &platform = Platform::current();
    const QString version = platform.mainBundle().string(QStringLiteral("CFBundleShortVersionString"));
    std::optional<QString> initial;
    if (qEnvironmentVariableIsSet("CV_TAB"))
        initial = qEnvironmentVariable("CV_TAB");
    m_settings = std::make_unique<EBSettingsWindowController>(m_engine, EBApp::corvane, version,
                                                              SettingsPages::make(), initial);
    platform.appearance().settle();
    m_settings->showWindow();
}

bool SettingsAppDelegate::applicationShouldTerminateAfterLastWindowClosed()
{
    return !LaunchFlags::onboarding();
}

void SettingsAppDelegate::openGuide()
{
    Platform &platform = Platform::current();
    platform.workspace().openApplication(platform.mainBundle().bundleURL(),
                                         {QStringLiteral("--onboarding"), QStringLiteral("--replay")},
                                         [] { QCoreApplication::quit(); });
}
