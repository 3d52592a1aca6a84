#pragma once

#include "EBWindow.h"
#include "KeyMonitor.h"
#include "OnboardingFlow.h"

#include <functional>
#include <memory>

class ViewEngine;

/// The window of the onboarding. It hides and comes back as GuideVisibility asks. However the onboarding ends, it ends
/// here, once.
class GuideWindowController : public QObject {
    Q_OBJECT
public:
    /// `onFinish` is run once, when the onboarding ends. The window is made and centred, and not shown yet.
    GuideWindowController(QQmlEngine &engine, OnboardingFlow::Run run, std::function<void()> onFinish);
    ~GuideWindowController() override;

    /// Begins to load what the guide starts with, while the caller prepares the rest.
    static void prefetch(ViewEngine &engine);

    EBWindow &window() { return m_window; }
    OnboardingFlow &flow() { return m_flow; }
    bool finished() const { return m_finished; }

    /// Ends the onboarding: hides the window and stops listening to keys and to GuideVisibility. Further calls do
    /// nothing.
    void finish();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followStep();
    void setVisible(bool visible);

    std::function<void()> m_onFinish;
    bool m_finished = false;
    // Declared before the window, whose views use it until they are destroyed.
    OnboardingFlow m_flow;
    EBWindow m_window;
    std::unique_ptr<KeyMonitor> m_keyMonitor;
    QMetaObject::Connection m_observer;
};
