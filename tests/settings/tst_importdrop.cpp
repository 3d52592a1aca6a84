#include "DropWindow.h"
#include "ExportFile.h"
#include "SettingWords.h"
#include "TestProgram.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// An export file on the settings window: what may be dropped, what is asked then, and what the answer does.
class ImportDropTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void onlyOneExportFileMayBeDropped_data();
    void onlyOneExportFileMayBeDropped();
    void aFileThatMayOnlyBeMovedIsRefused();
    void aFileThatLeavesAgainLeavesNothingBehind();
    void theSheetListsWhatChanges();
    void settingsAreCalledAsOnTheirPages();
    void aNumberIsWrittenInPlainDigits();
    void importStoresAndAnnouncesOnceAndCloses_data();
    void importStoresAndAnnouncesOnceAndCloses();
    void cancelChangesNothing_data();
    void cancelChangesNothing();
    void tabStaysInTheSheet();
    void thePageBehindIsDisabledWhileItAsks();
    void theFocusReturnsWhereItWas();
    void aFileThatChangesNothingSaysSo();
    void aDefaultThatIsStoredIsNoChange();
    void otherWindowsUnderTheSameNamesAreAChange();
    void whatCannotBeSavedIsSaidAndCanBeTriedAgain_data();
    void whatCannotBeSavedIsSaidAndCanBeTriedAgain();
    void aSecondFileIsRefusedWhileOneIsAskedAbout();
    void aLongListScrolls();

private:
    QUrl write(const QByteArray &bytes, const QString &name = u"corvane.json"_s) const;
    QUrl exported() const { return write(ExportFile::write(m_settings)); }

    QTemporaryDir m_folder;
    ExportFile::Settings m_settings;
};

void ImportDropTest::init()
{
    m_settings = {{u"buttonTheme"_s, u"soft"_s}, {u"menuBarIconHidden"_s, true}};
}

QUrl ImportDropTest::write(const QByteArray &bytes, const QString &name) const
{
    QFile file(m_folder.filePath(name));
    REQUIRE(file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size());
    return QUrl::fromLocalFile(file.fileName());
}

void ImportDropTest::onlyOneExportFileMayBeDropped_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<bool>("isTaken");
    const QUrl good = write(ExportFile::write({}), u"good.json"_s);
    QTest::newRow("an export") << QList{good} << true;
    QTest::newRow("two") << QList{good, good} << false;
    QTest::newRow("nothing") << QList<QUrl>() << false;
    QTest::newRow("a text") << QList{write("Hello", u"hello.txt"_s)} << false;
    QTest::newRow("other JSON") << QList{write("{\"format\": 1}", u"other.json"_s)} << false;
    QTest::newRow("a fault") << QList{write("{\"format\":1,\"settings\":{\"colour\":7}}", u"bad.json"_s)} << false;
    QTest::newRow("a folder") << QList{QUrl::fromLocalFile(m_folder.path())} << false;
    QTest::newRow("a file that is gone") << QList{QUrl::fromLocalFile(m_folder.filePath(u"gone"_s))} << false;
    QTest::newRow("a page of the web") << QList{QUrl(u"https://example.org/corvane.json"_s)} << false;
}

void ImportDropTest::onlyOneExportFileMayBeDropped()
{
    QFETCH(QList<QUrl>, urls);
    DropWindow window;
    QTEST(window.drag(urls), "isTaken");
}

void ImportDropTest::aFileThatMayOnlyBeMovedIsRefused()
{
    DropWindow window;
    QVERIFY(!window.drag({exported()}, Qt::MoveAction));
}

void ImportDropTest::aFileThatLeavesAgainLeavesNothingBehind()
{
    DropWindow window;
    const QImage before = window.picture();
    QVERIFY(window.drag({exported()}));
    QTRY_VERIFY(window.picture() != before);
    window.leave();
    QTRY_COMPARE(window.picture(), before);
    QVERIFY(!window.sheet());
}

