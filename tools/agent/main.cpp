#include "Agent.h"
#include "NativePlatform.h"
#include "Shared.h"
#include "SystemSettings.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>

namespace {

bool isGiven(int argc, char *argv[], const char *flag)
{
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], flag) == 0)
            return true;
    }
    return false;
}

const QString grantAfter = QStringLiteral("grant-after");

/// None when the option is not given, or no time.
std::optional<std::chrono::milliseconds> grantTime(const QCommandLineParser &parser)
{
    constexpr double longest = 3600;
    bool isNumber = false;
    const double seconds = parser.value(grantAfter).toDouble(&isNumber);
    if (!isNumber || !(seconds >= 0 && seconds <= longest))
        return std::nullopt;
    return std::chrono::milliseconds(qRound64(seconds * 1000));
}

}

int main(int argc, char *argv[])
{
    NativePlatform::secureStreams();
    const bool headless = isGiven(argc, argv, "--headless");
    if (headless)
        qputenv("QT_QPA_PLATFORM", "minimal");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    // The name is also the class of the only window there is.
    QGuiApplication::setApplicationName(SystemSettings::windowClass);
    QGuiApplication::setDesktopFileName(Shared::suiteName);
    QGuiApplication::setApplicationVersion(QStringLiteral("1.0"));
    QGuiApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("The reference agent: prints each command it hears as a line of JSON and acts on it."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("headless"), QStringLiteral("Open no window; a request for the permission is only printed.")},
        {QStringLiteral("needs-approval"), QStringLiteral("A new login item waits for the person's approval.")},
        {QStringLiteral("listed"), QStringLiteral("The Accessibility list holds the agent from the beginning.")},
        {grantAfter, QStringLiteral("Grant the permission by itself, so long after it was requested."),
         QStringLiteral("seconds")},
    });
    parser.process(application);
    const auto patience = grantTime(parser);
    if (parser.isSet(grantAfter) && !patience) {
        std::fprintf(stderr, "--grant-after takes a number of seconds from 0 to 3600.\n");
        return 1;
    }

    // One agent a session: a second one would do everything twice.
    Platform::install(NativePlatform::make());
    if (!Platform::current().instances().claim(Contract::agentName))
        return 0;
    const auto loginItem = NativePlatform::makeLoginItem(
        {Shared::suiteName, QStringLiteral("Corvane"), QGuiApplication::applicationFilePath()},
        parser.isSet(QStringLiteral("needs-approval")));
    Agent agent(*loginItem);
    AccessibilityList list(parser.isSet(QStringLiteral("listed")));
    SystemSettings settings(list);
    if (!headless)
        QObject::connect(&agent, &Agent::accessibilityRequested, [&] { settings.openAccessibility(); });
    if (patience) {
        QObject::connect(&agent, &Agent::accessibilityRequested,
                         [&] { QTimer::singleShot(*patience, &list, [&] { list.setTrusted(true); }); });
    }
    return QGuiApplication::exec();
}
