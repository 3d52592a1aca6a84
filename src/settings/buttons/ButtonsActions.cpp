#include "ButtonsActions.h"

#include "Shared.h"

void ButtonsActions::announce()
{
    Shared::send(Shared::Command::applySettings);
}
