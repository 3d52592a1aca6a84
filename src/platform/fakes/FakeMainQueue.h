#pragma once

#include "MainQueue.h"

#include <QList>
#include <QPointer>

/// A queue on a clock that only `advance` moves.
class FakeMainQueue : public MainQueue {
public:
    void after(double seconds, QObject *context, Action action) override;
    std::unique_ptr<Repetition> every(double seconds, QObject *context, Action action) override;

    /// Moves the clock and runs the actions that fall due, in their order, each at its own time.
    void advance(double seconds);

    /// How many actions wait.
    qsizetype waiting() const;

private:
    // Whole microseconds, so that 0.1 + 0.2 and 0.3 are the same time.
    using Time = qint64;

    struct Entry {
        Time due;
        Time period;
        QPointer<QObject> context;
        std::weak_ptr<const bool> handle;
        Action action;

        bool isAlive() const { return context && (period == 0 || !handle.expired()); }
    };

    static Time time(double seconds);
    void insert(const Entry &entry);

    Time m_now = 0;
    /// In the order in which they fall due.
    QList<Entry> m_entries;
};
