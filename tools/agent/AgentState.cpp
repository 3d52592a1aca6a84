#include "AgentState.h"

#include "Shared.h"
#include "UserDefaults.h"

void AgentState::report(const QString &key, bool value)
{
    const QVariant stored = Shared::store().value(key);
    if (stored.typeId() != QMetaType::Bool || stored.toBool() != value)
        Shared::store().setValue(key, value);
}
