#include "ReferenceAgent.h"

#include "Store.h"

#include <QFile>
#include <QTest>

ReferenceAgent::ReferenceAgent(const QProcessEnvironment &environment)
    : Program(QStringLiteral(CORVANE_AGENT_PROGRAM), environment)
{
}

bool ReferenceAgent::start(const Store &store, const QStringList &arguments)
{
    QFile::remove(qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/autostart/com.vexmoor.corvane.desktop"));
    return Program::start(arguments) && store.waitFor(AgentKey::launchAtLogin, false, startTime);
}

Accessible ReferenceAgent::find(AtspiRole role, const QString &name) const
{
    Accessible found;
    const auto isThere = [&] {
        found = tree().find(role, name);
        return !found.isNull();
    };
    return QTest::qWaitFor(isThere, startTime) ? found : Accessible();
}
