#include "PictureScreens.h"

#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQuickWindow>
#include <QScreen>

namespace {

constexpr int side = 16000; // device pixels

QByteArray description(const QList<qreal> &scales)
{
    QJsonArray screens;
    for (const qreal scale : scales) {
        screens.append(QJsonObject{{QStringLiteral("name"), QString::number(scale)},
                                   {QStringLiteral("x"), int(screens.size()) * side},
                                   {QStringLiteral("y"), 0},
                                   {QStringLiteral("width"), side},
                                   {QStringLiteral("height"), side},
                                   {QStringLiteral("logicalDpi"), 96 * scale},
                                   {QStringLiteral("logicalBaseDpi"), 96}});
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("screens"), screens}}).toJson();
}

}

PictureScreens::PictureScreens(const QList<qreal> &scales)
{
    QFile file(m_folder.filePath(QStringLiteral("screens.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(description(scales)) < 0)
        qFatal("the screens could not be described: %s", qPrintable(file.errorString()));
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
    // A person's own choices would change the pictures, and a theme of the desktop wants a display.
    for (const char *variable : {"QT_ENABLE_HIGHDPI_SCALING", "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
                                 "QT_FONT_DPI", "QT_QPA_PLATFORMTHEME"})
        qunsetenv(variable);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

QScreen *PictureScreens::ofScale(qreal scale)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *screen : screens) {
        if (qFuzzyCompare(screen->devicePixelRatio(), scale))
            return screen;
    }
    return nullptr;
}
