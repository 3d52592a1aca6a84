#include "Process.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fcntl.h>
#include <vector>

extern char **environ;

namespace {

/// The whole number behind `key` in a file of "key: number" lines.
long number(const QString &path, const char *key)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith(key))
            return line.mid(qstrlen(key)).trimmed().split(' ').constFirst().toLong();
    }
    return 0;
}

}

Process::Process(const QString &program, const QStringList &arguments)
{
    std::vector<QByteArray> words = {QFile::encodeName(program)};
    for (const QString &argument : arguments)
        words.push_back(argument.toLocal8Bit());
    std::vector<char *> argv;
    for (QByteArray &word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    if (posix_spawn(&m_pid, argv[0], &actions, nullptr, argv.data(), environ) != 0)
        qFatal("cannot start %s", argv[0]);
    posix_spawn_file_actions_destroy(&actions);
}

Process::~Process()
{
    end(SIGKILL);
}

void Process::terminate()
{
    end(SIGTERM);
}

void Process::end(int signal)
{
    if (m_pid < 0)
        return;
    kill(m_pid, signal);
    waitpid(m_pid, nullptr, 0);
    m_pid = -1;
}

double Process::memory() const
{
    return double(number(QStringLiteral("/proc/%1/smaps_rollup").arg(m_pid), "Pss:")) / 1024;
}

double Process::ownMemory() const
{
    return double(number(QStringLiteral("/proc/%1/smaps_rollup").arg(m_pid), "Anonymous:")) / 1024;
}

Process::Activity Process::activity() const
{
    Activity activity;
    const QDir threads(QStringLiteral("/proc/%1/task").arg(m_pid));
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString path = threads.filePath(thread);
        activity.wakeups += number(path + QStringLiteral("/status"), "voluntary_ctxt_switches:");
        QFile schedule(path + QStringLiteral("/schedstat"));
        if (schedule.open(QIODevice::ReadOnly))
            activity.processor += double(schedule.readAll().split(' ').constFirst().toLongLong()) / 1e6;
    }
    return activity;
}
