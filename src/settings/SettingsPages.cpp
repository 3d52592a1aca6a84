#include "SettingsPages.h"

#include "GeneralPage.h"

QList<EBSettingsPage> SettingsPages::make()
{
    return {generalPage()};
}
