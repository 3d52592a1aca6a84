#include "Colors.h"
#include "EBKit.h"
#include "PaneWindow.h"
#include "TestProgram.h"

#include <memory>

namespace {

/// Two layouts in the form in which they are stored.
const QString twoLayouts =
    QStringLiteral(R"([{"created":1,"id":"11111111-1111-4111-8111-111111111111","name":"Work","windows":[)"
                   R"({"app":"Browser","bundleID":"b","rect":{"h":1,"w":0.5,"x":0,"y":0},"title":"t"},)"
                   R"({"app":"Notes","bundleID":"n","rect":{"h":1,"w":0.5,"x":0.5,"y":0},"title":"t"}]},)"
                   R"({"created":2,"id":"22222222-2222-4222-8222-222222222222","name":"Play","windows":[]}])");

}

class TestLayoutsPane : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { m_pane.reset(); }

    void anEmptyStoreShowsTheDefaults();
    void theSwitchesShowAndStore_data();
    void theSwitchesShowAndStore();
    void aGapIsStoredAsANumberOfPoints();
    void aStoredGapShowsItsSegment_data();
    void aStoredGapShowsItsSegment();
    void withSnappingOffTheOtherRowsAreDisabledAndKeepTheirValues();
    void theSavedLayoutsAreListedInTheirOrder();
    void returnStoresTheNameAsTyped();
    void renamingKeepsTheFocus();
    void anEmptyNameIsStored();
    void escapeBringsTheStoredNameBack();
    void leavingTheFieldBringsTheStoredNameBack();
    void aButtonSavesTheNameWhileItDiffers();
    void theKeyboardReachesThatButton();
    void escapeOnThatButtonBringsTheStoredNameBack();
    void aClickBesideTheFieldBringsTheStoredNameBack();
    void underThePointerTheFieldShowsThatItCanBeEdited();
    void aNameThatIsTooLongIsElidedUntilItIsEdited();
    void deletingRemovesTheLayout();
    void deletingTheLastShowsNoneYet();
    void deletingWithTheKeyboardGoesOnToTheNext();
    void theDeleteButtonSaysWhatItDoes();
    void aDeletionCanBeTakenBack();
    void everyDeletionCanBeTakenBack();
    void aLayoutComesBackToItsPlaceInTheListAsItIsStored();
    void nothingComesBackIntoAnUnreadableList();
    void aChangeThatIsNotStoredIsTakenBackUntilItIs();
    void aDeletionThatIsNotStoredIsTakenBackUntilItIs();
    void aLayoutWithoutANameIsCalledByItsPlace();
    void afterTheLastWayBackTheFocusGoesToTheLayout();
    void theDeletionIsANotification();
    void anUnreadableListShowsNoneYetAndStays();
    void aLayoutSavedMeanwhileIsNotListed();
    void itsTextsStandInTheirOrder();
    void theKeysAreShownAsSymbols();
    void nothingIsPosted();

private:
    void open(const QVariantMap &stored = {});
    QString stored() const { return m_pane->store.value("layouts.saved").toString(); }
    QStringList names();
    void type(QQuickItem *field, const QString &text);
    FoundItem field(int position)
    {
        return m_pane->item(QString("Name of layout %1").arg(position), QAccessible::EditableText);
    }
    FoundItem button(const QString &name) { return m_pane->item(name, QAccessible::Button); }
    void press(Qt::Key key) { m_pane->pressKey(key); }

    std::unique_ptr<PaneWindow> m_pane;
};

void TestLayoutsPane::open(const QVariantMap &stored)
{
    m_pane = std::make_unique<PaneWindow>("qrc:/Corvane/Settings/Layouts/LayoutsPane.qml", stored);
}

QStringList TestLayoutsPane::names()
{
    QStringList found;
    for (int position = 1;; ++position) {
        const FoundItem field =
            m_pane->item(QStringLiteral("Name of layout %1").arg(position), QAccessible::EditableText);
        if (!field)
            return found;
        found.append(field->property("text").toString());
    }
}

void TestLayoutsPane::type(QQuickItem *field, const QString &text)
{
    m_pane->click(field);
    QTest::keySequence(&m_pane->window(), QKeySequence::SelectAll);
    QTest::keyClick(&m_pane->window(), Qt::Key_Backspace);
    for (const QChar character : text)
        QTest::keyClick(&m_pane->window(), character.toLatin1());
}

