#pragma once

#include "Call.h"

/// Tries out an agent in a session of its own, so that nothing of the person's session or settings is touched.
namespace CheckAgentCommand {

inline constexpr const char *plainName = "check-agent";
inline const QString name = QString::fromLatin1(plainName);

/// Must be the first to ask for a service of the platform: it changes which session there is.
int run(const Call &call);

}
