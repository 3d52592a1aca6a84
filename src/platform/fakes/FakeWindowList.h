#pragma once

#include "WindowList.h"

/// The windows that a test puts on the screen, front to back.
class FakeWindowList : public WindowList {
public:
    QList<OnScreenWindow> windows;
    bool available = true;

    bool isAvailable() override { return available; }
    QList<OnScreenWindow> onScreenWindows() override { return available ? windows : QList<OnScreenWindow>(); }
};
