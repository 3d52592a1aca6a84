#pragma once

#include "Scene.h"

#include <QVariantMap>

#include <memory>

class EBSettingsWindowController;

/// The settings window as a scene: the real one, whose content stands here instead of in a window of its own. It is as
/// large as that window would be.
class SettingsWindowScene : public Scene {
    Q_OBJECT
    QML_ELEMENT
    /// The product's raw string.
    Q_PROPERTY(QString app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    /// The id of the page that is shown.
    Q_PROPERTY(QString page MEMBER m_page)
    /// All that the shared store holds, by key.
    Q_PROPERTY(QVariantMap store MEMBER m_store)
public:
    explicit SettingsWindowScene(QQuickItem *parent = nullptr);
    ~SettingsWindowScene() override;

    QString app() const { return m_app; }
    void setApp(const QString &rawValue);

signals:
    void appChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void open();
    void fillStore() const;

    QString m_app;
    QString m_page;
    QVariantMap m_store;
    std::unique_ptr<EBSettingsWindowController> m_controller;
};
