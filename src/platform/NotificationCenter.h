#pragma once

#include <QObject>
#include <QVariant>

/// Notices inside this process: whoever listens to `posted` hears every one, on the main thread.
class NotificationCenter : public QObject {
    Q_OBJECT
public:
    static NotificationCenter &defaultCenter();

    void post(const QString &name, const QVariant &object = {}) { emit posted(name, object); }

signals:
    void posted(const QString &name, const QVariant &object);

private:
    NotificationCenter() = default;
};
