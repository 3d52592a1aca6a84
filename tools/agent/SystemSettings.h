#pragma once

#include "AccessibilityList.h"
#include "EBWindow.h"
#include "ViewEngine.h"

#include <memory>

/// Stands in for the system's settings: a window with the list of applications that may have the
/// Accessibility permission. The desktops this runs on have no such page of their own.
class SystemSettings {
public:
    /// The name of the window's class, by which the application knows it for what it stands for.
    static const QString windowClass;

    /// `list` must outlive this.
    explicit SystemSettings(AccessibilityList &list) : m_list(list) { }

    /// Shows the Accessibility page, in front of other windows.
    void openAccessibility();

private:
    AccessibilityList &m_list;
    ViewEngine m_engine;
    std::unique_ptr<EBWindow> m_window;
};
