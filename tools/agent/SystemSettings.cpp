#include "SystemSettings.h"

#include "EBKitFonts.h"
#include "Platform.h"

#include <QGuiApplication>
#include <QQuickItem>

const QString SystemSettings::windowClass = QStringLiteral("com.vexmoor.corvane.systemsettings");

void SystemSettings::openAccessibility()
{
    if (!m_window) {
        EBKitFonts::registerFonts();
        Platform &platform = Platform::current();
        QGuiApplication::setWindowIcon(
            platform.workspace().iconForFile(platform.mainBundle().bundleURL().toLocalFile()));
        m_window = std::make_unique<EBWindow>(EBApp::corvane, QSize(480, 300),
                                              EBWindow::Style{.miniaturizeButtonEnabled = true});
        m_window->setTitle(QGuiApplication::translate("SystemSettings", "System Settings"));
        m_window->host(m_engine, QStringLiteral("qrc:/Corvane/Agent/AccessibilityPage.qml"),
                       {{QStringLiteral("list"), QVariant::fromValue(&m_list)}});
        m_window->center();
    }
    m_window->makeKeyAndOrderFront();
}
