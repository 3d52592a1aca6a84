#include <gio/gio.h>

#include "Desktop.h"

#include "Processes.h"

namespace {

/// The variables of the machine's own desktop that would change how a program looks or behaves.
constexpr auto foreign = {
    "AT_SPI_BUS_ADDRESS",
    "CV_STEP",
    "CV_TAB",
    "DCONF_PROFILE",
    "DESKTOP_SESSION",
    "QSG_RHI_BACKEND",
    "QT_ENABLE_HIGHDPI_SCALING",
    "QT_FONT_DPI",
    "QT_LOGGING_RULES",
    "QT_MESSAGE_PATTERN",
    "QT_QPA_PLATFORMTHEME",
    "QT_QUICK_BACKEND",
    "QT_SCALE_FACTOR",
    "QT_SCREEN_SCALE_FACTORS",
    "WAYLAND_DISPLAY",
    "XDG_SESSION_TYPE",
};

/// The bus ends before this process does, which the library takes as a reason to end the process.
void surviveTheBus()
{
    if (GDBusConnection *bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr)) {
        g_dbus_connection_set_exit_on_close(bus, FALSE);
        g_object_unref(bus);
    }
}

}

Desktop::Desktop() : m_x(m_display.name())
{
    Processes::adoptOrphans();
    for (const char *name : foreign)
        qunsetenv(name);
    qputenv("DISPLAY", m_display.name());
    // The last one keeps the settings of the window manager.
    const bool hasBus = m_session.start(
        {QStringLiteral("ca.desrt.dconf"), QStringLiteral("org.a11y.Bus"), QStringLiteral("org.xfce.Xfconf")});
    m_isValid = m_x.isValid() && hasBus;
}

Desktop::~Desktop()
{
    surviveTheBus();
    m_session.stop();
    Processes::endAll();
}

QProcessEnvironment Desktop::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    return environment;
}
