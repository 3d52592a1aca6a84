#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

/// How long a program may take to start, in milliseconds: the sanitizers and a busy machine make it long.
constexpr int startTime = 30000;

/// One run of a program: started with a given environment, its output collected line by line, ended with this
/// object.
class Program {
public:
    Program(const QString &path, const QProcessEnvironment &environment);
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// True once the process runs.
    bool start(const QStringList &arguments = {});

    QString path() const { return m_process.program(); }
    qint64 processId() const { return m_processId; }
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }

    /// True when the program has ended by itself within `milliseconds`.
    bool waitForExit(int milliseconds = 20000);

    /// The code the program ended with; -1 when it crashed or was killed, and while it runs.
    int exitCode() const;

    /// Asks the program to end as a session manager would. True when it did so in time.
    bool terminate();

    QStringList standardOutput() const { return lines(m_output); }
    QStringList standardError() const { return lines(m_errors); }

    /// The lines of standard error that are not among `expected`, each of which excuses one line: warnings of
    /// Qt or QML, reports of the sanitizers, anything a person would find in the log. Empty for a program
    /// that behaves.
    QStringList complaints(const QStringList &expected = {}) const;

private:
    static QStringList lines(const QByteArray &output);

    QProcess m_process;
    qint64 m_processId = 0;
    QByteArray m_output;
    QByteArray m_errors;
};
