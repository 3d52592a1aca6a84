<<<<<<<< HEAD:tools/agent/AgentState.cpp
#include "AgentState.h"
========
#include "AgentState.h"
>>>>>>>> w-kit:tools/agent/AgentState.cpp

#include "Shared.h"
#include "UserDefaults.h"

<<<<<<<< HEAD:tools/agent/AgentState.cpp
void AgentState::report(const QString &key, bool value)
========
void AgentState::report(const QString &key, bool value)
>>>>>>>> w-kit:tools/agent/AgentState.cpp
{
    const QVariant stored = Shared::store().value(key);
    if (stored.typeId() != QMetaType::Bool || stored.toBool() != value)
        Shared::store().setValue(key, value);
}
