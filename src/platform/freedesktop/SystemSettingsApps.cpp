#include "SystemSettingsApps.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <iterator>

namespace {

/// In lower case: the desktops do not agree on that, and neither do the versions of one desktop.
constexpr QByteArrayView names[] = {
    "gnome-control-center",
    "org.gnome.settings",
    "unity-control-center",
    "systemsettings",
    "systemsettings5",
    "org.kde.systemsettings",
    "xfce4-settings-manager",
    "cinnamon-settings",
    "cinnamon-settings.py",
    "mate-control-center",
    "lxqt-config",
    "io.elementary.settings",
    "io.elementary.switchboard",
    "org.pantheon.switchboard",
    "switchboard",
    "budgie-control-center",
    "org.buddiesofbudgie.controlcenter",
    "cosmic-settings",
    "com.system76.cosmicsettings",
    "dde-control-center",
    // The window of the reference agent, which stands in for all of them.
    "com.vexmoor.corvane.systemsettings",
};

}

bool SystemSettingsApps::haveWindowClass(QByteArrayView value)
{
    const QList<QByteArray> parts = value.toByteArray().toLower().split('\0');
    return std::any_of(parts.begin(), parts.end(), [](const QByteArray &part) {
        return std::find(std::begin(names), std::end(names), QByteArrayView(part)) != std::end(names);
    });
}
