#pragma once

#include "Call.h"

/// The keys of the store and the commands of the channel, one by one.
namespace StoreCommands {

int list(const Call &call);
int get(const Call &call);

/// Stores the value and then posts the command that the contract asks for.
int set(const Call &call);
int reset(const Call &call);
int send(const Call &call);

/// Waits until what was set is stored. Otherwise says why it is not, and gives the code to exit with.
int finish(const Call &call);

}
