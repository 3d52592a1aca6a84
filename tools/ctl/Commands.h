#pragma once

#include "Call.h"

/// Every command of the program.
namespace Commands {

/// Carries out what was typed, and gives the code to exit with. The platform must be installed.
int run(const Call &call);

}
