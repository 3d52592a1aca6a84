#include "WindowScene.h"

#include "EBWindow.h"
#include "Shared.h"
#include "UserDefaults.h"

void WindowScene::itemChange(ItemChange change, const ItemChangeData &data)
{
    Scene::itemChange(change, data);
    if (change != ItemSceneChange || !data.window || m_isOpen)
        return;
    m_isOpen = true;
    for (const Contract::StoreKey &key : Contract::storeKeys())
        Shared::store().setValue(key.name, m_store.value(key.name));
    open();
}

void WindowScene::adopt(EBWindow &window)
{
    const QList<QQuickItem *> content = window.contentItem()->childItems();
    for (QQuickItem *item : content)
        item->setParentItem(this);
    const auto resize = [this, &window] { setImplicitSize(window.width(), window.height()); };
    connect(&window, &QWindow::heightChanged, this, resize);
    resize();
}
