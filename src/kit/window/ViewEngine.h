#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QUrl>
#include <QVariantMap>

#include <functional>

/// The engine behind a process's windows. It finds the modules that are built into the program.
class ViewEngine : public QQmlEngine {
    Q_OBJECT
public:
    ViewEngine();

    /// Does what the first view would wait for. May be called on any thread and before there is an application object;
    /// no view may be loaded before it has ended.
    static void warmUp();

    /// Begins to load a view on the engine's own thread. Making it later waits only for what is then left to do.
    void prefetch(const QUrl &url);

    /// Puts a view that is being made into its place.
    using Place = std::function<void(QQuickItem *)>;

    /// A new view, which the caller owns. Where it has a place, it is there before anything in it is laid out, and so
    /// nothing is laid out twice. A view that cannot be made is a programming error and ends the process.
    template <typename View = QQuickItem>
    static View *make(QQmlEngine &engine, const QString &url, const QVariantMap &properties = {},
                      const Place &place = {})
    {
        return static_cast<View *>(makeItem(engine, url, properties, View::staticMetaObject, place));
    }

private:
    static QQuickItem *makeItem(QQmlEngine &engine, const QString &url, const QVariantMap &properties,
                                const QMetaObject &type, const Place &place);
};
