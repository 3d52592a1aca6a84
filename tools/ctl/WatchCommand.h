#pragma once

#include "Call.h"

/// Follows the store and the command channel.
namespace WatchCommand {

/// Prints until it is ended, or nobody reads any more.
int run(const Call &call);

}
