#include "SettingsPages.h"

#include "GeneralPage.h"
#include "ShortcutsPage.h"

QList<EBSettingsPage> SettingsPages::make()
{
    return {generalPage(), shortcutsPage()};
}
