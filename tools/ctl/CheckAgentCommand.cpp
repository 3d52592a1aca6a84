#include "CheckAgentCommand.h"

#include "AgentCheck.h"
#include "Output.h"
#include "TrialSession.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// Where the program lies that a shell would start by that name; empty when there is none.
QString found(const QString &name)
{
    if (!name.contains(u'/'))
        return QStandardPaths::findExecutable(name);
    const QFileInfo file(name);
    return file.isFile() && file.isExecutable() ? file.absoluteFilePath() : QString();
}

}

int CheckAgentCommand::run(const Call &call)
{
    const QString program = found(call.operands.constFirst());
    if (program.isEmpty())
        return Output::failure(call, QStringLiteral("there is no program \"%1\"").arg(call.operands.constFirst()));
    TrialSession session;
    if (!session.isValid())
        return Output::failure(call, QStringLiteral("no session can be made: dbus-daemon does not start"));
    const QList<AgentCheck::Rule> rules =
        AgentCheck(
            program, call.operands.sliced(1), [&] { return session.restartBus(); }, 10s, 30s)
            .run();

    QJsonArray array;
    for (const AgentCheck::Rule &rule : rules) {
        array.append(QJsonObject{{QStringLiteral("rule"), rule.name},
                                 {QStringLiteral("demand"), rule.demand},
                                 {QStringLiteral("passed"), rule.faults.isEmpty()},
                                 {QStringLiteral("faults"), QJsonArray::fromStringList(rule.faults)}});
        if (call.json)
            continue;
        const QString verdict = rule.faults.isEmpty() ? QStringLiteral("ok  ") : QStringLiteral("FAIL");
        Output::line(QStringLiteral("%1  %2  %3").arg(verdict, rule.name.leftJustified(10), rule.demand));
        for (const QString &fault : rule.faults)
            Output::line(QStringLiteral("                  - %1").arg(fault));
    }
    if (call.json)
        Output::json(array);
    const bool passes = std::ranges::all_of(rules, [](const auto &rule) { return rule.faults.isEmpty(); });
    return passes ? ExitCode::success : ExitCode::failure;
}
