#pragma once

#include "EBEnvironment.h"
#include "EBKit.h"
#include "ViewWindow.h"

/// One view of the overlay room, alone in a window.
class OverlayView : public ViewWindow {
public:
    /// `name` is the QML type's; without a `width` in points the properties say how wide it is.
    OverlayView(const QString &name, const QVariantMap &properties, qreal width)
    {
        QQuickItem *view =
            ViewEngine::make(engine, QStringLiteral("qrc:/Corvane/Overlay/%1.qml").arg(name), properties);
        put(view, {480, 320}, {20, 20});
        window().setColor(EBKit::paper().current());
        if (width > 0)
            view->setWidth(width);
        EBEnvironment::of(view)->setEbApp(EBApp::corvane);
        bringUp();
    }
};
