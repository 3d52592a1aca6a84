#include "SettingsPages.h"

#include "GeneralPage.h"
#include "LayoutsPage.h"
#include "ShortcutsPage.h"

QList<EBSettingsPage> SettingsPages::make()
{
    return {generalPage(), shortcutsPage(), layoutsPage()};
}
