#pragma once

#include "ImportDrop.h"
#include "SettingsWindow.h"

#include <QDragEnterEvent>
#include <QMimeData>

/// The settings window with what takes files that are dropped onto it.
class DropWindow : public SettingsWindow {
public:
    DropWindow() : SettingsWindow(QStringLiteral("layouts")) { new ImportDrop(engine, *controller.window()); }

    /// Drags these files over the window; whether they may be dropped.
    bool drag(const QList<QUrl> &urls, Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction)
    {
        m_dragged.setUrls(urls);
        QDragEnterEvent event(at, actions, &m_dragged, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window(), &event);
        return event.isAccepted();
    }
    bool drop()
    {
        QDropEvent event(at, Qt::CopyAction, &m_dragged, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window(), &event);
        waitForFrame();
        return event.isAccepted();
    }
    void leave()
    {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(&window(), &event);
    }
    FoundItem sheet() { return item(QStringLiteral("Import these settings?"), QAccessible::Dialog); }
    FoundItem button(const QString &name) { return item(name, QAccessible::Button); }

private:
    static constexpr QPoint at{400, 200};
    QMimeData m_dragged;
};
