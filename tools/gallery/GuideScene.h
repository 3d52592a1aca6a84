#pragma once

#include "WindowScene.h"

#include <memory>

class GuideWindowController;

/// The guide window as a scene, on one of its steps.
class GuideScene : public WindowScene {
    Q_OBJECT
    QML_ELEMENT
    /// The step's case name.
    Q_PROPERTY(QString step MEMBER m_step)
    /// The permission was asked for.
    Q_PROPERTY(bool accessRequested MEMBER m_accessRequested)
    /// The desktop tells where the windows of others stand; true unless set.
    Q_PROPERTY(bool knowsWindows MEMBER m_knowsWindows)
public:
    explicit GuideScene(QQuickItem *parent = nullptr);
    ~GuideScene() override;

protected:
    void open() override;

private:
    QString m_step;
    bool m_accessRequested = false;
    bool m_knowsWindows = true;
    std::unique_ptr<GuideWindowController> m_controller;
};
