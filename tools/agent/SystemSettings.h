#pragma once

#include "EBWindow.h"
#include "ViewEngine.h"

#include <memory>

/// Stands in for the system's settings: a window with the list of applications that may have the
/// Accessibility permission. The desktops this runs on have no such page of their own.
class SystemSettings {
public:
    /// Shows the Accessibility page, in front of other windows.
    void openAccessibility();

private:
    ViewEngine m_engine;
    std::unique_ptr<EBWindow> m_window;
};
