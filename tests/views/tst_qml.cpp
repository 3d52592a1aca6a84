#include "Fonts.h"
#include "TestDesktop.h"
#include "TestProgram.h"

#include <QQmlEngine>
#include <QtQuickTest>

/// Prepares what every view needs: a desktop, the kit's faces and the renderer that the application runs with.
class Setup : public QObject {
    Q_OBJECT
public slots:
    void applicationAvailable()
    {
        m_desktop = std::make_unique<TestDesktop>();
        addFaces(m_desktop->platform().main);
        EBKitFonts::registerFonts();
        qmlRegisterSingletonInstance("Embera.Testing", 1, 0, "Desktop", m_desktop.get());
    }
    void qmlEngineAvailable(QQmlEngine *engine) { engine->addImportPath(QStringLiteral("qrc:/")); }

private:
    std::unique_ptr<TestDesktop> m_desktop;
};

/// The tests written in QML, in the folder that "-input" names.
static int runQml(int argc, char **argv)
{
    Setup setup;
    return quick_test_main_with_setup(argc, argv, "qml", "", &setup);
}

CORVANE_TEST_MAIN(runQml)

#include "tst_qml.moc"
