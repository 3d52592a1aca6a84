#include "SettingsAppDelegate.h"

#include "Accessibility.h"
#include "EBKitFonts.h"
#include "EBSettingsWindowController.h"
#include "EBType.h"
#include "GeneralActions.h"
#include "LaunchFlags.h"
#include "Platform.h"
#include "SettingsPages.h"

#include <QFontMetricsF>
#include <QGuiApplication>

namespace {

/// Loads the faces that the settings window is set in. The kit's body becomes the face of whatever sets none
/// of its own, so that no other is loaded for that.
void loadFaces()
{
    QGuiApplication::setFont(EBTypes::font(EBTypeRole::body));
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
    if (LaunchFlags::onboarding() || LaunchFlags::about()) {
        EBKitFonts::registerFonts();
        // This build has neither window yet, and a process without one would linger unseen.
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        return;
    }
    openSettings();
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