void TestLayoutsPane::anEmptyStoreShowsTheDefaults()
{
    open();
    QVERIFY(m_pane->isChecked("Snap and arrange windows"));
    QVERIFY(m_pane->isChecked("Layouts shelf"));
    QVERIFY(m_pane->isChecked("None", QAccessible::RadioButton));
    QVERIFY(m_pane->isChecked("Open apps that aren't running"));
    QVERIFY(m_pane->isShown("None yet"));
    QVERIFY(m_pane->isShown("In Mission Control, click Save current, or a template."));
    QVERIFY(m_pane->store.values.isEmpty());
}

void TestLayoutsPane::theSwitchesShowAndStore_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("key");
    QTest::newRow("snap") << "Snap and arrange windows"
                          << "layouts.enabled";
    QTest::newRow("shelf") << "Layouts shelf"
                           << "layouts.shelf";
    QTest::newRow("launch") << "Open apps that aren't running"
                            << "layouts.launchApps";
}

void TestLayoutsPane::theSwitchesShowAndStore()
{
    QFETCH(QString, title);
    QFETCH(QString, key);
    open();
    m_pane->click(m_pane->item(title, QAccessible::CheckBox));
    QCOMPARE(m_pane->store.value(key), QVariant(false));
    QVERIFY(!m_pane->isChecked(title));
    m_pane->store.setValue(key, true);
    QVERIFY(m_pane->isChecked(title));
}

void TestLayoutsPane::aGapIsStoredAsANumberOfPoints()
{
    open();
    m_pane->click(m_pane->item("Small", QAccessible::RadioButton));
    QCOMPARE(m_pane->store.value("layouts.gap"), QVariant(6.0));
    m_pane->click(m_pane->item("Large", QAccessible::RadioButton));
    QCOMPARE(m_pane->store.value("layouts.gap"), QVariant(12.0));
    QCOMPARE(m_pane->store.value("layouts.gap").typeId(), int(QMetaType::Double));
}

void TestLayoutsPane::aStoredGapShowsItsSegment_data()
{
    QTest::addColumn<double>("gap");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("none") << 0.0 << "None";
    QTest::newRow("small") << 6.0 << "Small";
    QTest::newRow("large") << 12.0 << "Large";
    QTest::newRow("another number leaves all off") << 7.0 << "";
}

void TestLayoutsPane::aStoredGapShowsItsSegment()
{
    QFETCH(double, gap);
    QFETCH(QString, chosen);
    open({{"layouts.gap", gap}});
    for (const char *title : {"None", "Small", "Large"})
        QCOMPARE(m_pane->isChecked(title, QAccessible::RadioButton), chosen == title);
    QCOMPARE(m_pane->store.value("layouts.gap"), QVariant(gap));
}

void TestLayoutsPane::withSnappingOffTheOtherRowsAreDisabledAndKeepTheirValues()
{
    const QVariantMap before = {{"layouts.enabled", false}, {"layouts.shelf", true}, {"layouts.gap", 6.0}};
    open(before);
    for (const char *title : {"Layouts shelf", "Open apps that aren't running"}) {
        QVERIFY2(m_pane->isDisabled(title, QAccessible::CheckBox), title);
        m_pane->click(m_pane->item(title, QAccessible::CheckBox));
    }
    QVERIFY(m_pane->isDisabled("Large", QAccessible::RadioButton));
    m_pane->click(m_pane->item("Large", QAccessible::RadioButton));
    QCOMPARE(m_pane->store.values, before);
    QVERIFY(!m_pane->isDisabled("Snap and arrange windows", QAccessible::CheckBox));
}

void TestLayoutsPane::theSavedLayoutsAreListedInTheirOrder()
{
    open({{"layouts.saved", twoLayouts}});
    const QStringList expected = {"Work", "Play"};
    QCOMPARE(names(), expected);
    QVERIFY(!m_pane->isShown("None yet"));
    QVERIFY(m_pane->item("2 windows: Browser, Notes", QAccessible::Graphic));
    QVERIFY(m_pane->item("Delete Work", QAccessible::Button));
    QCOMPARE(stored(), twoLayouts);
}

