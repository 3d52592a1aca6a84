#pragma once

#include <QObject>
#include <qqmlregistration.h>

/// What the controls of the Buttons page do: store the choice, then tell the agent to read the store again, once for
/// each choice that changes something. A choice that the store already holds, or that is the default of an absent key,
/// stores and tells nothing.
///
/// A change that another process makes while the page is open shows on the page and is not announced from here:
/// whoever writes tells the agent.
class ButtonsActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    Q_INVOKABLE void setTheme(const QString &rawValue);
    Q_INVOKABLE void setSize(const QString &rawValue);
    Q_INVOKABLE void setMinimizeShown(bool shown);
    Q_INVOKABLE void setMaximizeShown(bool shown);
    /// Tells nobody: the agent reads the mode each time it makes a window large.
    Q_INVOKABLE void setMaximizeMode(const QString &mode);
};
