#include "DragTileController.h"
#include "GuideVisibility.h"
#include "NativePlatform.h"
#include "Platform.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <cstdio>

/// Shows the tile and nothing else, and ends when the guide window is asked to come back.
int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("com.vexmoor.corvane.settings"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    Platform::install(NativePlatform::make());

    DragTileController tile;
    GuideVisibility::observe(&tile, [](bool visible) {
        std::printf("guide %s\n", visible ? "shown" : "hidden");
        std::fflush(stdout);
        QCoreApplication::quit();
    });
    tile.show();
    return QGuiApplication::exec();
}
