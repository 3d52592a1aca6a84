#include "Accessibility.h"
#include "Desktop.h"
#include "FakePlatform.h"
#include "OnDesktop.h"

#include <QAccessible>
#include <QDBusConnectionInterface>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>

#include <memory>

#ifdef CORVANE_SANITIZED
// A check box of Qt made while an assistive technology listens loses the first of its attached data.
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions();
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions()
{
    return "leak:QQmlData::createQQmlData\n";
}
#endif

namespace {

using Interface = QAccessibleInterface *;

/// The state changes that were announced, most recent last.
QList<QPair<QObject *, QAccessible::State>> announced;

/// The notifications that came up, by name.
QStringList readOut;

void record(QAccessibleEvent *event)
{
    const QAccessibleInterface *about = event->accessibleInterface();
    if (event->type() == QAccessible::ObjectShow && about && about->role() == QAccessible::Notification)
        readOut.append(about->text(QAccessible::Name));
    if (event->type() == QAccessible::StateChanged)
        announced.append({event->object(), static_cast<QAccessibleStateChangeEvent *>(event)->changedStates()});
}

}

class AccessibilityTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        installKitAccessibility();
        installKitAccessibility();
        QTRY_VERIFY_WITH_TIMEOUT(QAccessible::isActive(), 20000);
        m_engine.addImportPath(QStringLiteral("qrc:/"));
    }
    void init()
    {
        announced.clear();
        readOut.clear();
    }
    void cleanup()
    {
        QAccessible::installUpdateHandler(nullptr);
        m_window.reset();
    }

    void everyControlHasItsRoleAndName_data()
    {
        QTest::addColumn<QString>("qml");
        QTest::addColumn<QAccessible::Role>("role");
        QTest::addColumn<QString>("name");
        QTest::newRow("button") << "EBButton { text: 'Continue' }" << QAccessible::Button << "Continue";
        QTest::newRow("icon button") << "EBIconButton { glyph: 'close'; label: 'Remove' }" << QAccessible::Button
                                     << "Remove";
        QTest::newRow("switch") << "EBSwitch { label: 'Show' }" << QAccessible::CheckBox << "Show";
        QTest::newRow("segmented") << "EBSegmented { label: 'Size' }" << QAccessible::Grouping << "Size";
        QTest::newRow("search field") << "EBSearchField { placeholder: 'Search' }" << QAccessible::EditableText
                                      << "Search";
        QTest::newRow("label") << "EBLabel { text: 'General' }" << QAccessible::StaticText << "General";
        QTest::newRow("group label") << "GroupLabel { text: 'General' }" << QAccessible::StaticText << "General";
        QTest::newRow("note") << "EBNote { text: 'Note' }" << QAccessible::StaticText << "Note";
        QTest::newRow("waiting") << "EBStatus {}" << QAccessible::StaticText << "Waiting";
        QTest::newRow("allowed") << "EBStatus { state: 'allowed' }" << QAccessible::StaticText << "Allowed";
        QTest::newRow("row") << "EBRow { title: 'Title' }" << QAccessible::Grouping << "Title";
        QTest::newRow("switch row") << "EBSwitchRow { title: 'Title' }" << QAccessible::Grouping << "Title";
    }
    void everyControlHasItsRoleAndName()
    {
        QFETCH(const QString, qml);
        const Interface found = show(qml)->child(0);
        QTEST(found->role(), "role");
        QTEST(found->text(QAccessible::Name), "name");
    }

    // Items that are there already are told when an assistive technology appears, and must not forget what they are.
    void theSameHoldsWhenTheAssistiveTechnologyComesLater()
    {
        create(QStringLiteral("Column { EBSwitch { label: 'Show'; isOn: true } EBSegmented { label: 'Size'; "
                              "selection: 1; options: [{value: 1, title: 'One'}] } }"));
        QAccessible::setActive(true);
        const Interface root = QAccessible::queryAccessibleInterface(m_window.get());
        QCOMPARE(root->child(0)->role(), QAccessible::CheckBox);
        QCOMPARE(root->child(0)->text(QAccessible::Name), QStringLiteral("Show"));
        QVERIFY(root->child(0)->state().checked);
        QCOMPARE(root->child(1)->role(), QAccessible::Grouping);
        QCOMPARE(root->child(1)->child(0)->role(), QAccessible::RadioButton);
        QCOMPARE(root->child(1)->child(0)->text(QAccessible::Name), QStringLiteral("One"));
        QVERIFY(root->child(1)->child(0)->state().checked);
    }

    void decorationsAreAbsent()
    {
        const Interface root = show(QStringLiteral("Column { Glyph { name: 'gear' } EBDisc { glyph: 'gear' } "
                                                   "EBRule { width: 9 } EBWell { width: 9 } EBGroup { width: 9 } }"));
        QCOMPARE(root->childCount(), 0);
    }

    // What a text belongs to speaks for it.
    void aTextWithoutARoleIsSilent()
    {
        const Interface root =
            show(QStringLiteral("Column { EBText { text: 'word' } EBParagraph { text: 'words' } "
                                "EBText { Accessible.role: Accessible.StaticText; Accessible.name: 'said' } }"));
        QCOMPARE(root->childCount(), 1);
        QCOMPARE(root->child(0)->text(QAccessible::Name), QStringLiteral("said"));
    }

    void aStepIsOneElement()
    {
        const Interface root = show(QStringLiteral("EBStepList { steps: ['Welcome', 'Try it']; current: 0 }"));
        QCOMPARE(root->childCount(), 2);
        QCOMPARE(root->child(0)->childCount(), 0);
    }

    void aRowContainsItsTextsAndItsControl()
    {
        const Interface row =
            show(QStringLiteral("EBSwitchRow { title: 'Title'; detail: 'Detail'; glyph: 'gear'; isOn: true }"))
                ->child(0);
        QCOMPARE(row->text(QAccessible::Description), QStringLiteral("Detail"));
        QCOMPARE(names(row), QStringList({"Title", "Detail", "Title"}));
        QCOMPARE(row->child(2)->role(), QAccessible::CheckBox);
        QVERIFY(row->child(2)->state().checked);
        QCOMPARE(row->child(2)->parent(), row);
    }

    void aRowWithoutADetailHasOneText()
    {
        QCOMPARE(names(show(QStringLiteral("EBRow { title: 'Title' }"))->child(0)), QStringList("Title"));
    }

    void aSegmentedControlIsAGroupOfRadioButtons()
    {
        const Interface group =
            show(QStringLiteral("EBSegmented { label: 'Size'; selection: 2; options: [{value: 1, title: 'One'}, "
                                "{value: 2, title: 'Two'}] }"))
                ->child(0);
        QCOMPARE(names(group), QStringList({"One", "Two"}));
        QCOMPARE(group->child(0)->role(), QAccessible::RadioButton);
        QVERIFY(!group->child(0)->state().checked);
        QVERIFY(group->child(1)->state().checked);
        QSignalSpy selected(item(group), SIGNAL(selected(QVariant)));
        group->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.constFirst().constFirst().toInt(), 1);
        QVERIFY(!group->child(0)->state().checked);
    }

    void actingOnASwitchAsksItsCaller_data()
    {
        QTest::addColumn<QString>("action");
        QTest::newRow("press") << QAccessibleActionInterface::pressAction();
        QTest::newRow("toggle") << QAccessibleActionInterface::toggleAction();
    }
    void actingOnASwitchAsksItsCaller()
    {
        QFETCH(const QString, action);
        const Interface toggle = show(QStringLiteral("EBSwitch { label: 'Show' }"))->child(0);
        QVERIFY(toggle->actionInterface()->actionNames().contains(action));
        QVERIFY(toggle->state().checkable);
        QSignalSpy flipped(item(toggle), SIGNAL(flipped(bool)));
        toggle->actionInterface()->doAction(action);
        QCOMPARE(flipped.size(), 1);
        QCOMPARE(flipped.constFirst().constFirst().toBool(), true);
        QVERIFY(!toggle->state().checked);
        item(toggle)->setProperty("isOn", true);
        QVERIFY(toggle->state().checked);
        toggle->actionInterface()->doAction(action);
        QCOMPARE(flipped.at(1).constFirst().toBool(), false);
    }

    void disabledControlsSaySo_data()
    {
        QTest::addColumn<QString>("qml");
        QTest::newRow("button") << "EBButton { text: 'Continue'; enabled: false }";
        QTest::newRow("icon button") << "EBIconButton { glyph: 'close'; label: 'Remove'; enabled: false }";
        QTest::newRow("switch") << "EBSwitch { label: 'Show'; enabled: false }";
        QTest::newRow("search field") << "EBSearchField { placeholder: 'Search'; enabled: false }";
        QTest::newRow("inside a disabled item") << "Item { enabled: false; EBButton { text: 'Continue' } }";
    }
    void disabledControlsSaySo()
    {
        QFETCH(const QString, qml);
        const Interface control = show(qml)->child(0);
        QVERIFY(control->state().disabled);
        QVERIFY(!control->state().focusable);
        QCOMPARE(control->actionInterface()->actionNames(), QStringList());
    }

    void whatIsHiddenFromAssistiveTechnologiesDoesNotShow()
    {
        const Interface button = show(QStringLiteral("Item { property bool goes: false; EBAccessible.hidden: goes; "
                                                     "EBButton { text: 'Continue' } }"))
                                     ->child(0);
        QVERIFY(!button->state().invisible);
        item(button)->parentItem()->setProperty("goes", true);
        QVERIFY(button->state().invisible);
        QVERIFY(item(button)->isVisible());
    }

    void disabledControlsTakeNoAction()
    {
        const Interface button = show(QStringLiteral("EBButton { text: 'Continue'; enabled: false }"))->child(0);
        QSignalSpy clicked(item(button), SIGNAL(clicked()));
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.size(), 0);
        item(button)->setEnabled(true);
        QVERIFY(!button->state().disabled);
        QVERIFY(button->state().focusable);
        QVERIFY(button->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.size(), 1);
    }

    void enablingAndDisablingIsAnnounced()
    {
        const Interface button = show(QStringLiteral("EBButton { text: 'Continue' }"))->child(0);
        QAccessible::installUpdateHandler(record);
        item(button)->setEnabled(false);
        QVERIFY(wasAnnounced(item(button)));
        announced.clear();
        item(button)->setEnabled(true);
        QVERIFY(wasAnnounced(item(button)));
    }

    void anAnnouncementIsReadOut()
    {
        const Interface root = show(QStringLiteral("Announcement { }"));
        QCOMPARE(root->childCount(), 0);
        QAccessible::installUpdateHandler(record);
        QQuickItem *announcement = m_window->contentItem()->childItems().constFirst();
        for (const QString &text : {QStringLiteral("Saved"), QStringLiteral("Saved")})
            QMetaObject::invokeMethod(announcement, "say", Q_ARG(QString, text));
        QCOMPARE(readOut, QStringList({"Saved", "Saved"}));
    }

    void keySymbolsAreReadOutAsTheKeysHere_data()
    {
        QTest::addColumn<QString>("qml");
        QTest::addColumn<QString>("text");
        QTest::newRow("cap") << QStringLiteral("KeyCap { keys: '⌘W' }") << "Ctrl+W";
        QTest::newRow("note") << QStringLiteral("EBNote { text: '⌥-click' }") << "Alt-click";
        QTest::newRow("detail of a row") << QStringLiteral("EBRow { title: 'Close'; detail: 'As ⌘W' }") << "As Ctrl+W";
        QTest::newRow("text of a stage") << QStringLiteral(
            "EBStageScreen { app: 'corvane'; title: 'Try'; text: 'Press ⌘W' }")
                                         << "Press Ctrl+W";
    }
    void keySymbolsAreReadOutAsTheKeysHere()
    {
        QFETCH(const QString, qml);
        QFETCH(const QString, text);
        const Interface root = show(qml);
        QVERIFY((names(root) + names(root->child(0))).contains(text));
    }

    void aLiveTextIsReadOutWhenItChanges()
    {
        show(QStringLiteral("EBStageScreen { app: 'corvane'; title: 'Title'; text: 'Before'; isLive: true }"));
        QAccessible::installUpdateHandler(record);
        QQuickItem *screen = m_window->contentItem()->childItems().constFirst();
        screen->setProperty("text", "After");
        QCOMPARE(readOut, QStringList("After"));
        screen->setProperty("text", "After");
        QCOMPARE(readOut, QStringList("After"));
        screen->setProperty("isLive", false);
        screen->setProperty("text", "Silent");
        QCOMPARE(readOut, QStringList("After"));
    }

    void theFocusIsOnTheControl()
    {
        const Interface button = show(QStringLiteral("EBButton { text: 'Continue' }"))->child(0);
        button->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        QTRY_VERIFY(button->state().focused);
        QCOMPARE(QAccessible::queryAccessibleInterface(m_window.get())->focusChild(), button);
    }

    void theSearchFieldIsEditedThroughItsTextInterfaces()
    {
        const Interface root = show(QStringLiteral("EBSearchField { placeholder: 'Search'; text: 'layout' }"));
        const Interface field = root->child(0);
        QVERIFY(field->state().editable);
        QVERIFY(field->state().searchEdit);
        QVERIFY(field->textInterface());
        QCOMPARE(field->textInterface()->characterCount(), 6);
        const Interface clear = root->child(1);
        QCOMPARE(clear->text(QAccessible::Name), QStringLiteral("Clear search"));
        clear->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(field->textInterface()->characterCount(), 0);
        QVERIFY(clear->state().invisible);
    }

    void aTextDoesNotClaimTheFocus()
    {
        const Interface label = show(QStringLiteral("EBLabel { text: 'General' }"))->child(0);
        QVERIFY(!label->state().focusable);
        QVERIFY(!label->actionInterface()->actionNames().contains(QAccessibleActionInterface::setFocusAction()));
    }

    void tabsAndListItemsCanBePressed_data()
    {
        QTest::addColumn<QString>("declared");
        QTest::addColumn<QAccessible::Role>("role");
        QTest::newRow("tab") << "Accessible.PageTab" << QAccessible::PageTab;
        QTest::newRow("list item") << "Accessible.ListItem" << QAccessible::ListItem;
    }
    void tabsAndListItemsCanBePressed()
    {
        QFETCH(const QString, declared);
        const Interface found = show(QStringLiteral("Pressable { text: 'General'; Accessible.role: ") + declared
                                     + QStringLiteral("; width: 9; height: 9 }"))
                                    ->child(0);
        QTEST(found->role(), "role");
        QCOMPARE(
            found->actionInterface()->actionNames(),
            QStringList({QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::setFocusAction()}));
        QSignalSpy clicked(item(found), SIGNAL(clicked()));
        found->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.size(), 1);
    }

    void aListItemThatNobodyCanPressHasNoPress()
    {
        const Interface found =
            show(QStringLiteral("Item { Accessible.role: Accessible.ListItem; Accessible.name: 'x' }"))->child(0);
        QVERIFY(!found->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    }

    void anItemOffersActionsOfItsOwnAfterThoseOfQt()
    {
        const Interface window = show(withActions())->child(0);
        const QStringList offered = window->actionInterface()->actionNames();
        QCOMPARE(offered.mid(offered.size() - 2), QStringList({"Close", "Full screen"}));
        QCOMPARE(window->text(QAccessible::Description), QStringLiteral("Use the actions."));

        const Interface button = show(withActions(QStringLiteral("EBButton"), QStringLiteral("text: 'x'")))->child(0);
        QCOMPARE(button->actionInterface()->actionNames(),
                 QStringList({QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::setFocusAction(),
                              "Close", "Full screen"}));
    }

    void anActionOfItsOwnCallsItsHandler()
    {
        const Interface window = show(withActions())->child(0);
        window->actionInterface()->doAction(QStringLiteral("Full screen"));
        window->actionInterface()->doAction(QStringLiteral("Close"));
        window->actionInterface()->doAction(QStringLiteral("Minimize"));
        QCOMPARE(item(window)->property("performed").toString(), QStringLiteral("full close "));
    }

    void anActionOfItsOwnIsShownUnderItsNameAndDescribed()
    {
        const QAccessibleActionInterface *actions = show(withActions())->child(0)->actionInterface();
        QCOMPARE(actions->localizedActionName(QStringLiteral("Full screen")), QStringLiteral("Full screen"));
        QCOMPARE(actions->localizedActionDescription(QStringLiteral("Full screen")),
                 QStringLiteral("Fills the screen"));
        QCOMPARE(actions->localizedActionDescription(QStringLiteral("Close")), QString());
        QCOMPARE(actions->localizedActionDescription(QAccessibleActionInterface::pressAction()),
                 QStringLiteral("Triggers the action"));
    }

    void aDisabledItemOffersNoActionOfItsOwn()
    {
        const Interface window = show(withActions())->child(0);
        item(window)->setEnabled(false);
        QCOMPARE(window->actionInterface()->actionNames(), QStringList());
        window->actionInterface()->doAction(QStringLiteral("Close"));
        QCOMPARE(item(window)->property("performed").toString(), QString());
    }

    void anActionWithoutANameIsNotOffered()
    {
        const Interface found =
            show(QStringLiteral("Item { Accessible.role: Accessible.Grouping; Accessible.name: 'x'; "
                                "AccessibleAction {} }"))
                ->child(0);
        QVERIFY(!found->actionInterface()->actionNames().contains(QString()));
    }

    void aHandlerMayTakeTheItemAway()
    {
        const Interface root = show(QStringLiteral("Item { Loader { id: loader; sourceComponent: Item { "
                                                   "Accessible.role: Accessible.Grouping; Accessible.name: 'x'; "
                                                   "AccessibleAction { name: 'Close'; onPerformed: loader.active = "
                                                   "false } } } }"));
        root->child(0)->actionInterface()->doAction(QStringLiteral("Close"));
        QTRY_COMPARE(root->childCount(), 0);
    }

    void itemsWithoutAccessibilityAndOtherObjectsAreLeftAlone()
    {
        show(QStringLiteral("Item { }"));
        QVERIFY(!QAccessible::queryAccessibleInterface(m_window->contentItem()->childItems().constFirst()));
        QObject plain;
        QVERIFY(!QAccessible::queryAccessibleInterface(&plain));
    }

    void anItemAnswersAsItselfAndOnlyOnce()
    {
        const Interface button = show(QStringLiteral("EBButton { text: 'Continue' }"))->child(0);
        QCOMPARE(QAccessible::queryAccessibleInterface(item(button)), button);
        QCOMPARE(button->parent()->indexOfChild(button), 0);
        QCOMPARE(QAccessible::accessibleInterface(QAccessible::uniqueId(button)), button);
    }

    void destroyedItemsLeaveNothingBehind()
    {
        const Interface root = show(QStringLiteral("Column { EBButton { text: 'One' } EBButton { text: 'Two' } }"));
        const QAccessible::Id id = QAccessible::uniqueId(root->child(0));
        delete item(root->child(0));
        QVERIFY(!QAccessible::accessibleInterface(id));
        QCOMPARE(names(root), QStringList("Two"));
        QQuickItem *second = item(root->child(0));
        second->setEnabled(false);
        QVERIFY(root->child(0)->state().disabled);
    }

    // Qt may drop the interfaces of a living item too, ours or its own, and makes new ones when it is asked again.
    void aDroppedInterfaceIsReplaced()
    {
        const Interface button = show(QStringLiteral("EBButton { text: 'Continue'; enabled: false }"))->child(0);
        QQuickItem *living = item(button);
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(button));
        const Interface again = QAccessible::queryAccessibleInterface(living);
        QVERIFY(again);
        QVERIFY(again->isValid());
        QVERIFY(again->state().disabled);
        living->setEnabled(true);
        QVERIFY(!again->state().disabled);
    }

