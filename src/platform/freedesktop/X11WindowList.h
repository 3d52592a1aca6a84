#pragma once

#include "WindowList.h"

#include <memory>

struct X11Names;

/// The windows on an X server: those its window manager stacks or lists, and where there is none, those of the root
/// window. On anything but X it is not available. Each listing costs a few round trips, however many windows there are.
class X11WindowList : public WindowList {
public:
    X11WindowList();
    ~X11WindowList() override;

    bool isAvailable() override;
    QList<OnScreenWindow> onScreenWindows() override;

private:
    std::unique_ptr<X11Names> m_names;
};
