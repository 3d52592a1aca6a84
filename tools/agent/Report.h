#pragma once

#include <QString>

/// Writes one of the "agent." keys, but only when it says something new: every write wakes whoever watches the store.
void report(const QString &key, bool value);
