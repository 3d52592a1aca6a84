#pragma once

#include <QString>

/// What the application knows of the agent: the "agent." keys.
namespace AgentState {

/// Writes one of them, but only when it says something new: every write wakes whoever watches the store.
void report(const QString &key, bool value);

}
