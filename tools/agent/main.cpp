#include "Agent.h"
#include "FreedesktopPlatform.h"
#include "Platform.h"
#include "Shared.h"
#include "SystemSettings.h"

#include <QCommandLineParser>
#include <QDBusConnection>
#include <QGuiApplication>
#include <QQuickWindow>

#include <memory>

namespace {

bool isGiven(int argc, char *argv[], const char *flag)
{
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], flag) == 0)
            return true;
    }
    return false;
}

}

int main(int argc, char *argv[])
{
    const bool headless = isGiven(argc, argv, "--headless");
    if (headless)
        qputenv("QT_QPA_PLATFORM", "minimal");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("com.vexmoor.corvane"));
    QGuiApplication::setApplicationVersion(QStringLiteral("1.0"));
    QGuiApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("The reference agent: prints each command it hears as a line of JSON and acts on it."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("headless"), QStringLiteral("Open no window; a request for the permission is only printed.")},
        {QStringLiteral("needs-approval"), QStringLiteral("A new login item waits for the person's approval.")},
    });
    parser.process(application);

    // One agent a session: a second one would do everything twice.
    QDBusConnection session = QDBusConnection::sessionBus();
    if (session.isConnected() && !session.registerService(Shared::suiteName))
        return 0;
    Platform::install(makeFreedesktopPlatform());
    LoginItem loginItem(QGuiApplication::applicationFilePath(), parser.isSet(QStringLiteral("needs-approval")));
    Agent agent(loginItem);
    SystemSettings settings;
    if (!headless)
        QObject::connect(&agent, &Agent::accessibilityRequested, [&] { settings.openAccessibility(); });
    return QGuiApplication::exec();
}