void TestLayoutsPane::returnStoresTheNameAsTyped()
{
    open({{"layouts.saved", twoLayouts}});
    type(m_pane->item("Name of layout 2", QAccessible::EditableText), " Games ");
    QCOMPARE(stored(), twoLayouts);
    QTest::keyClick(&m_pane->window(), Qt::Key_Return);
    QCOMPARE(stored(), QString(twoLayouts).replace("\"Play\"", "\" Games \""));
    QVERIFY(m_pane->item("Delete  Games ", QAccessible::Button));
}

void TestLayoutsPane::renamingKeepsTheFocus()
{
    open({{"layouts.saved", twoLayouts}});
    QQuickItem *field = m_pane->item("Name of layout 1", QAccessible::EditableText);
    type(field, "Office");
    QTest::keyClick(&m_pane->window(), Qt::Key_Return);
    QVERIFY(field->hasActiveFocus());
    QCOMPARE(field->property("text").toString(), "Office");
}

void TestLayoutsPane::anEmptyNameIsStored()
{
    open({{"layouts.saved", twoLayouts}});
    type(m_pane->item("Name of layout 1", QAccessible::EditableText), "");
    QTest::keyClick(&m_pane->window(), Qt::Key_Return);
    QCOMPARE(stored(), QString(twoLayouts).replace("\"Work\"", "\"\""));
}

void TestLayoutsPane::escapeBringsTheStoredNameBack()
{
    open({{"layouts.saved", twoLayouts}});
    QQuickItem *field = m_pane->item("Name of layout 1", QAccessible::EditableText);
    type(field, "Office");
    QTest::keyClick(&m_pane->window(), Qt::Key_Escape);
    QCOMPARE(field->property("text").toString(), "Work");
    QCOMPARE(stored(), twoLayouts);
}

void TestLayoutsPane::leavingTheFieldBringsTheStoredNameBack()
{
    open({{"layouts.saved", twoLayouts}});
    QQuickItem *field = m_pane->item("Name of layout 1", QAccessible::EditableText);
    type(field, "Office");
    m_pane->item("Layouts shelf", QAccessible::CheckBox)->forceActiveFocus(Qt::TabFocusReason);
    QVERIFY(!field->hasActiveFocus());
    QCOMPARE(field->property("text").toString(), "Work");
    QCOMPARE(stored(), twoLayouts);
}

void TestLayoutsPane::aButtonSavesTheNameWhileItDiffers()
{
    open({{"layouts.saved", twoLayouts}});
    QVERIFY(!button("Save name"));
    type(field(1), "Office");
    QVERIFY(button("Save name"));
    type(field(1), "Work");
    QVERIFY(!button("Save name"));
    type(field(1), "Office");
    m_pane->click(button("Save name"));
    QCOMPARE(stored(), QString(twoLayouts).replace("\"Work\"", "\"Office\""));
    QVERIFY(!button("Save name"));
    QVERIFY(field(1)->hasActiveFocus());
    QCOMPARE(field(1)->property("text").toString(), "Office");
}

void TestLayoutsPane::theKeyboardReachesThatButton()
{
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        open({{"layouts.saved", twoLayouts}});
        type(field(1), "Office");
        press(Qt::Key_Tab);
        QVERIFY(button("Save name"));
        QVERIFY(button("Save name")->hasActiveFocus());
        QCOMPARE(field(1)->property("text").toString(), "Office");
        press(key);
        QCOMPARE(stored(), QString(twoLayouts).replace("\"Work\"", "\"Office\""));
        QVERIFY(field(1)->hasActiveFocus());
        press(Qt::Key_Tab);
        QVERIFY(button("Delete Office")->hasActiveFocus());
    }
}

void TestLayoutsPane::escapeOnThatButtonBringsTheStoredNameBack()
{
    open({{"layouts.saved", twoLayouts}});
    type(field(1), "Office");
    press(Qt::Key_Tab);
    press(Qt::Key_Escape);
    QVERIFY(field(1)->hasActiveFocus());
    QCOMPARE(field(1)->property("text").toString(), "Work");
    QCOMPARE(stored(), twoLayouts);
}

