#pragma once

#include <QObject>
#include <QUrl>
#include <qqmlregistration.h>

/// Pages of the web, which the desktop shows.
class WebPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    Q_INVOKABLE static void open(const QUrl &url);
};
