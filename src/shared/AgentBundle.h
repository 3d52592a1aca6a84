#pragma once

#include <QUrl>

#include <memory>
#include <optional>

class Bundle;

/// The application this one is nested in.
namespace AgentBundle {

/// Where the agent's bundle is: the one whose "/Contents/Helpers/" folder holds this application. None outside of one.
std::optional<QUrl> url();

/// The bundle there. Null outside of one, and where it cannot be read.
std::unique_ptr<Bundle> bundle();

/// Whether the agent can check for updates: its info dictionary has the 44 characters of a base64-encoded
/// 32-byte public key under "SUPublicEDKey".
bool updatesAvailable();

}
