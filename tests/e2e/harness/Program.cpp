#include "Program.h"

#include "ChildProcess.h"

#include <QTest>

Program::Program(const QString &path, const QProcessEnvironment &environment)
{
    ChildProcess::endWithThisProcess(m_process);
    m_process.setProgram(path);
    m_process.setProcessEnvironment(environment);
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput,
                     [this] { m_output += m_process.readAllStandardOutput(); });
    QObject::connect(&m_process, &QProcess::readyReadStandardError,
                     [this] { m_errors += m_process.readAllStandardError(); });
}

Program::~Program()
{
    terminate();
}

bool Program::start(const QStringList &arguments)
{
    m_process.setArguments(arguments);
    m_process.start();
    const bool started = m_process.waitForStarted();
    m_processId = m_process.processId();
    return started;
}

bool Program::waitForExit(int milliseconds)
{
    return QTest::qWaitFor([this] { return !isRunning(); }, milliseconds);
}

int Program::exitCode() const
{
    const bool exited = !isRunning() && m_process.exitStatus() == QProcess::NormalExit;
    return exited ? m_process.exitCode() : -1;
}

bool Program::terminate()
{
    return ChildProcess::stop(m_process);
}

QStringList Program::complaints(const QStringList &expected) const
{
    QStringList rest = standardError();
    for (const QString &line : expected)
        rest.removeOne(line);
    return rest;
}

QStringList Program::lines(const QByteArray &output)
{
    return QString::fromUtf8(output).split(u'\n', Qt::SkipEmptyParts);
}