void TestLayoutsPane::aClickBesideTheFieldBringsTheStoredNameBack()
{
    open({{"layouts.saved", twoLayouts}});
    type(field(1), "Office");
    m_pane->click(field(2));
    QCOMPARE(field(1)->property("text").toString(), "Work");
    QVERIFY(!button("Save name"));
    QCOMPARE(stored(), twoLayouts);
}

void TestLayoutsPane::underThePointerTheFieldShowsThatItCanBeEdited()
{
    open({{"layouts.saved", twoLayouts}});
    const QColor card = EBKit::surface().current();
    const QPointF corner(field(1)->width() - 4, 4);
    m_pane->pointAtNothing();
    QTRY_COMPARE(m_pane->pixel(field(1), corner), card);
    m_pane->pointAt(field(1));
    QTRY_VERIFY(isNear(m_pane->pixel(field(1), corner), over(EBKit::chip().current(), card)));
    m_pane->pointAtNothing();
    QTRY_COMPARE(m_pane->pixel(field(1), corner), card);
}

void TestLayoutsPane::aNameThatIsTooLongIsElidedUntilItIsEdited()
{
    const QString longName = QString("A name that is longer than its field is wide ").repeated(3).trimmed();
    open({{"layouts.saved", QString(twoLayouts).replace("Work", longName)}});
    const QQuickItem *shown = m_pane->textItem(longName);
    QVERIFY(shown->property("truncated").toBool());
    // What the field itself shows lies below, and is not seen.
    QCOMPARE(field(1)->property("color").value<QColor>().alpha(), 0);
    m_pane->click(field(1));
    QVERIFY(!m_pane->textItem(longName));
    QCOMPARE(field(1)->property("color").value<QColor>(), EBKit::ink().current());
    const QQuickItem *shortName = m_pane->textItem("Play");
    QVERIFY(!shortName->property("truncated").toBool());
}

void TestLayoutsPane::deletingRemovesTheLayout()
{
    open({{"layouts.saved", twoLayouts}});
    m_pane->click(m_pane->item("Delete Work", QAccessible::Button));
    QCOMPARE(names(), QStringList{"Play"});
    QVERIFY(!stored().contains("Work"));
    QVERIFY(stored().contains("Play"));
}

void TestLayoutsPane::deletingTheLastShowsNoneYet()
{
    open({{"layouts.saved", twoLayouts}});
    m_pane->click(m_pane->item("Delete Work", QAccessible::Button));
    m_pane->click(m_pane->item("Delete Play", QAccessible::Button));
    QVERIFY(m_pane->isShown("None yet"));
    QCOMPARE(stored(), "[]");
}

