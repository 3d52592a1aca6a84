#pragma once

#include "Call.h"

/// The saved layouts.
namespace LayoutCommands {

int run(const Call &call);

}
