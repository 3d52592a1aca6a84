#include "TextScale.h"

#include "SessionBus.h"

// GIO has members named like the Qt keyword.
#pragma push_macro("signals")
#undef signals
#include <gio/gio.h>
#pragma pop_macro("signals")

#include <memory>

namespace {

constexpr int answerLimit = 50; // milliseconds
// What desktops offer.
constexpr double smallest = 0.5;
constexpr double largest = 3;

using Variant = std::unique_ptr<GVariant, decltype(&g_variant_unref)>;

/// Qt's own connection wants an application object.
Variant askPortal()
{
    static GDBusConnection *const bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    if (!bus)
        return {nullptr, g_variant_unref};
    g_dbus_connection_set_exit_on_close(bus, FALSE);
    GVariant *answer = g_dbus_connection_call_sync(
        bus, "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings",
        "Read", g_variant_new("(ss)", "org.gnome.desktop.interface", "text-scaling-factor"), G_VARIANT_TYPE("(v)"),
        G_DBUS_CALL_FLAGS_NO_AUTO_START, answerLimit, nullptr, nullptr);
    return {answer, g_variant_unref};
}

/// The portal wraps the value more than once.
Variant unwrapped(Variant value)
{
    while (value && g_variant_is_container(value.get()))
        value.reset(g_variant_get_child_value(value.get(), 0));
    return value;
}

}

double TextScale::read()
{
    if (!SessionBus::hasAnswered())
        return 1;
    const Variant answer = unwrapped(askPortal());
    if (!answer || !g_variant_is_of_type(answer.get(), G_VARIANT_TYPE_DOUBLE))
        return 1;
    const double scale = g_variant_get_double(answer.get());
    return scale >= smallest && scale <= largest ? scale : 1;
}
