#pragma once

#include <chrono>

struct _DConfClient;

/// Hears the changes of the settings that another process makes, as the application does.
class StoreListener {
public:
    using Clock = std::chrono::steady_clock;

    /// Listens from now on.
    StoreListener();
    ~StoreListener();
    StoreListener(const StoreListener &) = delete;
    StoreListener &operator=(const StoreListener &) = delete;

    /// Waits for the next change and tells when it was heard.
    Clock::time_point waitForChange();

private:
    static void heard(_DConfClient *, const char *, char **, const char *, void *self);

    _DConfClient *m_client;
    bool m_heard = false;
};
