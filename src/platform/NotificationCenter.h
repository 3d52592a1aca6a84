#pragma once

#include <QObject>
#include <QVariant>

/// Notifications inside this process: each is emitted as `posted`, on the main thread.
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
