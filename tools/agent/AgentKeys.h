#pragma once

#include <QString>

/// The "agent." keys, by which the agent tells the application how it is.
namespace AgentKeys {

/// Writes one of them, but only when it says something new: every write wakes whoever watches the store.
void report(const QString &key, bool value);

}
