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

/// The dots per inch that texts, and all else with them, are scaled for. Qt reads it while it makes the application
/// object.
constexpr const char *dotsPerInch = "QT_FONT_DPI";

/// Scales all there is by the person's text size where Qt does not do so by itself. What the environment says counts
/// instead. True when that has set the variable.
bool followTextSize()
{
    if (qEnvironmentVariableIsSet(dotsPerInch) || qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
        return false;
    constexpr int usual = 96;
    const int wanted = qRound(usual * NativePlatform::textScale());
    return wanted != usual && qputenv(dotsPerInch, QByteArray::number(wanted));
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
    const bool isScaled = followTextSize();
    // The warm-up and the connection to the display take about as long, and neither needs the other.
    const std::future<void> warmUp = NativePlatform::warmUp();
    int ownName = 1;
    QGuiApplication application(ownName, argv);
    warmUp.wait();
    // For this process alone, not for those it starts.
    if (isScaled)
        qunsetenv(dotsPerInch);
    // The name is also the window class on X11.
    QGuiApplication::setApplicationName(QStringLiteral("com.vexmoor.corvane.settings"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.vexmoor.corvane.settings"));
    Platform::install(NativePlatform::make());

    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    finishAfterFirstFrame();
    return QGuiApplication::exec();
}
