#include "FreedesktopWorkspace.h"

#include "ActivationToken.h"
#include "AutostartLoginItem.h"
#include "DesktopEntry.h"
#include "GenericIcon.h"
#include "RegularFile.h"
#include "WindowOverview.h"
#include "X11Activation.h"
#include "X11Panel.h"
#include "X11ShowDesktop.h"

#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <QProcess>
#include <QStandardPaths>

namespace {

struct SettingsPage {
    const char *desktop;
    const char *command;
};

/// The page with the programs started at login, by the desktop's name in XDG_CURRENT_DESKTOP; the first
/// installed one of a desktop is the one.
constexpr SettingsPage autostartPages[] = {
    {"KDE", "systemsettings kcm_autostart"},
    {"KDE", "systemsettings5 kcm_autostart"},
    {"KDE", "kcmshell6 kcm_autostart"},
    {"KDE", "kcmshell5 kcm_autostart"},
    {"XFCE", "xfce4-session-settings"},
    {"MATE", "mate-session-properties"},
    {"LXQt", "lxqt-config-session"},
    {"LXDE", "lxsession-edit"},
    {"X-Cinnamon", "cinnamon-settings startup"},
    {"Cinnamon", "cinnamon-settings startup"},
    {"Budgie", "budgie-desktop-settings"},
    {"GNOME", "gnome-session-properties"},
    {"GNOME", "gnome-tweaks"},
    {"Unity", "gnome-session-properties"},
};

bool openAutostartPage(const QString &desktop)
{
    for (const SettingsPage &page : autostartPages) {
        if (desktop.compare(QLatin1String(page.desktop), Qt::CaseInsensitive) != 0)
            continue;
        QStringList command = QString::fromLatin1(page.command).split(u' ');
        const QString program = QStandardPaths::findExecutable(command.takeFirst());
        if (!program.isEmpty())
            return QProcess::startDetached(program, command);
    }
    return false;
}

/// The icon that the installed application's desktop entry names; empty when there is none.
QString iconName(const QString &application)
{
    // The identifier comes from a list that other programs write; a path in it could lead out of the folders.
    if (application.isEmpty() || application.contains(u'/'))
        return {};
    const QString entry = application + QStringLiteral(".desktop");
    return DesktopEntry::text(QStandardPaths::locate(QStandardPaths::ApplicationsLocation, entry), "Icon");
}

constexpr qint64 largestIconFile = 4LL * 1024 * 1024; // bytes
constexpr int widestIcon = 2048; // pixels

/// A null icon where the file is missing, no picture, or one that takes far more memory than any icon needs.
QIcon iconInFile(const QString &path)
{
    if (!RegularFile::isUpTo(largestIconFile, path))
        return {};
    const QImageReader picture(path);
    const bool isDrawn = picture.format().startsWith("svg");
    if (!isDrawn && qMax(picture.size().width(), picture.size().height()) > widestIcon)
        return {};
    const QIcon icon(path);
    return icon.pixmap(16).isNull() ? QIcon() : icon;
}

/// The icon that a bundle brings along, whose file may be named without its extension.
QIcon iconInBundle(const PlistBundle &bundle)
{
    const QString name = bundle.string(QStringLiteral("CFBundleIconFile"));
    if (name.isEmpty())
        return {};
    for (const char *extension : {"", "svg", "png"}) {
        const QUrl file = bundle.urlForResource(name, QString::fromLatin1(extension));
        QIcon icon = file.isEmpty() ? QIcon() : iconInFile(file.toLocalFile());
        if (!icon.isNull())
            return icon;
    }
    return {};
}

}

void FreedesktopWorkspace::open(const QUrl &url)
{
    if (url.isValid())
        QDesktopServices::openUrl(url);
}

void FreedesktopWorkspace::openApplication(const QUrl &bundleURL, const QStringList &arguments,
                                           std::function<void()> completion)
{
    const QString executable = bundleURL == m_mainBundle.bundleURL()
        ? m_mainBundle.executable()
        : PlistBundle(bundleURL.toLocalFile()).executable();
    if (!executable.isEmpty())
        QProcess::startDetached(executable, arguments);
    // The new instance has it now.
    ActivationToken::clearEnvironment();
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(completion), Qt::QueuedConnection);
}

QIcon FreedesktopWorkspace::iconForApplication(const QString &bundleIdentifier)
{
    const auto known = m_icons.constFind(bundleIdentifier);
    if (known != m_icons.constEnd())
        return *known;
    const QString name = iconName(bundleIdentifier);
    QIcon icon = QDir::isAbsolutePath(name) ? iconInFile(name) : QIcon::fromTheme(name);
    m_icons.insert(bundleIdentifier, icon);
    return icon;
}

QIcon FreedesktopWorkspace::iconForFile(const QString &path)
{
    const PlistBundle bundle(path);
    QIcon icon = iconInBundle(bundle);
    if (icon.isNull())
        icon = iconForApplication(bundle.bundleIdentifier());
    return icon.isNull() ? genericApplicationIcon() : icon;
}

void FreedesktopWorkspace::openLoginItemsSettings()
{
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    for (const QString &desktop : desktops) {
        if (openAutostartPage(desktop))
            return;
    }
    // Where there is no such page, the folder itself can be looked at and tidied.
    const QString folder = AutostartLoginItem::folder();
    QDir().mkpath(folder);
    open(QUrl::fromLocalFile(folder));
}

void FreedesktopWorkspace::openMissionControl()
{
    if (!WindowOverview::open())
        X11ShowDesktop::request();
}

void FreedesktopWorkspace::floatOnAllSpaces(QWindow &window)
{
    X11Panel::floatOnAllDesktops(window);
}

void FreedesktopWorkspace::setShadow(QWindow &window, const QMargins &shadow)
{
    X11Panel::setShadow(window, shadow);
}

bool FreedesktopWorkspace::placesWindows()
{
    return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

void FreedesktopWorkspace::bringToFront(QWindow &window)
{
    X11Activation::request(window, ActivationToken::inEnvironment().startupId);
    ActivationToken::clearEnvironment();
}

bool FreedesktopWorkspace::blendsWindows()
{
    return X11Panel::isComposited();
}
