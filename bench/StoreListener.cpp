#include "StoreListener.h"

#include <dconf.h>

StoreListener::StoreListener() : m_client(dconf_client_new())
{
    g_signal_connect(m_client, "changed", G_CALLBACK(&StoreListener::heard), this);
    dconf_client_watch_sync(m_client, "/com/vexmoor/corvane/");
}

StoreListener::~StoreListener()
{
    g_signal_handlers_disconnect_by_data(m_client, this);
    g_object_unref(m_client);
}

bool StoreListener::boolean(const char *path) const
{
    GVariant *stored = dconf_client_read(m_client, path);
    const bool value = stored && g_variant_is_of_type(stored, G_VARIANT_TYPE_BOOLEAN) && g_variant_get_boolean(stored);
    if (stored)
        g_variant_unref(stored);
    return value;
}

std::optional<StoreListener::Clock::time_point> StoreListener::waitForChange(std::chrono::milliseconds timeout)
{
    m_heard = false;
    bool late = false;
    const auto expire = [](gpointer flag) -> gboolean {
        *static_cast<bool *>(flag) = true;
        return G_SOURCE_CONTINUE;
    };
    const guint timer = g_timeout_add(guint(timeout.count()), expire, &late);
    while (!m_heard && !late)
        g_main_context_iteration(nullptr, TRUE);
    const auto now = Clock::now();
    g_source_remove(timer);
    return m_heard ? std::optional(now) : std::nullopt;
}

void StoreListener::heard(DConfClient *, const char *, char **, const char *, void *self)
{
    static_cast<StoreListener *>(self)->m_heard = true;
}
