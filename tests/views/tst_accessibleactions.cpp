#include "Accessibility.h"
#include "Accessible.h"
#include "Desktop.h"
#include "FakePlatform.h"
#include "Program.h"
#include "TestProgram.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace {

/// Says as its description which actions it performed.
constexpr auto content = R"(
    import QtQuick
    import Embera.Controls
    Item {
        id: root
        property string performed
        width: 100
        height: 50
        Accessible.role: Accessible.Grouping
        Accessible.name: "Browser window"
        Accessible.description: performed

        AccessibleAction {
            name: "Close"
            onPerformed: root.performed += "closed "
        }
        AccessibleAction {
            name: "Full screen"
            onPerformed: root.performed += "filled "
        }
        AccessibleAction {
            name: "Disable"
            onPerformed: root.enabled = false
        }
    })";

int runWindow(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    FakePlatform::install();
    installKitAccessibility();
    QQmlEngine engine;
    engine.addImportPath(u"qrc:/"_s);
    QQmlComponent component(&engine);
    component.setData(content, {});
    QQuickWindow window;
    auto *root = qobject_cast<QQuickItem *>(component.create());
    if (!root)
        qFatal("%s", qPrintable(component.errorString()));
    root->setParent(&window);
    root->setParentItem(window.contentItem());
    window.resize(root->size().toSize());
    window.show();
    return QGuiApplication::exec();
}

}

/// Actions with names of their own, as an assistive technology finds them on its bus.
class AccessibleActionsTest : public QObject {
    Q_OBJECT
public:
    explicit AccessibleActionsTest(const Desktop &desktop)
        : m_program(QCoreApplication::applicationFilePath(), desktop.environment())
    {
    }

private slots:
    void initTestCase();
    void actionsAreListedUnderTheirNames();
    void performingOneCallsItsHandler();
    void aDisabledItemListsNone();
    void cleanupTestCase();

private:
    Program m_program;
    Accessible m_item;
};

void AccessibleActionsTest::initTestCase()
{
    QVERIFY(m_program.start({u"tst_accessibleactions"_s, u"--window"_s}));
    const auto find = [this] {
        m_item = Accessible::application(m_program.processId()).find(ATSPI_ROLE_PANEL, u"Browser window"_s);
        return !m_item.isNull();
    };
    if (!QTest::qWaitFor(find, 20000))
        QFAIL(qPrintable(Accessible::application(m_program.processId()).dump()
                         + m_program.standardError().join(u"\n"_s)));
}

void AccessibleActionsTest::actionsAreListedUnderTheirNames()
{
    const QStringList offered = m_item.actions();
    QCOMPARE(offered.mid(offered.size() - 3), QStringList({"Close", "Full screen", "Disable"}));
}

void AccessibleActionsTest::performingOneCallsItsHandler()
{
    QVERIFY(m_item.doAction(u"Full screen"_s));
    QTRY_COMPARE(m_item.description(), u"filled "_s);
    QVERIFY(m_item.doAction(u"Close"_s));
    QTRY_COMPARE(m_item.description(), u"filled closed "_s);
    QVERIFY(!m_item.doAction(u"Minimize"_s));
}

void AccessibleActionsTest::aDisabledItemListsNone()
{
    QVERIFY(m_item.doAction(u"Disable"_s));
    QTRY_COMPARE(m_item.actions(), QStringList());
    QVERIFY(!m_item.has(ATSPI_STATE_ENABLED));
}

void AccessibleActionsTest::cleanupTestCase()
{
    QVERIFY(m_program.terminate());
    QCOMPARE(m_program.complaints(), QStringList());
}

static int runAccessibleActions(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--window") == 0)
        return runWindow(argc, argv);
    const Desktop desktop;
    if (!desktop.isValid())
        return 1;
    const QCoreApplication application(argc, argv);
    return runTest<AccessibleActionsTest>(argc, argv, desktop);
}

CORVANE_TEST_MAIN(runAccessibleActions)

#include "tst_accessibleactions.moc"
