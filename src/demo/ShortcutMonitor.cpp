#include "ShortcutMonitor.h"

#include "Platform.h"

void ShortcutMonitor::setActive(bool active)
{
    if (active == this->active())
        return;
    m_monitor =
        active ? Platform::current().monitorKeyDown([this](const KeyDown &key) { return handle(key); }) : nullptr;
    emit activeChanged();
}

bool ShortcutMonitor::handle(const KeyDown &key)
{
    const auto hotkey = Hotkeys::match(key.keyCode, key.flags);
    if (!hotkey)
        return false;
    if (!key.isARepeat && m_model)
        m_model->press(*hotkey);
    return true;
}
