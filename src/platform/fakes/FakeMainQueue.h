#pragma once

#include "MainQueue.h"

#include <QList>
#include <QPointer>

/// A queue whose time stands still until it is told to go on.
class FakeMainQueue : public MainQueue {
public:
    void after(double seconds, QObject *context, Action action) override;
    std::unique_ptr<Repetition> every(double seconds, QObject *context, Action action) override;

    /// Lets that much time pass and runs what falls due, in the order of time, each action at its own moment.
    void advance(double seconds);

    /// How many actions wait.
    qsizetype waiting() const;

private:
    // Whole microseconds, so that times which are written differently and mean the same are the same.
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
