#pragma once

#include "Workspace.h"

#include <QCoreApplication>

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

    /// Bundle identifier to icon.
    QMap<QString, QIcon> icons;

    void open(const QUrl &url) override { openedURLs.append(url); }

    void openApplication(const QUrl &bundleURL, const QStringList &arguments, std::function<void()> completion) override
    {
        openedApplications.append({bundleURL, arguments});
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(completion), Qt::QueuedConnection);
    }

    QIcon iconForApplication(const QString &bundleIdentifier) override { return icons.value(bundleIdentifier); }

    void openLoginItemsSettings() override { ++loginItemsSettingsOpened; }
};
