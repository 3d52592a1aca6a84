#pragma once

#include "ViewWindow.h"

/// A settings pane in a window of its own.
class PaneWindow : public ViewWindow {
public:
    /// `stored` is what the store holds before the pane is made.
    explicit PaneWindow(const QString &url, const QVariantMap &stored = {}, bool reduceMotion = true)
        : ViewWindow(stored)
    {
        platform.look.setReduceMotion(reduceMotion);
        put(ViewEngine::make(engine, url), {386, 1000});
        bringUp();
    }

    /// What was posted to the agent, in order.
    const QList<FakeDistributedNotificationCenter::Post> &posts() const { return platform.notifications.posts; }

    bool isChecked(const QString &name, QAccessible::Role role = QAccessible::CheckBox)
    {
        return state(name, role).checked;
    }
    bool isDisabled(const QString &name, QAccessible::Role role) { return state(name, role).disabled; }
};
