#pragma once

#include "EBSettingsPage.h"

/// The agent's shortcuts, each of which can be switched off.
EBSettingsPage shortcutsPage();
