#include "SettingsAppDelegate.h"

#include "AboutWindow.h"
#include "Accessibility.h"
#include "EBKitFonts.h"
#include "EBSettingsWindowController.h"
#include "EBType.h"
#include "GeneralActions.h"
#include "GuideWindowController.h"
#include "LaunchFlags.h"
#include "Platform.h"
#include "SettingsPages.h"
#include "Shared.h"

#include <QFontMetricsF>
#include <QGuiApplication>

namespace {

/// Makes the kit's body the application's font, so that no other is loaded for items that set none.
void chooseBodyFace()
{
    QGuiApplication::setFont(EBTypes::font(EBTypeRole::body));
}

/// Loads the faces that the settings window is set in.
void loadFaces()
{
    chooseBodyFace();
    const QFont medium = EBTypes::systemFont(13, QFont::Medium);
    for (const QFont &font :
         {EBTypes::font(EBTypeRole::title), EBTypes::font(EBTypeRole::body), EBTypes::font(EBTypeRole::bodyStrong),
          EBTypes::font(EBTypeRole::caption), EBTypes::font(EBTypeRole::mono), medium})
        QFontMetricsF(font).horizontalAdvance(QStringLiteral("x"));
}

}

SettingsAppDelegate::SettingsAppDelegate()
{
    QGuiApplication::setQuitOnLastWindowClosed(applicationShouldTerminateAfterLastWindowClosed());
    installKitAccessibility();
    GeneralActions::setGuideOpener(&SettingsAppDelegate::openGuide);
}

SettingsAppDelegate::~SettingsAppDelegate() = default;

void SettingsAppDelegate::applicationDidFinishLaunching()
{
    if (LaunchFlags::onboarding()) {
        openOnboarding();
        return;
    }
    if (LaunchFlags::about()) {
        openAbout();
        return;
    }
    openSettings();
}

void SettingsAppDelegate::openOnboarding()
{
    EBKitFonts::registerFonts();
    chooseBodyFace();
    Platform::current().appearance().settle();
    const auto run = LaunchFlags::replay() ? OnboardingFlow::Run::replay : OnboardingFlow::Run::first;
    m_guide = std::make_unique<GuideWindowController>(m_engine, run, &SettingsAppDelegate::finishOnboarding);
    m_guide->window().center();
    m_guide->window().makeKeyAndOrderFront();
}

void SettingsAppDelegate::finishOnboarding()
{
    Shared::store().setValue(Shared::Key::onboardingCompleted, true);
    Shared::send(Shared::Command::applySettings);
    QCoreApplication::quit();
}

void SettingsAppDelegate::openAbout()
{
    EBKitFonts::registerFonts();
    chooseBodyFace();
    Platform::current().appearance().settle();
    m_about = std::make_unique<AboutWindow>(m_engine);
    m_about->makeKeyAndOrderFront();
}

void SettingsAppDelegate::openSettings()
{
    std::optional<QString> initial;
    if (qEnvironmentVariableIsSet("CV_TAB"))
        initial = qEnvironmentVariable("CV_TAB");
    const QList<EBSettingsPage> pages = SettingsPages::make();
    // From here to the controller this thread works beside the one that loads the views.
    EBSettingsWindowController::prefetch(m_engine, pages, initial);
    EBKitFonts::registerFonts();
    loadFaces();
    Platform &platform = Platform::current();
    // Asked early, the desktop has answered by the time the first frame is drawn.
    platform.appearance();
    const QString version = platform.mainBundle().string(QStringLiteral("CFBundleShortVersionString"));
    m_settings = std::make_unique<EBSettingsWindowController>(m_engine, EBApp::corvane, version, pages, initial);
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
