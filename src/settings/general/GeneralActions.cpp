#include "GeneralActions.h"

#include "Platform.h"
#include "Shared.h"

namespace {
std::function<void()> openGuide;
}

void GeneralActions::setGuideOpener(std::function<void()> opener)
{
    openGuide = std::move(opener);
}

void GeneralActions::setLaunchAtLogin(bool launch)
{
    UserDefaults &store = Shared::store();
    store.setValue(Shared::Key::agentLaunchAtLogin, launch);
    store.setValue(Shared::Key::agentLaunchAtLoginNeedsApproval, false);
    Shared::send(Shared::Command::setLaunchAtLogin, launch);
}

void GeneralActions::setMenuBarIconShown(bool shown)
{
    Shared::store().setValue(Shared::Key::menuBarIconHidden, !shown);
    Shared::send(Shared::Command::applySettings);
}

void GeneralActions::requestAccessibility()
{
    Shared::send(Shared::Command::requestAccessibility);
}

void GeneralActions::openLoginItems()
{
    Platform::current().workspace().openLoginItemsSettings();
}

void GeneralActions::showGuide()
{
    if (openGuide)
        openGuide();
}
