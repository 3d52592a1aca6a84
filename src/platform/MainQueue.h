#pragma once

#include <QObject>

#include <functional>
#include <memory>

/// Delayed and repeated actions on the main thread. Nothing wakes the process while none is pending.
class MainQueue {
public:
    using Action = std::function<void()>;

    /// Keeps a repeated action going while it lives.
    class Repetition {
    public:
        virtual ~Repetition() = default;
    };

    virtual ~MainQueue() = default;

    /// Runs `action` once, `seconds` from now and never before this returns, unless `context` is gone by then. A time
    /// that is not above 0 or not finite means: after the events that are already queued.
    virtual void after(double seconds, QObject *context, Action action);

    /// Runs `action` every `seconds` (above 0), beginning after the first interval. It stops when the returned handle
    /// or `context` is destroyed; the action may destroy the handle.
    [[nodiscard]] virtual std::unique_ptr<Repetition> every(double seconds, QObject *context, Action action);
};
