#include "ButtonsActions.h"

#include "Shared.h"

ButtonsActions::ButtonsActions(QObject *parent) : QObject(parent)
{
    connect(&m_look, &OverlayLook::changed, this, [] { Shared::send(Shared::Command::applySettings); });
}
