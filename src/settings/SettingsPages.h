#pragma once

#include "EBSettingsPage.h"

namespace SettingsPages {

/// Every page of the settings window, in sidebar order.
QList<EBSettingsPage> make();

}
