#pragma once

#include "WindowList.h"

/// The windows that a test puts on the screen, front to back.
class FakeWindowList : public WindowList {
public:
    QList<OnScreenWindow> windows;

    QList<OnScreenWindow> onScreenWindows() override { return windows; }
};
