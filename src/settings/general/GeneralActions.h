#pragma once

#include <QObject>
#include <qqmlregistration.h>

#include <functional>

/// What the switches and buttons of the General page do.
class GeneralActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    /// Sets what starts the guide, which this room cannot do itself.
    static void setGuideOpener(std::function<void()> opener);

    /// Stores the wish at once, so that the page shows it until the agent reports the real state, and tells
    /// the agent.
    Q_INVOKABLE void setLaunchAtLogin(bool launch);
    Q_INVOKABLE void setMenuBarIconShown(bool shown);
    Q_INVOKABLE void requestAccessibility();
    Q_INVOKABLE void openLoginItems();
    Q_INVOKABLE void showGuide();
};
