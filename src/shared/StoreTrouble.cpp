#include "StoreTrouble.h"

#include "Shared.h"

StoreTrouble::StoreTrouble(QObject *parent) : QObject(parent)
{
    connect(&Shared::store(), &UserDefaults::troubleChanged, this, &StoreTrouble::textChanged);
}

QString StoreTrouble::text()
{
    return text(Shared::store().trouble());
}

QString StoreTrouble::text(UserDefaults::Trouble trouble)
{
    switch (trouble) {
    case UserDefaults::Trouble::none:
        return {};
    case UserDefaults::Trouble::noStore:
        return tr("Changes last only until you close this window: there is nothing to save them in.");
    case UserDefaults::Trouble::noAnswer:
        return tr("Changes can't be saved: the settings service doesn't answer.");
    case UserDefaults::Trouble::noRoom:
        return tr("Changes can't be saved: the disk is full or read-only.");
    case UserDefaults::Trouble::locked:
        return tr("This can't be changed: your administrator has locked it.");
    case UserDefaults::Trouble::unknown:
        break;
    }
    return tr("Changes can't be saved: the settings service stores them elsewhere.");
}
