#pragma once

#include "EBSettingsPage.h"

/// How the overlay buttons look, how big they are, which of them are shown, and what the full-screen button does.
EBSettingsPage buttonsPage();
