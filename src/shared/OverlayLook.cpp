#include "OverlayLook.h"

#include "Shared.h"

#include <utility>

OverlayLook::OverlayLook(QObject *parent) : QObject(parent)
{
    using namespace Shared;
    for (const auto &[value, key] :
         {std::pair(&m_theme, Key::buttonTheme), std::pair(&m_size, Key::buttonSizeOption),
          std::pair(&m_showMinimize, Key::showMinimizeButton), std::pair(&m_showMaximize, Key::showMaximizeButton)}) {
        value->setKey(key);
        connect(value, &AppStorage::valueChanged, this, &OverlayLook::changed);
    }
}

void OverlayLook::reset()
{
    for (AppStorage *value : {&m_theme, &m_size, &m_showMinimize, &m_showMaximize})
        value->setValue(value->defaultValue());
}
