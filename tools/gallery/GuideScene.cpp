#include "GuideScene.h"

#include "FakePlatform.h"
#include "GuideWindowController.h"

#include <QQmlEngine>

GuideScene::GuideScene(QQuickItem *parent) : WindowScene(parent) { }

GuideScene::~GuideScene() = default;

void GuideScene::open()
{
    static_cast<FakePlatform &>(Platform::current()).windows.available = m_knowsWindows;
    m_controller = std::make_unique<GuideWindowController>(*qmlEngine(this), OnboardingFlow::Run::first, [] {});
    OnboardingFlow &flow = m_controller->flow();
    flow.go(OnboardingSteps::fromCaseName(m_step).value_or(OnboardingStep::welcome));
    if (m_accessRequested)
        flow.requestAccess();
    adopt(m_controller->window());
}
