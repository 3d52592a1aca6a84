#include "PictureScreen.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQuickWindow>

namespace {

constexpr int side = 16000; // device pixels
constexpr int ordinaryDpi = 96;

QByteArray description(qreal scale)
{
    const QJsonObject screen = {{QStringLiteral("name"), QStringLiteral("picture")},
                                {QStringLiteral("x"), 0},
                                {QStringLiteral("y"), 0},
                                {QStringLiteral("width"), side},
                                {QStringLiteral("height"), side},
                                {QStringLiteral("logicalDpi"), ordinaryDpi * scale},
                                {QStringLiteral("logicalBaseDpi"), ordinaryDpi}};
    return QJsonDocument(QJsonObject{{QStringLiteral("screens"), QJsonArray{screen}}}).toJson();
}

}

PictureScreen::PictureScreen(qreal scale)
{
    QFile file(m_folder.filePath(QStringLiteral("screen.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(description(scale)) < 0)
        qFatal("the screen could not be described: %s", qPrintable(file.errorString()));
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
    // A person's own choices would change the pictures, and a theme of the desktop wants a display.
    for (const char *variable : {"QT_ENABLE_HIGHDPI_SCALING", "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
                                 "QT_SCALE_FACTOR_ROUNDING_POLICY", "QT_FONT_DPI", "QT_QPA_PLATFORMTHEME"})
        qunsetenv(variable);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}
