#pragma once

#include "Call.h"

/// Taking the settings along.
namespace TransferCommands {

int exportTo(const Call &call);
int importFrom(const Call &call);

}
