#include "AboutWindow.h"

#include "AgentBundle.h"
#include "EBApp.h"
#include "Platform.h"
#include "Shared.h"
#include "ViewEngine.h"

#include <QKeyEvent>
#include <QQuickItem>

namespace {

constexpr QSize contentSize(460, 380);
const QString screenView = QStringLiteral("qrc:/Embera/Screens/EBAboutScreen.qml");
const QUrl website(QStringLiteral("https://vexmoor.com/corvane"));

/// The version a person sees, and the build behind it: "1.4 (212)". What the bundle does not say is left out.
QString versionText()
{
    const Bundle &bundle = Platform::current().mainBundle();
    return bundle.string(QStringLiteral("CFBundleShortVersionString")) + QStringLiteral(" (")
        + bundle.string(QStringLiteral("CFBundleVersion")) + u')';
}

}

AboutWindow::AboutWindow(QQmlEngine &engine)
    : EBWindow(EBApp::corvane, contentSize, {.movableByWindowBackground = true})
{
    //: The title of the About window; %1 is the product's name.
    setTitle(tr("About %1").arg(EBApps::displayName(EBApp::corvane)));
    center();
    auto *screen = host(engine, screenView,
                        {
                            {QStringLiteral("app"), EBApps::rawValue(EBApp::corvane)},
                            {QStringLiteral("version"), versionText()},
                            {QStringLiteral("blurb"),
                             tr("Close, minimize and full-screen windows right in Mission Control, with "
                                "buttons on every window and the "
                                "shortcuts you already know.")},
                            {QStringLiteral("offersUpdates"), AgentBundle::updatesAvailable()},
                            {QStringLiteral("website"), website},
                        });
    connect(screen, SIGNAL(checkForUpdates()), this, SLOT(checkForUpdates()));
}

void AboutWindow::prefetch(ViewEngine &engine)
{
    engine.prefetch(QUrl(screenView));
}

void AboutWindow::keyPressEvent(QKeyEvent *event)
{
    EBWindow::keyPressEvent(event);
    if (!event->isAccepted() && event->key() == Qt::Key_Escape)
        close();
}

void AboutWindow::checkForUpdates()
{
    Shared::send(Shared::Command::checkForUpdates);
}
