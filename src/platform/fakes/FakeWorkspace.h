#pragma once

#include "Workspace.h"

#include <QCoreApplication>
#include <QPixmap>

/// Records what it was asked for, in order, and opens nothing.
class FakeWorkspace : public Workspace {
public:
    struct OpenedApplication {
        QUrl bundleURL;
        QStringList arguments;
    };

    QList<QUrl> openedURLs;
    QList<OpenedApplication> openedApplications;
    int loginItemsSettingsOpened = 0;
    int missionControlOpened = 0;
    bool blends = true;
    bool places = true;

    /// The windows that were readied to float, each time anew.
    QList<QWindow *> floating;
    /// The windows that were brought to the front.
    QList<QWindow *> broughtToFront;

    /// Bundle identifier to icon.
    QMap<QString, QIcon> icons;

    /// Path to icon. Every other path has a plain blue one.
    QMap<QString, QIcon> fileIcons;

    void open(const QUrl &url) override { openedURLs.append(url); }

    void openApplication(const QUrl &bundleURL, const QStringList &arguments, std::function<void()> completion) override
    {
        openedApplications.append({bundleURL, arguments});
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(completion), Qt::QueuedConnection);
    }

    QIcon iconForApplication(const QString &bundleIdentifier) override { return icons.value(bundleIdentifier); }

    QIcon iconForFile(const QString &path) override
    {
        if (fileIcons.contains(path))
            return fileIcons.value(path);
        QPixmap blue(64, 64);
        blue.fill(Qt::blue);
        return QIcon(blue);
    }

    void openLoginItemsSettings() override { ++loginItemsSettingsOpened; }

    void openMissionControl() override { ++missionControlOpened; }

    void floatOnAllSpaces(QWindow &window) override { floating.append(&window); }

    void setShadow(QWindow &, const QMargins &) override { }

    bool placesWindows() override { return places; }

    void bringToFront(QWindow &window) override { broughtToFront.append(&window); }

    bool blendsWindows() override { return blends; }
};
