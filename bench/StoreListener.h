#pragma once

#include <chrono>
#include <optional>

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

    /// What is stored at the path; false where no truth value is.
    bool boolean(const char *path) const;

    /// When the next change was heard. None in time: none.
    std::optional<Clock::time_point> waitForChange(std::chrono::milliseconds timeout);

private:
    static void heard(_DConfClient *, const char *, char **, const char *, void *self);

    _DConfClient *m_client;
    bool m_heard = false;
};