void ImportDropTest::theSheetListsWhatChanges()
{
    m_settings.insert(u"hotkey.closeAll.disabled"_s, true);
    m_settings.insert(u"layouts.gap"_s, 6.0);
    m_settings.insert(u"showMinimizeButton"_s, QVariant());
    m_settings.insert(u"layouts.saved"_s,
                      uR"([{"created":1,"id":"3F2504E0-4F89-41D3-9A0C-0305E82C3301","name":"Work","windows":[]}])"_s);
    DropWindow window;
    QVERIFY(window.drag({exported()}) && window.drop());
    QVERIFY(window.sheet());
    QVERIFY(window.item(u"corvane.json"_s, QAccessible::StaticText));
    const QList<QStringList> rows = {{u"Show in the menu bar"_s, u"Now: On"_s, u"Off"_s},
                                     {u"Look"_s, u"Now: Classic"_s, u"Soft"_s},
                                     {u"Gaps"_s, u"Now: None"_s, u"Small"_s},
                                     {u"Saved layouts"_s, u"Now: None"_s, u"Work"_s},
                                     {u"Shortcut ⌥⌘W"_s, u"Now: On"_s, u"Off"_s}};
    qreal last = 0;
    for (const QStringList &row : rows) {
        const auto found = NamedItems::all(window.sheet(), row.at(0));
        QVERIFY2(!found.isEmpty(), qPrintable(row.at(0)));
        const auto *accessible = QAccessible::queryAccessibleInterface(found.constFirst());
        QCOMPARE(accessible->role(), QAccessible::Grouping);
        QCOMPARE(accessible->text(QAccessible::Description), row.at(1));
        QVERIFY2(NamedItems::first(found.constFirst(), row.at(2), QAccessible::StaticText), qPrintable(row.at(2)));
        const qreal top = window.rectOf(found.constFirst()).top();
        QVERIFY(top > last);
        last = top;
    }
    // Setting what is the default already changes nothing that shows, but the key: it was not set, and stays so.
    QVERIFY(NamedItems::all(window.sheet(), u"Minimize button"_s).isEmpty());
}

void ImportDropTest::settingsAreCalledAsOnTheirPages()
{
    QSet<QString> names;
    DropWindow window;
    for (const char *page : {"general", "buttons", "layouts"}) {
        window.controller.model()->setSelection(QLatin1String(page));
        window.waitForFrame();
        for (QQuickItem *item : window.visibleItems(window.window().contentItem()))
            names.insert(item->property("text").toString());
    }
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        const bool isCalledOtherwise = key.name == u"buttonTheme" || key.name.startsWith(u"hotkey.");
        if (!Contract::isAgentState(key.name) && !isCalledOtherwise)
            QVERIFY2(names.contains(SettingWords::title(key.name)), qPrintable(key.name));
    }
    for (const auto &[key, value] : {std::pair(u"layouts.gap"_s, QVariant(12.0)),
                                     {u"maximizeMode"_s, u"fill"_s},
                                     {u"maximizeMode"_s, u"fullscreen"_s},
                                     {u"layouts.gap"_s, QVariant()}})
        QVERIFY2(names.contains(SettingWords::value(key, value)), qPrintable(key));
}

void ImportDropTest::aNumberIsWrittenInPlainDigits()
{
    const auto back = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    QCOMPARE(SettingWords::value(u"layouts.gap"_s, 7.5), u"7.5"_s);
}

void ImportDropTest::importStoresAndAnnouncesOnceAndCloses_data()
{
    QTest::addColumn<bool>("byKeyboard");
    QTest::newRow("a click") << false;
    QTest::newRow("Return") << true;
}

