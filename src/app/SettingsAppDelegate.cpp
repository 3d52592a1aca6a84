#include "SettingsAppDelegate.h"

#include "AboutWindow.h"
#include "Accessibility.h"
#include "AgentBundle.h"
#include "EBKitFonts.h"
#include "EBSettingsWindowController.h"
#include "EBType.h"
#include "GeneralActions.h"
#include "GuideWindowController.h"
#include "ImportDrop.h"
#include "LaunchFlags.h"
#include "Platform.h"
#include "SettingsModel.h"
#include "SettingsPages.h"
#include "Shared.h"
#include "StoreKeeper.h"
#include "StoreTrouble.h"
#include "UserDefaults.h"
#include "WindowIcon.h"

#include <QFontMetricsF>
#include <QGuiApplication>

#include <algorithm>

namespace {

void loadFace(const QFont &face)
{
    QFontMetricsF(face).horizontalAdvance(QStringLiteral("x"));
}

/// Registers the kit's faces and loads those that a window is set in. The body's becomes the application's font, so
/// that no other is loaded for items that set none.
void loadFaces(std::initializer_list<EBTypeRole> roles)
{
    EBKitFonts::registerFonts();
    QGuiApplication::setFont(EBTypes::font(EBTypeRole::body));
    for (const EBTypeRole role : roles)
        loadFace(EBTypes::font(role));
}

std::optional<QString> initialPage()
{
    return qEnvironmentVariableIsSet("CV_TAB") ? std::optional(qEnvironmentVariable("CV_TAB")) : std::nullopt;
}

bool isPage(const QString &id)
{
    const QList<EBSettingsPage> pages = SettingsPages::make();
    return std::any_of(pages.begin(), pages.end(), [&](const EBSettingsPage &page) { return page.id == id; });
}

/// Without an agent that runs or can be started nothing happens.
void startAgent()
{
    if (AgentBundle::bundle())
        Platform::current().instances().start(Contract::agentName, {});
}

/// Opens another role, which has a process of its own.
void openRole(const QStringList &flags)
{
    Platform &platform = Platform::current();
    platform.workspace().openApplication(platform.mainBundle().bundleURL(), flags, [] {});
}

/// How long a start by the desktop waits to be told what to open, in seconds.
constexpr double servicePatience = 10;

}

SettingsAppDelegate::SettingsAppDelegate()
{
    QGuiApplication::setQuitOnLastWindowClosed(applicationShouldTerminateAfterLastWindowClosed());
    installKitAccessibility();
    GeneralActions::setGuideOpener(&SettingsAppDelegate::openGuide);
}

SettingsAppDelegate::~SettingsAppDelegate() = default;

void SettingsAppDelegate::prefetch()
{
    if (LaunchFlags::service())
        return;
    if (LaunchFlags::onboarding())
        GuideWindowController::prefetch(m_engine);
    else if (LaunchFlags::about())
        AboutWindow::prefetch(m_engine);
    else
        EBSettingsWindowController::prefetch(m_engine, SettingsPages::make(), initialPage());
    EBWindow::prefetch(m_engine);
}

void SettingsAppDelegate::applicationDidFinishLaunching()
{
    Platform &platform = Platform::current();
    platform.instances().setHandler([this](const Instances::Request &request) { return perform(request); });
    if (LaunchFlags::onboarding()) {
        openOnboarding();
        return;
    }
    if (LaunchFlags::about()) {
        openAbout();
        return;
    }
    if (LaunchFlags::service()) {
        platform.mainQueue().after(servicePatience, this, [this] {
            if (!m_settings)
                QCoreApplication::quit();
        });
        return;
    }
    openSettings(initialPage());
}

bool SettingsAppDelegate::perform(const Instances::Request &request)
{
    if (request.action == u"about") {
        openRole({QStringLiteral("--about")});
        return true;
    }
    if (request.action == u"guide") {
        openRole({QStringLiteral("--onboarding"), QStringLiteral("--replay")});
        return true;
    }
    // The guide hides while the person is elsewhere; the other windows are only gone once they are closed.
    const bool isEnding = m_guide ? m_guide->finished() : window() && !window()->isVisible();
    if (isEnding)
        return false;
    if (m_guide || m_about)
        window()->makeKeyAndOrderFront();
    else
        showSettings(request);
    return true;
}

