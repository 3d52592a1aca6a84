#include "DemoView.h"

#include "EBEnvironment.h"
#include "EBKit.h"

DemoView::DemoView(const QString &name, const QVariantMap &properties, qreal width, const QVariantMap &stored)
    : ViewWindow(stored)
{
    QVariantMap all = properties;
    all.insert(QStringLiteral("model"), QVariant::fromValue(&m_model));
    QQuickItem *view = ViewEngine::make(engine, QStringLiteral("qrc:/Corvane/Demo/%1.qml").arg(name), all);
    put(view, {600, 420}, {40, 60});
    window().setColor(EBKit::paper().current());
    if (width > 0)
        view->setWidth(width);
    EBEnvironment::of(view)->setEbApp(EBApp::corvane);
    bringUp();
    pointAway();
    window().grabWindow();
}