void ImportDropTest::importStoresAndAnnouncesOnceAndCloses()
{
    QFETCH(bool, byKeyboard);
    DropWindow window;
    QVERIFY(window.drag({exported()}) && window.drop());
    if (byKeyboard)
        window.pressKey(Qt::Key_Return);
    else
        window.click(window.button(u"Import"_s));
    QTRY_VERIFY(!window.sheet());
    QCOMPARE(window.store.values, QVariantMap(m_settings));
    QCOMPARE(window.platform.notifications.posts.size(), 1);
    const QVariantMap userInfo{{u"command"_s, u"applySettings"_s}};
    QCOMPARE(window.platform.notifications.posts.constFirst().userInfo, userInfo);
}

void ImportDropTest::cancelChangesNothing_data()
{
    QTest::addColumn<bool>("byKeyboard");
    QTest::newRow("a click") << false;
    QTest::newRow("Escape") << true;
}

void ImportDropTest::cancelChangesNothing()
{
    QFETCH(bool, byKeyboard);
    DropWindow window;
    QVERIFY(window.drag({exported()}) && window.drop());
    if (byKeyboard)
        window.pressKey(Qt::Key_Escape);
    else
        window.click(window.button(u"Cancel"_s));
    QTRY_VERIFY(!window.sheet());
    QCOMPARE(window.store.values, QVariantMap());
    QCOMPARE(window.platform.notifications.posts.size(), 0);
    // And it can be dropped again.
    QVERIFY(window.drag({exported()}) && window.drop());
    QVERIFY(window.sheet());
}

