#pragma once

#include <memory>

class Bundle;

/// The application this one is nested in.
namespace AgentBundle {

/// The agent's bundle: the one whose "/Contents/Helpers/" folder holds this application. Null outside of one.
std::unique_ptr<Bundle> bundle();

/// Whether the agent can check for updates: its info dictionary has the 44 characters of a base64-encoded
/// 32-byte public key under "SUPublicEDKey".
bool updatesAvailable();

}
