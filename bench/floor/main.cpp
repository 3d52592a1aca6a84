#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

/// The floor every figure is compared with: the least a Qt Quick program can do and still show a window.
int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/qt/qml/Corvane/Floor/Empty.qml")));
    return QGuiApplication::exec();
}
