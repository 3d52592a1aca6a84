#pragma once

#include "WindowScene.h"

#include <memory>

class EBSettingsWindowController;

/// The settings window as a scene.
class SettingsWindowScene : public WindowScene {
    Q_OBJECT
    QML_ELEMENT
    /// The product's raw string.
    Q_PROPERTY(QString app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    /// The id of the page that is shown.
    Q_PROPERTY(QString page MEMBER m_page)
public:
    explicit SettingsWindowScene(QQuickItem *parent = nullptr);
    ~SettingsWindowScene() override;

    QString app() const { return m_app; }
    void setApp(const QString &rawValue);

signals:
    void appChanged();

protected:
    void open() override;

private:
    QString m_app;
    QString m_page;
    std::unique_ptr<EBSettingsWindowController> m_controller;
};
