#include "SettingsWindowScene.h"

#include "EBSettingsWindowController.h"
#include "SettingsPages.h"

#include <QQmlEngine>

SettingsWindowScene::SettingsWindowScene(QQuickItem *parent) : WindowScene(parent) { }

SettingsWindowScene::~SettingsWindowScene() = default;

void SettingsWindowScene::setApp(const QString &rawValue)
{
    if (m_app == rawValue)
        return;
    m_app = rawValue;
    if (isOpen())
        open();
    emit appChanged();
}

void SettingsWindowScene::open()
{
    m_controller = std::make_unique<EBSettingsWindowController>(*qmlEngine(this),
                                                                EBApps::fromRawValue(m_app).value_or(EBApp::corvane),
                                                                QStringLiteral("1.0"), SettingsPages::make(), m_page);
    adopt(*m_controller->window());
}
