#pragma once

#include "DemoModel.h"
#include "ViewWindow.h"

/// One view of the practice over a model of its own, alone in a window.
class DemoView : public ViewWindow {
public:
    /// `name` is the QML type's. The store holds `stored` when the view is made. Without a `width` in points the view
    /// is as wide as it wants to be.
    explicit DemoView(const QString &name, const QVariantMap &properties = {}, qreal width = 0,
                      const QVariantMap &stored = {});
    ~DemoView() { discard(); }

    DemoModel &model() { return m_model; }
    using ViewWindow::discard;

    /// Moves the pointer to where nothing is.
    void pointAway() { QTest::mouseMove(&window(), {590, 410}); }
    /// A shortcut, or any other key, from the keyboard. True when it was swallowed.
    bool press(std::int64_t keyCode, std::uint64_t flags = Hotkeys::commandFlag, bool isARepeat = false)
    {
        return platform.pressKey({keyCode, flags, isARepeat});
    }

private:
    DemoModel m_model;
};
