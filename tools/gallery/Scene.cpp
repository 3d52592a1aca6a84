#include "Scene.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QQuickWindow>

void Scene::strikePose()
{
    if (m_focused || !m_keys.isEmpty())
        (m_focused ? m_focused : this)->forceActiveFocus(Qt::TabFocusReason);
    for (const QString &key : std::as_const(m_keys))
        type(key);
    if (m_hovered)
        point(*m_hovered);
}

void Scene::type(const QString &key)
{
    const int code = QKeySequence(key, QKeySequence::PortableText)[0].key();
    const QString text = key.size() == 1 ? key : QString();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, code, Qt::NoModifier, text);
        QCoreApplication::sendEvent(window(), &event);
    }
}

void Scene::point(const QQuickItem &item)
{
    const QPointF place = item.mapToScene(item.boundingRect().center());
    QMouseEvent event(QEvent::MouseMove, place, window()->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(window(), &event);
}
