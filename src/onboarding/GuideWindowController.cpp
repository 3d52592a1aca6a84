#include "GuideWindowController.h"

#include "GuideVisibility.h"
#include "Platform.h"
#include "ViewEngine.h"

#include <QEvent>

namespace {

constexpr QSize guideSize(560, 388); // points
// In line with the texts of the practice and the choice of a look, and well above them.
constexpr QPoint buttonsPlace(28, 12);

const QString rootView = QStringLiteral("qrc:/Corvane/Onboarding/OnboardingView.qml");
const QString firstStep = QStringLiteral("qrc:/Corvane/Onboarding/WelcomeStep.qml");

}

GuideWindowController::GuideWindowController(QQmlEngine &engine, OnboardingFlow::Run run,
                                             std::function<void()> onFinish)
    : m_onFinish(std::move(onFinish)),
      m_flow(run, [this] { finish(); }),
      m_window(EBApp::corvane, guideSize,
               {.miniaturizeButtonEnabled = false, .movableByWindowBackground = true, .buttonsPlace = buttonsPlace})
{
    m_window.setTitle(tr("Welcome to Corvane"));
    m_window.center();
    m_window.installEventFilter(this);
    m_window.host(engine, rootView, {{QStringLiteral("flow"), QVariant::fromValue(&m_flow)}});
    connect(&m_flow, &OnboardingFlow::stepChanged, this, &GuideWindowController::followStep);
    followStep();
    m_keyMonitor = Platform::current().monitorKeyDown([this](const KeyDown &key) {
        const bool isEscape = key.keyCode == KeyCodes::escape;
        if (isEscape)
            finish();
        return isEscape;
    });
    m_observer = GuideVisibility::observe(this, [this](bool visible) { setVisible(visible); });
}

GuideWindowController::~GuideWindowController() = default;

void GuideWindowController::prefetch(ViewEngine &engine)
{
    engine.prefetch(QUrl(rootView));
    engine.prefetch(QUrl(firstStep));
}

void GuideWindowController::finish()
{
    if (m_finished)
        return;
    m_finished = true;
    m_keyMonitor.reset();
    disconnect(m_observer);
    m_window.hide();
    m_onFinish();
}

bool GuideWindowController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close)
        finish();
    return QObject::eventFilter(watched, event);
}

void GuideWindowController::followStep()
{
    // The practice goes by the places of the keys and these shortcuts by their letters, which in many layouts lie
    // elsewhere: whoever does what the hint says must not lose the guide.
    m_window.setShortcutsEnabled(m_flow.step() != OnboardingStep::tryIt);
    m_window.setLoudGround(OnboardingSteps::hasLoudCorner(m_flow.step()));
}

void GuideWindowController::setVisible(bool visible)
{
    if (visible)
        m_window.makeKeyAndOrderFront();
    else
        m_window.hide();
}
