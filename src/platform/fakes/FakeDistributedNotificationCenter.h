#pragma once

#include "DistributedNotificationCenter.h"

#include <QList>
#include <QPointer>

/// Records every post, in order, and hands it to the observers of its name before `post` returns.
class FakeDistributedNotificationCenter : public DistributedNotificationCenter {
public:
    struct Post {
        QString name;
        QVariantMap userInfo;
    };

    QList<Post> posts;

    void post(const QString &name, const QVariantMap &userInfo) override
    {
        posts.append({name, userInfo});
        const auto observers = m_observers;
        for (const Entry &entry : observers) {
            if (entry.context && entry.name == name)
                entry.observer(userInfo);
        }
    }

    bool isAvailable() const override { return true; }

    void whenLost(QObject *, std::function<void()>) override { }

    void observe(const QString &name, QObject *context, Observer observer) override
    {
        m_observers.append({name, context, std::move(observer)});
    }

private:
    struct Entry {
        QString name;
        QPointer<QObject> context;
        Observer observer;
    };

    QList<Entry> m_observers;
};
