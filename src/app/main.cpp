#include "LaunchFlags.h"
#include "NativePlatform.h"
#include "SettingsAppDelegate.h"
#include "WindowIcon.h"

#include <QGuiApplication>
#include <QQuickWindow>

namespace {

/// The windows are small and mostly still: painting them on the processor starts twice as fast and takes a
/// third of the memory. A person's own choice in the environment stands.
void chooseRenderer()
{
    if (!qEnvironmentVariableIsSet("QSG_RHI_BACKEND") && !qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

/// Does what nobody waits for, and what would only be in the way of the first frame.
void finishAfterFirstFrame()
{
    auto *window = qobject_cast<QQuickWindow *>(QGuiApplication::topLevelWindows().constFirst());
    QObject::connect(
        window, &QQuickWindow::frameSwapped, qApp,
        [] {
            QGuiApplication::setWindowIcon(windowIcon());
            Platform::current().appearance().wake();
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

}

int main(int argc, char *argv[])
{
    NativePlatform::secureStreams();
    LaunchFlags::setArguments(argc, argv);
    chooseRenderer();
    std::shared_ptr<void> environment = NativePlatform::prepareEnvironment();
    // The warm-up and the connection to the display take about as long, and neither needs the other.
    const std::future<void> warmUp = NativePlatform::warmUp();
    int ownName = 1;
    QGuiApplication application(ownName, argv);
    warmUp.wait();
    // The name is also the window class on X11.
    QGuiApplication::setApplicationName(QStringLiteral("com.vexmoor.corvane.settings"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.vexmoor.corvane.settings"));
    Platform::install(NativePlatform::make());

    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    // Qt has read it by now, and programs that are started later are not to inherit it.
    environment.reset();
    finishAfterFirstFrame();
    return QGuiApplication::exec();
}
