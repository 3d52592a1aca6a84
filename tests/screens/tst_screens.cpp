#include "EBKitFonts.h"
#include "TestDesktop.h"

#include <QQmlEngine>
#include <QQuickWindow>
#include <QtQuickTest>

/// Prepares what every view needs: a desktop, the kit's faces and the renderer that the application runs with.
class Setup : public QObject {
    Q_OBJECT
public:
    Setup() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

public slots:
    void applicationAvailable()
    {
        m_desktop = std::make_unique<TestDesktop>();
        for (const QString &face : {EBKitFonts::display, EBKitFonts::mono}) {
            const QString file = face + QStringLiteral(".ttf");
            m_desktop->platform().main.resources.insert(file,
                                                        QUrl::fromLocalFile(QStringLiteral(FONTS_DIR "/") + file));
        }
        EBKitFonts::registerFonts();
        qmlRegisterSingletonInstance("Embera.Testing", 1, 0, "Desktop", m_desktop.get());
    }
    void qmlEngineAvailable(QQmlEngine *engine) { engine->addImportPath(QStringLiteral("qrc:/qt/qml")); }

private:
    std::unique_ptr<TestDesktop> m_desktop;
};

QUICK_TEST_MAIN_WITH_SETUP(screens, Setup)

#include "tst_screens.moc"
