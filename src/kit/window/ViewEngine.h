#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QUrl>
#include <QVariantMap>

/// The engine behind a process's windows. It finds the modules that are built into the program.
class ViewEngine : public QQmlEngine {
    Q_OBJECT
public:
    ViewEngine();

    /// Begins to load a view on the engine's own thread. Making it later waits only for what is then left to do.
    void prefetch(const QUrl &url);

    /// A new view, which the caller owns. A view that cannot be made is a programming error and ends the
    /// process.
    template <typename View = QQuickItem>
    static View *make(QQmlEngine &engine, const QString &url, const QVariantMap &properties = {})
    {
        return static_cast<View *>(makeItem(engine, url, properties, View::staticMetaObject));
    }

private:
    static QQuickItem *makeItem(QQmlEngine &engine, const QString &url, const QVariantMap &properties,
                                const QMetaObject &type);
};
