#pragma once

#include <QString>
#include <QStringList>

#include <sys/types.h>

/// A program under measurement. Ended when this goes out of scope.
class Process {
public:
    /// Starts `program` at once, without output.
    explicit Process(const QString &program, const QStringList &arguments = {});
    ~Process();
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;

    /// Asks it to end, and waits until it has.
    void terminate();

    /// Proportional set size in MiB; 0 once the process has ended.
    double memory() const;

    /// What it has written into memory and no file backs, in MiB: other than the proportional set size it does not
    /// depend on what else runs. 0 once the process has ended.
    double ownMemory() const;

    /// What the process did since it started, all threads together.
    struct Activity {
        long wakeups = 0;
        /// Processor time in milliseconds.
        double processor = 0;
    };
    Activity activity() const;

private:
    void end(int signal);

    pid_t m_pid = -1;
};
