#pragma once

#include <QObject>

#include <functional>
#include <memory>

/// Actions of the main thread that wait for their time. Nothing here wakes the process while no action waits.
class MainQueue {
public:
    using Action = std::function<void()>;

    /// An action that comes again and again for as long as this is held.
    class Repetition {
    public:
        virtual ~Repetition() = default;
    };

    virtual ~MainQueue() = default;

    /// Runs `action` once, `seconds` from now and never before this returns, unless `context` is gone by then.
    /// A time of 0 or below, or one that is not finite, means as soon as the events that already wait are done.
    virtual void after(double seconds, QObject *context, Action action);

    /// Runs `action` every `seconds`, a time above 0, for the first time after one of them. It ends with the handle
    /// that is returned or with `context`, whichever goes first; the action may let go of the handle itself.
    [[nodiscard]] virtual std::unique_ptr<Repetition> every(double seconds, QObject *context, Action action);
};
