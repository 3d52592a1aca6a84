#pragma once

#include "Platform.h"

/// The services of a Linux desktop. Each is made when it is first asked for, so making this costs nothing.
/// The application object must exist before any service but the bundles is asked for.
std::unique_ptr<Platform> makeFreedesktopPlatform();
