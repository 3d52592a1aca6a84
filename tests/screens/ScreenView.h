#pragma once

#include "Fonts.h"
#include "ViewWindow.h"

#include <QQmlComponent>

/// One screen, alone in a window that it fills.
class ScreenView : public ViewWindow {
public:
    /// `qml` is the screen as a document would name it, without imports. The window is not shown yet.
    ScreenView(const QString &qml, QSize size)
    {
        addFaces(platform.main);
        EBKitFonts::registerFonts();
        QQmlComponent component(&engine);
        component.setData(
            "import QtQuick\nimport Embera.Controls\nimport Embera.Rows\nimport Embera.Screens\n" + qml.toUtf8(), {});
        auto *view = qobject_cast<QQuickItem *>(component.create());
        if (!view)
            throw TestFailure{component.errorString().toUtf8()};
        put(view, size);
        view->setSize(size);
    }

    void show() { bringUp(); }
};
