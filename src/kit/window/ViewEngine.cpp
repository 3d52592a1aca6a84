#include "ViewEngine.h"

#include "QuickTypes.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QQmlComponent>

ViewEngine::ViewEngine()
{
    // Before the system's folders: looking for our modules there first costs part of the start-up.
    setImportPathList(QStringList{QStringLiteral("qrc:/")} + importPathList());
    // Not the application's own quit(), which closes the windows first: the guide takes a closed window for its end.
    connect(this, &QQmlEngine::quit, qApp, [] { QCoreApplication::exit(); });
}

void ViewEngine::warmUp()
{
    QuickTypes::registerNow();
    // A module that every view imports has its types there. The engine would look for it in a dozen places; if it is
    // missing here, it still does.
    QLibrary(QStringLiteral("Qt6QmlWorkerScript"), QT_VERSION_MAJOR).load();
}

void ViewEngine::prefetch(const QUrl &url)
{
    new QQmlComponent(this, url, QQmlComponent::Asynchronous, this);
}

QQuickItem *ViewEngine::makeItem(QQmlEngine &engine, const QString &url, const QVariantMap &properties,
                                 const QMetaObject &type, const Place &place)
{
    QQmlComponent component(&engine, QUrl(url));
    auto *view = qobject_cast<QQuickItem *>(component.beginCreate(engine.rootContext()));
    if (view) {
        if (place)
            place(view);
        component.setInitialProperties(view, properties);
        component.completeCreate();
    }
    if (component.isError())
        qFatal("%s", qPrintable(component.errorString()));
    if (!type.cast(view))
        qFatal("%s is no %s", qPrintable(url), type.className());
    return view;
}
