#include "ShortcutMonitor.h"

#include "Platform.h"

namespace {

/// The key of Control lies where some keyboards have Command, and people try it. Beside Command it stays what it is.
std::uint64_t meant(std::uint64_t flags)
{
    const bool isAlone = (flags & KeyFlags::controlFlag) && !(flags & KeyFlags::commandFlag);
    return isAlone ? (flags & ~KeyFlags::controlFlag) | KeyFlags::commandFlag : flags;
}

}

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
    const auto hotkey = Hotkeys::match(key.keyCode, meant(key.flags));
    if (!hotkey)
        return false;
    if (!key.isARepeat && m_model)
        m_model->press(*hotkey);
    return true;
}
