#pragma once

#include "DemoModel.h"
#include "KeyMonitor.h"

#include <QPointer>

#include <memory>

/// Takes the agent's shortcuts away from the rest of the application while they are practised: each goes to the model
/// alone, and a held key counts once. All other keys pass.
class ShortcutMonitor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Without a model the shortcuts are taken away and have no effect.
    Q_PROPERTY(DemoModel *model MEMBER m_model NOTIFY modelChanged)
    /// Whether the practice is on the screen. Nothing is listened to otherwise.
    Q_PROPERTY(bool active READ active WRITE setActive NOTIFY activeChanged)
public:
    using QObject::QObject;

    bool active() const { return m_monitor != nullptr; }
    void setActive(bool active);

signals:
    void modelChanged();
    void activeChanged();

private:
    bool handle(const KeyDown &key);

    QPointer<DemoModel> m_model;
    std::unique_ptr<KeyMonitor> m_monitor;
};