void TestLayoutsPane::deletingWithTheKeyboardGoesOnToTheNext()
{
    open({{"layouts.saved", twoLayouts}});
    m_pane->item("Delete Work", QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(&m_pane->window(), Qt::Key_Space);
    QCOMPARE(names(), QStringList{"Play"});
    QVERIFY(m_pane->item("Delete Play", QAccessible::Button)->hasActiveFocus());
}

void TestLayoutsPane::theDeleteButtonSaysWhatItDoes()
{
    open({{"layouts.saved", twoLayouts}});
    const auto isTold = [this] { return bool(m_pane->textItem("Delete Work", m_pane->window().contentItem())); };
    QVERIFY(!isTold());
    m_pane->pointAt(button("Delete Work"));
    QTRY_VERIFY(isTold());
    const QQuickItem *text = m_pane->textItem("Delete Work", m_pane->window().contentItem());
    const QRectF frame = text->mapRectToScene(QRectF(QPointF(), text->size()));
    QVERIFY(QRectF(QPointF(), m_pane->window().size()).contains(frame));
    QVERIFY(frame.bottom() <= button("Delete Work")->mapToScene({}).y());
    m_pane->pointAtNothing();
    QTRY_VERIFY(!isTold());
    button("Delete Work")->forceActiveFocus(Qt::TabFocusReason);
    QTRY_VERIFY(isTold());
}

void TestLayoutsPane::aDeletionCanBeTakenBack()
{
    open({{"layouts.saved", twoLayouts}});
    QVERIFY(!button("Undo"));
    m_pane->click(button("Delete Work"));
    QVERIFY(m_pane->isShown("Deleted “Work”."));
    // A click shows no ring elsewhere, nor what stands there.
    QVERIFY(!button("Delete Play")->property("visualFocus").toBool());
    m_pane->click(button("Undo"));
    const QStringList both = {"Work", "Play"};
    QCOMPARE(names(), both);
    QCOMPARE(stored(), twoLayouts);
    QVERIFY(!button("Delete Work")->property("visualFocus").toBool());
    QVERIFY(!button("Undo"));
    QVERIFY(!m_pane->isShown("Deleted “Work”."));
    // It can be deleted again, and brought back again.
    m_pane->click(button("Delete Work"));
    m_pane->click(button("Undo"));
    QCOMPARE(stored(), twoLayouts);
}

void TestLayoutsPane::everyDeletionCanBeTakenBack()
{
    open({{"layouts.saved", twoLayouts}});
    m_pane->click(button("Delete Work"));
    m_pane->click(button("Delete Play"));
    QCOMPARE(stored(), "[]");
    QVERIFY(m_pane->isShown("None yet"));
    QVERIFY(m_pane->isShown("Deleted “Play”."));
    m_pane->click(button("Undo"));
    QCOMPARE(names(), QStringList{"Play"});
    QVERIFY(!m_pane->isShown("None yet"));
    QVERIFY(m_pane->isShown("Deleted “Work”."));
    QVERIFY(button("Undo")->hasActiveFocus());
    m_pane->click(button("Undo"));
    QCOMPARE(stored(), twoLayouts);
}

void TestLayoutsPane::aLayoutComesBackToItsPlaceInTheListAsItIsStored()
{
    open({{"layouts.saved", twoLayouts}});
    m_pane->click(button("Delete Play"));
    // The agent saves a layout, which this page does not list yet.
    const QString added = R"({"created":3,"id":"33333333-3333-4333-8333-333333333333","name":"New","windows":[]})";
    m_pane->store.setValue("layouts.saved", QString(stored()).replace("]}]", "]}," + added + "]"));
    m_pane->click(button("Undo"));
    const QStringList all = {"Work", "Play", "New"};
    QCOMPARE(names(), all);
    QCOMPARE(stored(), QString(twoLayouts).chopped(1) + ',' + added + ']');
}

void TestLayoutsPane::nothingComesBackIntoAnUnreadableList()
{
    open({{"layouts.saved", twoLayouts}});
    m_pane->click(button("Delete Work"));
    const QString left = stored();
    m_pane->store.setValue("layouts.saved", "[{");
    m_pane->click(button("Undo"));
    QCOMPARE(stored(), "[{");
    QCOMPARE(names(), QStringList{"Play"});
    // Once the agent has mended it the layout can still be brought back.
    m_pane->store.setValue("layouts.saved", left);
    m_pane->click(button("Undo"));
    QCOMPARE(stored(), twoLayouts);
}

void TestLayoutsPane::aChangeThatIsNotStoredIsTakenBackUntilItIs()
{
    const QStringList before = {"Work", "Play"};
    const QStringList after = {"New", "Play"};
    open({{"layouts.saved", twoLayouts}});
    m_pane->store.obstacle = UserDefaults::Trouble::noRoom;
    type(field(1), "New");
    press(Qt::Key_Return);
    QTRY_COMPARE(names(), before);
    m_pane->store.obstacle = UserDefaults::Trouble::none;
    m_pane->store.retry();
    QTRY_COMPARE(names(), after);
    // Without any store it lasts as long as the process.
    m_pane->store.obstacle = UserDefaults::Trouble::noStore;
    m_pane->click(button("Delete Play"));
    QCoreApplication::processEvents();
    QCOMPARE(names(), QStringList{"New"});
}

void TestLayoutsPane::aDeletionThatIsNotStoredIsTakenBackUntilItIs()
{
    const QStringList both = {"Work", "Play"};
    open({{"layouts.saved", twoLayouts}});
    m_pane->store.obstacle = UserDefaults::Trouble::noRoom;
    m_pane->click(button("Delete Work"));
    QTRY_COMPARE(names(), both);
    QVERIFY(!button("Undo"));
    m_pane->store.obstacle = UserDefaults::Trouble::none;
    m_pane->store.retry();
    QTRY_COMPARE(names(), QStringList{"Play"});
    m_pane->click(button("Undo"));
    QCOMPARE(names(), both);
    QCOMPARE(stored(), twoLayouts);
}

void TestLayoutsPane::aLayoutWithoutANameIsCalledByItsPlace()
{
    open({{"layouts.saved", QString(twoLayouts).replace("\"Play\"", "\"\"")}});
    m_pane->click(button("Delete layout 2"));
    QVERIFY(m_pane->isShown("Deleted “layout 2”."));
}

void TestLayoutsPane::afterTheLastWayBackTheFocusGoesToTheLayout()
{
    open({{"layouts.saved", twoLayouts}});
    button("Delete Work")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QVERIFY(button("Delete Play")->hasActiveFocus());
    press(Qt::Key_Tab);
    QVERIFY(button("Undo")->hasActiveFocus());
    press(Qt::Key_Return);
    QCOMPARE(stored(), twoLayouts);
    QVERIFY(button("Delete Work")->hasActiveFocus());
}

void TestLayoutsPane::theDeletionIsANotification()
{
    open({{"layouts.saved", twoLayouts}});
    m_pane->click(button("Delete Work"));
    QVERIFY(m_pane->item("Deleted “Work”.", QAccessible::Notification));
}

void TestLayoutsPane::anUnreadableListShowsNoneYetAndStays()
{
    const QString broken = R"([{"name":"Work"}])";
    open({{"layouts.saved", broken}});
    QVERIFY(m_pane->isShown("None yet"));
    QCOMPARE(stored(), broken);
}

void TestLayoutsPane::aLayoutSavedMeanwhileIsNotListed()
{
    open();
    m_pane->store.setValue("layouts.saved", twoLayouts);
    QVERIFY(m_pane->isShown("None yet"));
    QVERIFY(names().isEmpty());
}

void TestLayoutsPane::itsTextsStandInTheirOrder()
{
    QStringList texts = {
        "Snap and arrange windows | In Mission Control: snap the window under the pointer, compose layouts and put "
        "them "
        "back.",
        "Layouts shelf | A Layouts handle at the bottom of Mission Control. Point at it to open your layouts and "
        "templates.",
        "Gaps | Space between arranged windows.",
        "Open apps that aren't running | When a saved layout is put back.",
        "Saved layouts",
        "None yet | In Mission Control, click Save current, or a template.",
        "In Mission Control",
        "Left or right half | Again: two thirds, then a third. | Ctrl+Left Ctrl+Right",
        "Top or bottom half | On a side: a quarter. | Ctrl+Up Ctrl+Down",
        "Fill the screen | Ctrl+Return",
        "Put a saved layout back | Ctrl+1 to Ctrl+9",
        "Point at a window first. Click a layout on the shelf to put its windows back, Alt-click to delete it. Click a "
        "template, then the windows that go in it, or drag a window onto a slot."};
    open();
    QTRY_COMPARE(m_pane->texts(), texts);
}

void TestLayoutsPane::theKeysAreShownAsSymbols()
{
    const QList<QPair<QString, QString>> tips = {{"Left or right half", "⌘← ⌘→"},
                                                 {"Top or bottom half", "⌘↑ ⌘↓"},
                                                 {"Fill the screen", "⌘↩"},
                                                 {"Put a saved layout back", "⌘1 … ⌘9"}};
    open();
    for (const auto &[title, keys] : tips) {
        const QQuickItem *row = m_pane->item(title, QAccessible::Grouping);
        const QQuickItem *symbols = m_pane->textItem(keys);
        QVERIFY2(row->isAncestorOf(symbols), qPrintable(keys));
    }
}

void TestLayoutsPane::nothingIsPosted()
{
    open({{"layouts.saved", twoLayouts}});
    m_pane->click(m_pane->item("Layouts shelf", QAccessible::CheckBox));
    m_pane->click(m_pane->item("Large", QAccessible::RadioButton));
    type(field(1), "Office");
    press(Qt::Key_Return);
    m_pane->click(button("Delete Office"));
    m_pane->click(button("Undo"));
    QCOMPARE(stored(), QString(twoLayouts).replace("\"Work\"", "\"Office\""));
    QVERIFY(m_pane->posts().isEmpty());
}

CORVANE_TEST(TestLayoutsPane, runInGui)
#include "tst_layoutspane.moc"
