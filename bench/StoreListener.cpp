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

StoreListener::Clock::time_point StoreListener::waitForChange()
{
    m_heard = false;
    while (!m_heard)
        g_main_context_iteration(nullptr, TRUE);
    return Clock::now();
}

void StoreListener::heard(DConfClient *, const char *, char **, const char *, void *self)
{
    static_cast<StoreListener *>(self)->m_heard = true;
}
