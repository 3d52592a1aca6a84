#pragma once

#include "Scene.h"

#include <QVariantMap>

class EBWindow;

/// One of the application's own windows as a scene: its content stands here instead of in a window. It is as large as
/// the window would be.
class WindowScene : public Scene {
    Q_OBJECT
    QML_ANONYMOUS
    /// All that the shared store holds, by key.
    Q_PROPERTY(QVariantMap store MEMBER m_store)
public:
    using Scene::Scene;

protected:
    /// Opens the window; called once, when the scene knows the product around it.
    virtual void open() = 0;

    /// Takes over what the window shows.
    void adopt(EBWindow &window);

    bool isOpen() const { return m_isOpen; }

    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QVariantMap m_store;
    bool m_isOpen = false;
};