void ImportDropTest::tabStaysInTheSheet()
{
    DropWindow window;
    QVERIFY(window.drag({exported()}) && window.drop());
    QCOMPARE(window.focused(), u"Import"_s);
    for (const char *name : {"Cancel", "Import", "Cancel"}) {
        window.pressKey(Qt::Key_Tab);
        QCOMPARE(window.focused(), QLatin1String(name));
    }
    QTest::keyClick(&window.window(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(window.focused(), u"Import"_s);
    window.pressKey(Qt::Key_Tab);
    window.pressKey(Qt::Key_Space);
    QTRY_VERIFY(!window.sheet());
    QCOMPARE(window.store.values, QVariantMap());
}

void ImportDropTest::thePageBehindIsDisabledWhileItAsks()
{
    DropWindow window;
    FoundItem row = window.entry(u"General"_s);
    QVERIFY(row->isEnabled());
    QVERIFY(window.drag({exported()}) && window.drop());
    QVERIFY(!row->isEnabled());
    QTest::keySequence(&window.window(), QKeySequence::Find);
    QCOMPARE(window.focused(), u"Import"_s);
    QTest::mouseClick(&window.window(), Qt::LeftButton, Qt::NoModifier, {300, 12});
    window.pressKey(Qt::Key_Escape);
    QTRY_VERIFY(row->isEnabled());
}

void ImportDropTest::theFocusReturnsWhereItWas()
{
    DropWindow window;
    QTest::keySequence(&window.window(), QKeySequence::Find);
    QCOMPARE(window.focused(), u"Search"_s);
    QVERIFY(window.drag({exported()}) && window.drop());
    window.pressKey(Qt::Key_Escape);
    QTRY_COMPARE(window.focused(), u"Search"_s);
}

void ImportDropTest::aFileThatChangesNothingSaysSo()
{
    DropWindow window;
    window.store.values = QVariantMap(m_settings);
    QVERIFY(window.drag({exported()}) && window.drop());
    QVERIFY(window.item(u"Everything in this file is set already."_s, QAccessible::StaticText));
    QVERIFY(!window.button(u"Import"_s)->isEnabled());
    QCOMPARE(window.focused(), u"Cancel"_s);
    window.pressKey(Qt::Key_Tab);
    QCOMPARE(window.focused(), u"Cancel"_s);
    window.pressKey(Qt::Key_Return);
    QTRY_VERIFY(!window.isShown(u"Nothing to import"_s));
}

void ImportDropTest::aDefaultThatIsStoredIsNoChange()
{
    m_settings = {{u"showMinimizeButton"_s, false}, {u"layouts.saved"_s, u"[]"_s}};
    DropWindow window;
    QVERIFY(window.drag({exported()}) && window.drop());
    QVERIFY(window.item(u"Everything in this file is set already."_s, QAccessible::StaticText));
}

void ImportDropTest::otherWindowsUnderTheSameNamesAreAChange()
{
    const QString layout =
        uR"([{"created":%1,"id":"3F2504E0-4F89-41D3-9A0C-0305E82C3301","name":"Work","windows":[]}])"_s;
    m_settings = {{u"layouts.saved"_s, layout.arg(1)}};
    DropWindow window;
    window.store.values = {{u"layouts.saved"_s, layout.arg(2)}};
    QVERIFY(window.drag({exported()}) && window.drop());
    QVERIFY(window.sheet());
    QVERIFY(window.item(u"Changed: Work"_s, QAccessible::StaticText));
}

void ImportDropTest::whatCannotBeSavedIsSaidAndCanBeTriedAgain_data()
{
    using Trouble = UserDefaults::Trouble;
    QTest::addColumn<Trouble>("obstacle");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no store") << Trouble::noStore << u"There is nothing to save settings in."_s;
    QTest::newRow("no answer") << Trouble::noAnswer
                               << u"Changes can't be saved: the settings service doesn't answer."_s;
    QTest::newRow("no room") << Trouble::noRoom << u"Changes can't be saved: the disk is full or read-only."_s;
    QTest::newRow("elsewhere") << Trouble::unknown
                               << u"Changes can't be saved: the settings service stores them elsewhere."_s;
}

void ImportDropTest::whatCannotBeSavedIsSaidAndCanBeTriedAgain()
{
    QFETCH(UserDefaults::Trouble, obstacle);
    QFETCH(QString, reason);
    DropWindow window;
    QVERIFY(window.drag({exported()}) && window.drop());
    window.store.obstacle = obstacle;
    const QString said = reason + u" Nothing was imported."_s;
    window.pressKey(Qt::Key_Return);
    QTRY_VERIFY(window.item(said, QAccessible::Notification));
    QCOMPARE(window.store.values, QVariantMap());
    window.store.obstacle = UserDefaults::Trouble::none;
    window.pressKey(Qt::Key_Return);
    QTRY_VERIFY(!window.sheet());
    QCOMPARE(window.store.values, QVariantMap(m_settings));
}

void ImportDropTest::aSecondFileIsRefusedWhileOneIsAskedAbout()
{
    DropWindow window;
    QVERIFY(window.drag({exported()}) && window.drop());
    QVERIFY(!window.drag({exported()}));
    window.leave();
    QVERIFY(window.sheet());
}

void ImportDropTest::aLongListScrolls()
{
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        if (!Contract::isAgentState(key.name) && key.defaultValue.typeId() == QMetaType::Bool)
            m_settings.insert(key.name, !key.defaultValue.toBool());
    }
    DropWindow window;
    QVERIFY(window.drag({exported()}) && window.drop());
    const QRectF sheet = window.rectOf(window.sheet());
    QVERIFY(window.rectOf(&window.root()).contains(sheet));
    QVERIFY(sheet.contains(window.rectOf(window.button(u"Import"_s))));
    QQuickItem *first = NamedItems::all(window.sheet(), u"Welcome guide"_s).constFirst();
    const qreal top = window.rectOf(first).top();
    window.pressKey(Qt::Key_Down);
    QTRY_VERIFY(window.rectOf(first).top() < top);
    for (int i = 0; i < 50; ++i)
        window.pressKey(Qt::Key_Down);
    const auto last = NamedItems::all(window.sheet(), u"Shortcut ⌘Q"_s);
    QTRY_VERIFY(sheet.contains(window.rectOf(last.constFirst())));
    QVERIFY(window.rectOf(last.constFirst()).bottom() < window.rectOf(window.button(u"Import"_s)).top());
}

CORVANE_TEST(ImportDropTest, runInGui)
#include "tst_importdrop.moc"
