#include "SettingsPages.h"

#include "ButtonsPage.h"
#include "GeneralPage.h"
#include "LayoutsPage.h"
#include "ShortcutsPage.h"

QList<EBSettingsPage> SettingsPages::make()
{
    return {generalPage(), buttonsPage(), shortcutsPage(), layoutsPage()};
}
