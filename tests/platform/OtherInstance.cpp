#include "OtherInstance.h"

#include "ChildProcess.h"
#include "FreedesktopPlatform.h"

#include <QCoreApplication>
#include <QTest>

#include <cstdio>

namespace {

const QString testCase = QStringLiteral("tst_instances");
const QString holding = QStringLiteral("--hold");
const QString asking = QStringLiteral("--ask");
const QString refusing = QStringLiteral("refusing");

void print(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

}

OtherInstance::OtherInstance(const QString &name, bool refuses)
{
    ChildProcess::endWithThisProcess(m_process);
    m_process.start(QCoreApplication::applicationFilePath(), {testCase, holding, name, refuses ? refusing : QString()});
    if (ChildProcess::firstLine(m_process) != "held")
        QTest::qFail("no other process holds the name", __FILE__, __LINE__);
}

OtherInstance::~OtherInstance()
{
    ChildProcess::stop(m_process);
}

QList<Instances::Request> OtherInstance::asked()
{
    // It prints before it answers.
    m_process.waitForReadyRead();
    QList<Instances::Request> requests;
    const QStringList lines = QString::fromUtf8(m_process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        requests.append({line.section(u' ', 1, 1), line.section(u' ', 2)});
    return requests;
}

bool OtherInstance::ask(const QString &name, const Instances::Request &request)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {testCase, asking, name, request.action, request.argument});
    return QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20000) && process.exitCode() == 0;
}

bool OtherInstance::isMeant(const QStringList &arguments)
{
    return arguments.value(1) == holding || arguments.value(1) == asking;
}

int OtherInstance::run(const QStringList &arguments)
{
    Platform::install(makeFreedesktopPlatform());
    Instances &instances = Platform::current().instances();
    const QString name = arguments.value(2);
    if (arguments.value(1) == asking)
        return instances.ask(name, {arguments.value(3), arguments.value(4)}) ? 0 : 1;
    const bool refuses = arguments.value(3) == refusing;
    instances.setHandler([refuses](const Instances::Request &request) {
        print(QStringLiteral("asked ") + request.action + u' ' + request.argument);
        return !refuses;
    });
    if (!instances.claim(name))
        return 1;
    print(QStringLiteral("held"));
    return QCoreApplication::exec();
}
