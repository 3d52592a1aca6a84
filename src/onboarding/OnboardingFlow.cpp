#include "OnboardingFlow.h"

#include "GuideVisibility.h"
#include "Platform.h"
#include "Shared.h"

#include <QPointer>

#include <utility>

namespace {

constexpr double tileDelay = 0.8; // seconds, in which System Settings comes up
constexpr double advanceDelay = 1.0; // seconds, in which the person sees that the permission has arrived

OnboardingStep firstStep()
{
    return OnboardingSteps::fromText(qEnvironmentVariable("CV_STEP")).value_or(OnboardingStep::welcome);
}

bool initialLaunchAtLogin(OnboardingFlow::Run run)
{
    const QVariant stored = Shared::store().value(Shared::Key::agentLaunchAtLogin);
    const bool isKnown = run == OnboardingFlow::Run::replay && stored.typeId() == QMetaType::Bool;
    return !isKnown || stored.toBool();
}

}

OnboardingFlow::OnboardingFlow(Run run, std::function<void()> finish)
    : m_finish(std::move(finish)),
      m_step(firstStep()),
      m_carriesTile(!Platform::current().windowList().isAvailable()),
      m_launchAtLogin(initialLaunchAtLogin(run)),
      m_reduceMotion(Platform::current().appearance().shouldReduceMotion())
{
    connect(&m_demo, &DemoModel::doneChanged, this, &OnboardingFlow::updateHint);
    connect(&m_look, &OverlayLook::changed, this, &OnboardingFlow::updateHint);
    updateHint();
    m_trusted.setKey(Shared::Key::agentAccessibilityTrusted);
    connect(&m_trusted, &AppStorage::valueChanged, this, &OnboardingFlow::followTrust);
}

QStringList OnboardingFlow::steps()
{
    QStringList words;
    for (const OnboardingStep step : OnboardingSteps::allCases)
        words.append(OnboardingSteps::word(step));
    return words;
}

QString OnboardingFlow::kicker(const QString &caseName)
{
    const auto step = OnboardingSteps::fromCaseName(caseName);
    return step ? OnboardingSteps::kicker(*step) : QString();
}

void OnboardingFlow::updateHint()
{
    const QString hint = nextHint();
    if (hint == m_hint)
        return;
    m_hint = hint;
    emit hintChanged();
}

QString OnboardingFlow::nextHint() const
{
    if (!m_demo.done().contains(DemoModel::Task::close)) {
        const bool isCloseAlone = !m_look.showMinimize() && !m_look.showMaximize();
        return isCloseAlone ? tr("Click the cross, or press ⌘W to close it.")
                            : tr("Click a button, or press ⌘W to close it.");
    }
    if (!m_demo.done().contains(DemoModel::Task::minimize))
        return tr("Now hover another window and press ⌘M to minimize it.");
    if (!m_demo.done().contains(DemoModel::Task::fullscreen))
        return tr("Press ⌘F on a window to take it full screen.");
    return tr("That's all there is to it. It works just like this in Mission Control.");
}

void OnboardingFlow::go(OnboardingStep step)
{
    if (step == m_step)
        return;
    m_step = step;
    if (m_step != OnboardingStep::access)
        m_dragTile.hide();
    emit stepChanged();
}

void OnboardingFlow::goBy(int steps)
{
    if (const auto step = OnboardingSteps::fromRawValue(static_cast<int>(m_step) + steps))
        go(*step);
}

void OnboardingFlow::next()
{
    goBy(1);
}

void OnboardingFlow::back()
{
    goBy(-1);
}

void OnboardingFlow::skipSetup()
{
    m_dragTile.hide();
    m_finish();
}

void OnboardingFlow::requestAccess()
{
    if (std::exchange(m_isStartingAgent, true))
        return;
    Platform::current().instances().start(Contract::agentName, [flow = QPointer(this)](Instances::Start start) {
        if (flow)
            flow->askAgent(start);
    });
}

void OnboardingFlow::askAgent(Instances::Start start)
{
    m_isStartingAgent = false;
    const bool isMissing = start == Instances::Start::failed;
    if (isMissing != m_agentMissing) {
        m_agentMissing = isMissing;
        emit agentMissingChanged();
    }
    // Whoever has moved on while the agent was started is not interrupted.
    if (isMissing || m_step != OnboardingStep::access)
        return;
    if (!m_accessRequested) {
        m_accessRequested = true;
        emit accessRequestedChanged();
    }
    if (m_carriesTile) {
        Shared::send(Shared::Command::requestAccessibility);
        return;
    }
    GuideVisibility::post(false);
    Shared::send(Shared::Command::requestAccessibility);
    Platform::current().mainQueue().after(tileDelay, this, [this] {
        // Whoever has moved on in the meantime, or has the permission, has no use for the tile.
        if (m_step == OnboardingStep::access && !trusted())
            m_dragTile.show();
    });
}

void OnboardingFlow::looksGood()
{
    Shared::send(Shared::Command::applySettings);
    next();
}

void OnboardingFlow::keepTheDefaults()
{
    m_look.reset();
    looksGood();
}

void OnboardingFlow::finishSetup(bool startAtLogin, bool openMissionControl)
{
    Shared::send(Shared::Command::setLaunchAtLogin, startAtLogin);
    Shared::send(Shared::Command::applySettings);
    if (openMissionControl)
        Platform::current().workspace().openMissionControl();
    m_finish();
}

void OnboardingFlow::followTrust()
{
    emit trustedChanged();
    if (!trusted() || m_step != OnboardingStep::access)
        return;
    m_dragTile.hide();
    GuideVisibility::post(true);
    Platform::current().mainQueue().after(advanceDelay, this, [this] {
        if (m_step == OnboardingStep::access)
            go(OnboardingStep::customize);
    });
}
