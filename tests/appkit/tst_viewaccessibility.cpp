#include "Accessible.h"
#include "Desktop.h"
#include "EBKitButton.h"
#include "EBKitIconButton.h"
#include "EBKitKeyRow.h"
#include "EBKitMenuRow.h"
#include "EBKitPanelHeader.h"
#include "EBKitRow.h"
#include "EBKitSectionLabel.h"
#include "EBKitSeparator.h"
#include "EBKitStatusPanel.h"
#include "FakePlatform.h"
#include "OnDesktop.h"
#include "Picture.h"

#include <QAccessible>
#include <QDBusConnectionInterface>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

using Interface = QAccessibleInterface *;

QList<QPair<QObject *, QAccessible::State>> announced;

void record(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::StateChanged)
        announced.append({event->object(), static_cast<QAccessibleStateChangeEvent *>(event)->changedStates()});
}

const EBKitApp product = EBKitApps::of(EBApp::corvane);

}

class TestViewAccessibility : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QTRY_VERIFY_WITH_TIMEOUT(QAccessible::isActive(), 20000); }
    void init()
    {
        announced.clear();
        m_presses = 0;
        const auto press = [this] { ++m_presses; };
        m_toggle = new EBKitSwitch(true, product, u"Close windows"_s, [press](bool) { press(); });
        m_controller = std::make_unique<EBKitStatusPanel>();
        m_controller->build = [this, press] {
            return QList<EBKitView *>{
                new EBKitPanelHeader(product, captionText(u"Menu bar"_s), titleText(u"Corvane"_s)),
                new EBKitSectionLabel(captionText(u"Windows"_s)),
                new EBKitRow(product, EBKitGlyph::wins, true, titleText(u"Overview"_s), captionText(u"Is open"_s)),
                new EBKitRow(product, {}, false, titleText(u"Layouts"_s), {}),
                new EBKitKeyRow(titleText(u"⌘W"_s), titleText(u"Close"_s), m_toggle),
                new EBKitSeparator,
                new EBKitButton(titleText(u"Open"_s), EBKitButton::Variant::primary, 32, press),
                new EBKitIconButton(EBKitGlyph::gear, u"Preferences"_s, press),
                new EBKitMenuRow(EBKitGlyph::power, titleText(u"Quit"_s), captionText(u"⌘Q"_s), press)};
        };
        m_controller->open(QRect(400, 0, 20, 20));
        QVERIFY(QTest::qWaitForWindowExposed(m_controller->content().window()));
    }
    void cleanup()
    {
        QAccessible::installUpdateHandler(nullptr);
        m_controller.reset();
    }

    void everyViewHasItsRoleNameAndDescription_data()
    {
        QTest::addColumn<int>("place");
        QTest::addColumn<QAccessible::Role>("role");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("description");
        QTest::newRow("header") << 0 << QAccessible::Heading << u"Corvane"_s << u"Menu bar"_s;
        QTest::newRow("section label") << 1 << QAccessible::StaticText << u"Windows"_s << QString();
        QTest::newRow("row") << 2 << QAccessible::ListItem << u"Overview"_s << u"Is open"_s;
        QTest::newRow("row without a detail") << 3 << QAccessible::ListItem << u"Layouts"_s << QString();
        QTest::newRow("key row") << 4 << QAccessible::Grouping << u"Close"_s << u"Ctrl+W"_s;
        QTest::newRow("separator") << 5 << QAccessible::Separator << QString() << QString();
        QTest::newRow("button") << 6 << QAccessible::Button << u"Open"_s << QString();
        QTest::newRow("icon button") << 7 << QAccessible::Button << u"Preferences"_s << QString();
        QTest::newRow("menu row") << 8 << QAccessible::MenuItem << u"Quit"_s << QString();
    }
    void everyViewHasItsRoleNameAndDescription()
    {
        QFETCH(const int, place);
        const Interface found = view(place);
        QTEST(found->role(), "role");
        QTEST(found->text(QAccessible::Name), "name");
        QTEST(found->text(QAccessible::Description), "description");
    }

    void thePanelHasTheNameOfItsHeader()
    {
        const Interface window = QAccessible::queryAccessibleInterface(m_controller->content().window());
        QCOMPARE(window->role(), QAccessible::Dialog);
        QCOMPARE(window->text(QAccessible::Name), u"Corvane"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(&m_controller->content())->childCount(), 9);
    }

    void aRowSaysWhetherItIsOn()
    {
        QVERIFY(view(2)->state().selected);
        QVERIFY(!view(3)->state().selected);
    }

    void aSwitchIsACheckBoxInItsRow()
    {
        QCOMPARE(view(4)->childCount(), 1);
        const Interface toggle = view(4)->child(0);
        QCOMPARE(toggle->role(), QAccessible::CheckBox);
        QCOMPARE(toggle->text(QAccessible::Name), u"Close windows"_s);
        QVERIFY(toggle->state().checkable);
        QVERIFY(toggle->state().checked);
        QVERIFY(toggle->state().focusable);
        QAccessible::installUpdateHandler(record);
        for (const QString &action :
             {QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::toggleAction()}) {
            QVERIFY(toggle->actionInterface()->actionNames().contains(action));
            announced.clear();
            const bool before = m_toggle->isOn();
            toggle->actionInterface()->doAction(action);
            QCOMPARE(toggle->state().checked, !before);
            QCOMPARE(announced.size(), 1);
            QCOMPARE(announced.constFirst().first, m_toggle);
            QVERIFY(announced.constFirst().second.checked);
        }
        QCOMPARE(m_presses, 2);
    }

    void whatCanBePressedIsPressed()
    {
        for (const int place : {6, 7, 8}) {
            m_presses = 0;
            QAccessibleActionInterface *actions = view(place)->actionInterface();
            QCOMPARE(
                actions->actionNames(),
                QStringList({QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::setFocusAction()}));
            actions->doAction(QAccessibleActionInterface::pressAction());
            QCOMPARE(m_presses, 1);
        }
    }

    void aDisabledControlSaysSoAndTakesNoAction()
    {
        QAccessible::installUpdateHandler(record);
        auto *button = m_controller->content().views().at(6);
        button->setEnabled(false);
        QVERIFY(view(6)->state().disabled);
        QVERIFY(!announced.isEmpty());
        QCOMPARE(view(6)->actionInterface()->actionNames(), QStringList());
        view(6)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(m_presses, 0);
    }

    void aMenuRowSaysItsShortcutInWords()
    {
        QCOMPARE(view(8)->text(QAccessible::Accelerator), u"Ctrl+Q"_s);
        QCOMPARE(view(8)->actionInterface()->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
                 QStringList(u"Ctrl+Q"_s));
    }

    void theRingOfTheKeyboardFocusIsAbsent()
    {
        const int before = QAccessible::queryAccessibleInterface(&m_controller->content())->childCount();
        m_controller->content().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_controller->content().window()));
        m_controller->content().views().at(6)->setFocus(Qt::TabFocusReason);
        QVERIFY(!m_controller->content().findChildren<KeyboardRing *>().isEmpty());
        QCOMPARE(QAccessible::queryAccessibleInterface(&m_controller->content())->childCount(), before);
    }

    void aNameGivenFromOutsideCounts()
    {
        m_controller->content().views().at(7)->setAccessibleName(u"Other"_s);
        QCOMPARE(view(7)->text(QAccessible::Name), u"Other"_s);
    }

private:
    Interface view(int place)
    {
        return QAccessible::queryAccessibleInterface(m_controller->content().views().at(place));
    }

    FakePlatform &m_platform = FakePlatform::install();
    std::unique_ptr<EBKitStatusPanel> m_controller;
    EBKitSwitch *m_toggle = nullptr;
    int m_presses = 0;
};

// Much of what Qt tells an assistive technology it only tells while there is one: the test runs on a desktop with a
// real accessibility bus.
static int runViewAccessibility(int argc, char **argv)
{
    return runOnAccessibleDesktop<TestViewAccessibility, QApplication>(argc, argv);
}

CORVANE_TEST_MAIN(runViewAccessibility)

#include "tst_viewaccessibility.moc"
