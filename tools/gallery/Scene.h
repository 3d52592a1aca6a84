#pragma once

#include <QQuickItem>
#include <QStringList>
#include <qqmlregistration.h>

/// What the gallery shows at a time; it is as large as its implicit size. A scene names the items that it wants to
/// show under the pointer or with the keyboard focus, and strikes that pose with the events a person would cause, so
/// that nothing shown needs to know of it.
class Scene : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The item the pointer rests on.
    Q_PROPERTY(QQuickItem *hovered MEMBER m_hovered)
    /// The item the Tab key has brought the focus to.
    Q_PROPERTY(QQuickItem *focused MEMBER m_focused)
    /// Keys typed one after the other, by the names of key sequences. Without a focused item they begin at the scene
    /// itself, from where a Tab goes to the first item in it.
    Q_PROPERTY(QStringList keys MEMBER m_keys)
public:
    using QQuickItem::QQuickItem;

    /// To be called once the scene stands in an active window and is laid out.
    Q_INVOKABLE void strikePose();

private:
    void type(const QString &key);
    void point(const QQuickItem &item);

    QQuickItem *m_hovered = nullptr;
    QQuickItem *m_focused = nullptr;
    QStringList m_keys;
};
