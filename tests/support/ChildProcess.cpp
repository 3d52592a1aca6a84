#include "ChildProcess.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <csignal>
#include <sys/prctl.h>

void ChildProcess::endWithThisProcess(QProcess &process)
{
    process.setChildProcessModifier([] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        // A program that may write no further is told so, and not ended.
        std::signal(SIGXFSZ, SIG_IGN);
    });
}

QByteArray ChildProcess::firstLine(QProcess &process)
{
    QDeadlineTimer deadline(20000);
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(int(deadline.remainingTime())))
            return {};
    }
    return process.readLine().trimmed();
}

bool ChildProcess::stop(QProcess &process)
{
    if (process.state() == QProcess::NotRunning)
        return true;
    process.terminate();
    if (process.waitForFinished(5000))
        return true;
    process.kill();
    process.waitForFinished(5000);
    return false;
}
