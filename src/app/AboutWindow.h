#pragma once

#include "EBWindow.h"

class ViewEngine;

/// The About window: the product with its version, and a way to its website and, where the agent offers updates, to the
/// update check. Escape closes it.
class AboutWindow : public EBWindow {
    Q_OBJECT
public:
    /// Made in the middle of the screen, not yet shown.
    explicit AboutWindow(QQmlEngine &engine);

    /// Begins to load what the window shows, while the caller prepares the rest.
    static void prefetch(ViewEngine &engine);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    /// Asks the agent to run its update check.
    static void checkForUpdates();
};
