#pragma once

#include "EBSettingsPage.h"

/// Snapping and layouts, and the list of saved layouts.
EBSettingsPage layoutsPage();
