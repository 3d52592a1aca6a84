#include "SettingsWindowScene.h"

#include "EBSettingsWindowController.h"
#include "SettingsPages.h"
#include "Shared.h"
#include "UserDefaults.h"

#include <QQmlEngine>

SettingsWindowScene::SettingsWindowScene(QQuickItem *parent) : Scene(parent) { }

SettingsWindowScene::~SettingsWindowScene() = default;

void SettingsWindowScene::setApp(const QString &rawValue)
{
    if (m_app == rawValue)
        return;
    m_app = rawValue;
    if (m_controller)
        open();
    emit appChanged();
}

void SettingsWindowScene::itemChange(ItemChange change, const ItemChangeData &data)
{
    Scene::itemChange(change, data);
    // Not before: until then it does not know the product around it.
    if (change == ItemSceneChange && data.window && !m_controller) {
        fillStore();
        open();
    }
}

void SettingsWindowScene::fillStore() const
{
    for (const Contract::StoreKey &key : Contract::storeKeys())
        Shared::store().setValue(key.name, m_store.value(key.name));
}

void SettingsWindowScene::open()
{
    m_controller = std::make_unique<EBSettingsWindowController>(*qmlEngine(this),
                                                                EBApps::fromRawValue(m_app).value_or(EBApp::corvane),
                                                                QStringLiteral("1.0"), SettingsPages::make(), m_page);
    EBWindow *window = m_controller->window();
    const QList<QQuickItem *> content = window->contentItem()->childItems();
    for (QQuickItem *item : content)
        item->setParentItem(this);
    const auto resize = [this, window] { setImplicitSize(window->width(), window->height()); };
    connect(window, &QWindow::heightChanged, this, resize);
    resize();
}
