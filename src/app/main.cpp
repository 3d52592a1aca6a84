#include "Language.h"
#include "LaunchFlags.h"
#include "NativePlatform.h"
#include "RunningInstance.h"
#include "SettingsAppDelegate.h"
#include "Shared.h"
#include "UserDefaults.h"
#include "ViewEngine.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QLocale>
#include <QQuickWindow>

namespace {

/// The windows are small and mostly still: painting them on the processor starts twice as fast and takes a
/// third of the memory. A person's own choice in the environment stands.
void chooseRenderer()
{
    if (!qEnvironmentVariableIsSet("QSG_RHI_BACKEND") && !qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

/// Gives what is not stored yet, and then its copy, a last chance, without a window that looks as if it could still be
/// used.
void finishWrites(SettingsAppDelegate &delegate)
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows)
        window->hide();
    const QDeadlineTimer end(std::chrono::seconds(2));
    if (Shared::store().finishWrites(std::chrono::milliseconds(end.remainingTime())))
        delegate.finish(std::chrono::milliseconds(end.remainingTime()));
}

}

int main(int argc, char *argv[])
{
    NativePlatform::secureStreams();
    NativePlatform::keepLargeBlocksApart();
    LaunchFlags::setArguments(argc, argv);
    chooseRenderer();
    std::shared_ptr<void> environment = NativePlatform::prepareEnvironment();
    Platform::install(NativePlatform::make());
    // The warm-up and the connection to the display take about as long, and neither needs the other.
    const std::shared_future<void> warmUp = NativePlatform::warmUp(ViewEngine::warmUp);
    int ownName = 1;
    QGuiApplication application(ownName, argv);
    const std::future<void> fonts = NativePlatform::prepareServices(warmUp);
    SettingsAppDelegate delegate;
    warmUp.wait();
    // The views load while the bus is asked.
    delegate.prefetch();
    if (RunningInstance::takesOver())
        return 0;
    // Asked early, the desktop has answered by the time the first frame is drawn.
    Platform::current().appearance();
    const std::future<void> store = NativePlatform::loadStore();
    Language::use(Language::chosen(QLocale::system().uiLanguages()));
    // The name is also the window class on X11.
    QGuiApplication::setApplicationName(QStringLiteral("com.vexmoor.corvane.settings"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.vexmoor.corvane.settings"));

    // Qt has read the environment by then, and programs that are started later are not to inherit it.
    QObject::connect(&delegate, &SettingsAppDelegate::opened, [&environment, &store] {
        store.wait();
        environment.reset();
        NativePlatform::giveMemoryBack();
    });
    delegate.applicationDidFinishLaunching();
    const int result = QGuiApplication::exec();
    finishWrites(delegate);
    return result;
}
