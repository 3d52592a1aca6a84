#pragma once

#include "Tool.h"

/// The suite that tests store in, and how another process sees it.
inline const QString suiteName = QStringLiteral("com.vexmoor.corvane");
inline const QString suiteFolder = QStringLiteral("/com/vexmoor/corvane/");

inline QString readFromOutside(const QString &key)
{
    return dconf({QStringLiteral("read"), suiteFolder + key});
}

inline void writeFromOutside(const QString &key, const QString &value)
{
    dconf({QStringLiteral("write"), suiteFolder + key, value});
}