private:
    static QString withActions(const QString &type = QStringLiteral("Item"), const QString &more = {})
    {
        return QStringLiteral("%1 { id: root; property string performed; Accessible.role: Accessible.Grouping; "
                              "Accessible.name: 'x'; Accessible.description: 'Use the actions.'; "
                              "AccessibleAction { name: 'Close'; onPerformed: root.performed += 'close ' } "
                              "AccessibleAction { name: 'Full screen'; description: 'Fills the screen'; "
                              "onPerformed: root.performed += 'full ' } %2 }")
            .arg(type, more);
    }
    void create(const QString &qml)
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport Embera.Tokens\n"
                          "import Embera.Glyphs\nimport Embera.Controls\nimport Embera.Rows\n"
                          "import Embera.Screens\n"
                              + qml.toUtf8(),
                          {});
        auto *root = qobject_cast<QQuickItem *>(component.create());
        if (!root)
            throw TestFailure{component.errorString().toUtf8()};
        m_window = std::make_unique<QQuickWindow>();
        m_window->resize(400, 300);
        root->setParent(m_window.get());
        root->setParentItem(m_window->contentItem());
        m_window->show();
        REQUIRE(QTest::qWaitForWindowExposed(m_window.get()));
    }
    Interface show(const QString &qml)
    {
        create(qml);
        return QAccessible::queryAccessibleInterface(m_window.get());
    }
    static QQuickItem *item(Interface found) { return qobject_cast<QQuickItem *>(found->object()); }
    static QStringList names(Interface parent)
    {
        QStringList found;
        for (int i = 0; i < parent->childCount(); ++i)
            found.append(parent->child(i)->text(QAccessible::Name));
        return found;
    }
    static bool wasAnnounced(QObject *object)
    {
        return std::any_of(announced.cbegin(), announced.cend(), [object](const auto &event) {
            return event.first == object && event.second.disabled && event.second.focusable;
        });
    }

    FakePlatform &m_platform = FakePlatform::install();
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

// Much of what Qt tells an assistive technology it only tells while there is one: the test runs on a desktop with a
// real accessibility bus.
CORVANE_TEST(AccessibilityTest, runOnAccessibleDesktop)

#include "tst_accessibility.moc"
