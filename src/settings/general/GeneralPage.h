#pragma once

#include "EBSettingsPage.h"

/// Start at login, the menu-bar icon, the Accessibility permission and the guide.
EBSettingsPage generalPage();