void SettingsAppDelegate::showSettings(const Instances::Request &request)
{
    const bool namesAPage = request.action == pageAction && isPage(request.argument);
    if (!m_settings) {
        openSettings(namesAPage ? std::optional(request.argument) : std::nullopt);
        return;
    }
    if (namesAPage)
        m_settings->model()->setSelection(request.argument);
    m_settings->showWindow();
}

void SettingsAppDelegate::tell()
{
    if (!m_settings)
        return;
    const QString trouble = StoreTrouble::text();
    if (trouble.isEmpty() && m_keeper && m_keeper->hasLost())
        m_settings->model()->setNotice(tr("Your settings are gone."), {tr("Restore"), tr("Start Fresh")});
    else
        m_settings->model()->setNotice(trouble);
}

EBWindow *SettingsAppDelegate::window() const
{
    if (m_guide)
        return &m_guide->window();
    if (m_about)
        return m_about.get();
    return m_settings ? m_settings->window() : nullptr;
}

void SettingsAppDelegate::present(EBWindow &window)
{
    const auto finish = [this] {
        QGuiApplication::setWindowIcon(windowIcon());
        Platform::current().appearance().wake();
        startAgent();
        // Before the copy of the settings, whose large blocks of memory then go back to the system.
        emit opened();
        keepSettings();
    };
    connect(&window, &QQuickWindow::frameSwapped, this, finish,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    window.makeKeyAndOrderFront();
}

// About changes no settings.
void SettingsAppDelegate::keepSettings()
{
    if (m_about)
        return;
    m_keeper = std::make_unique<StoreKeeper>();
    connect(m_keeper.get(), &StoreKeeper::lostChanged, this, &SettingsAppDelegate::tell);
    tell();
}

void SettingsAppDelegate::finish(std::chrono::milliseconds limit)
{
    if (m_keeper)
        m_keeper->finish(limit);
}

void SettingsAppDelegate::openOnboarding()
{
    Platform &platform = Platform::current();
    loadFaces({EBTypeRole::hero, EBTypeRole::lead, EBTypeRole::body, EBTypeRole::bodyStrong, EBTypeRole::small,
               EBTypeRole::mono});
    platform.appearance().settle();
    const auto run = LaunchFlags::replay() ? OnboardingFlow::Run::replay : OnboardingFlow::Run::first;
    m_guide = std::make_unique<GuideWindowController>(m_engine, run, &SettingsAppDelegate::finishOnboarding);
    m_guide->window().center();
    present(m_guide->window());
}

void SettingsAppDelegate::finishOnboarding()
{
    Shared::store().setValue(Shared::Key::onboardingCompleted, true);
    Shared::send(Shared::Command::applySettings);
    QCoreApplication::quit();
}

void SettingsAppDelegate::openAbout()
{
    Platform &platform = Platform::current();
    loadFaces({EBTypeRole::title, EBTypeRole::body, EBTypeRole::bodyStrong, EBTypeRole::caption, EBTypeRole::mono});
    platform.appearance().settle();
    m_about = std::make_unique<AboutWindow>(m_engine);
    present(*m_about);
}

void SettingsAppDelegate::openSettings(const std::optional<QString> &initial)
{
    loadFaces({EBTypeRole::title, EBTypeRole::body, EBTypeRole::bodyStrong, EBTypeRole::caption, EBTypeRole::mono});
    // The sidebar's.
    loadFace(EBTypes::systemFont(13, QFont::Medium));
    Platform &platform = Platform::current();
    const QString version = platform.mainBundle().string(QStringLiteral("CFBundleShortVersionString"));
    m_settings =
        std::make_unique<EBSettingsWindowController>(m_engine, EBApp::corvane, version, SettingsPages::make(), initial);
    // The window owns it.
    new ImportDrop(m_engine, *m_settings->window());
    connect(&Shared::store(), &UserDefaults::troubleChanged, this, &SettingsAppDelegate::tell);
    connect(m_settings->model(), &EBSettingsWindowController::Model::answered, this,
            [this](int answer) { answer == 0 ? m_keeper->restore() : m_keeper->startFresh(); });
    platform.appearance().settle();
    present(*m_settings->window());
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
