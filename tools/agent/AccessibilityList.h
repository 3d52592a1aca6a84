#pragma once

#include <QObject>
#include <QUrl>
#include <qqmlregistration.h>

/// The applications that a person may give the Accessibility permission: none at first, until the agent's own bundle
/// is dropped onto the list, which also gives it the permission. An agent that has the permission is on the list.
class AccessibilityList : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The agent has one")
    /// The agent is on the list.
    Q_PROPERTY(bool listed READ listed NOTIFY listedChanged)
public:
    explicit AccessibilityList(bool listed);

    bool listed() const { return m_listed; }

    /// Whether that is what was dragged: the agent's own bundle, as a file and alone.
    Q_INVOKABLE bool takes(const QList<QUrl> &urls) const;

    /// Puts what was dropped on the list and grants the permission; false when the list does not take it.
    Q_INVOKABLE bool take(const QList<QUrl> &urls);

    /// Grants or withdraws the permission, and reports that.
    Q_INVOKABLE void setTrusted(bool trusted);

signals:
    void listedChanged();

private:
    bool m_listed;
};
