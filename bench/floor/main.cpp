#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

/// The floor every figure is compared with: the least a Qt Quick program can do and still show a window. Its argument
/// names another of its views: "Text", the same with one text, or "Page", the picture of a page of the application.
int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    const QString view = QGuiApplication::arguments().value(1, QStringLiteral("Empty"));
    if (view == QStringLiteral("Page")) {
        for (const char *face : {"InstrumentSans-SemiBold.ttf", "GeistMono-Medium.ttf"})
            QFontDatabase::addApplicationFont(QStringLiteral(CORVANE_FONTS_FOLDER) + QLatin1String(face));
    }
    QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/qt/qml/Corvane/Floor/%1.qml").arg(view)));
    return QGuiApplication::exec();
}
