#include "SettingsWindow.h"
#include "TestProgram.h"

#include <QTranslator>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int count = 100;
/// A row and the rule below it, in points.
constexpr qreal pitch = 59;

/// A hundred layouts, called by their numbers from 1.
QString hundredLayouts()
{
    QStringList layouts;
    for (int number = 1; number <= count; ++number) {
        layouts.append(
            QStringLiteral(R"({"created":1,"id":"%1-1111-4111-8111-111111111111","name":"N%2","windows":[]})")
                .arg(number, 8, 10, QLatin1Char('0'))
                .arg(number));
    }
    return '[' + layouts.join(',') + ']';
}

/// Counts the rows that are made, by a text that each asks for once.
class RowCounter : public QTranslator {
public:
    mutable int rows = 0;

    QString translate(const char *, const char *text, const char *, int) const override
    {
        rows += qstrcmp(text, "Name of layout %1") == 0 ? 1 : 0;
        return {};
    }
    bool isEmpty() const override { return false; }
};

/// The settings window on the Layouts page with a hundred layouts.
class ManyLayouts : public SettingsWindow {
public:
    ManyLayouts() : SettingsWindow("layouts", SettingsPages::make(), {{"layouts.saved", hundredLayouts()}}) { }

    /// Opens the page anew, with the hundred layouts as they were.
    void reopen()
    {
        controller.model()->setSelection("general");
        waitForFrame();
        store.values.insert("layouts.saved", hundredLayouts());
        controller.model()->setSelection("layouts");
        waitForFrame();
    }
    QString stored() const { return store.value("layouts.saved").toString(); }
    FoundItem field(int number) { return item(QString("Name of layout %1").arg(number), QAccessible::EditableText); }
    FoundItem deletion(int number) { return item(QString("Delete N%1").arg(number), QAccessible::Button); }
    FoundItems<QQuickItem> rows() { return typed("LayoutRow"); }

    QQuickItem *area()
    {
        QQuickItem *item = heading("Layouts");
        while (!item->inherits("QQuickFlickable"))
            item = item->parentItem();
        return item;
    }
    qreal end() { return area()->property("contentHeight").toReal() - area()->height(); }
    void scrollTo(qreal position)
    {
        QVERIFY(area()->setProperty("contentY", position));
        waitForFrame();
    }
    /// Brings a layout to the middle of the window.
    void scrollToLayout(int number)
    {
        scrollTo(rows().constFirst()->mapToItem(area(), {}).y() + area()->property("contentY").toReal()
                 + (number - 1) * pitch - area()->height() / 2);
    }
    bool isInView(const QQuickItem *item) { return QRectF(QPointF(), window().size()).contains(frame(item)); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&window(), key, modifiers); }
    void type(const QString &text)
    {
        QTest::keySequence(&window(), QKeySequence::SelectAll);
        for (const QChar character : text)
            QTest::keyClick(&window(), character.toLatin1());
    }
};

}

/// A list of saved layouts that is far longer than the window is high.
class TestManyLayouts : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { m_settings.reset(); }
    void onlyRowsNearTheViewHaveItems();
    void noOtherRowsAreMadeWhileThePageOpens();
    void noPictureIsMuchHigherThanTheWindow();
    void whereverTheViewIsItsRowsAreThere_data();
    void whereverTheViewIsItsRowsAreThere();
    void tabGoesThroughTheRowsInTheirOrder();
    void theKeyboardGoesOnFromItsRowThoughTheViewHasMovedAway();
    void theKeyboardEntersTheListAtBothEnds();
    void aFarLayoutIsRenamed();
    void aFarLayoutIsDeletedAndTakenBack();
    void deletingTheLastGoesToTheOneBefore();
    void deletingByPointerLeavesTheViewWhereItIs();
    void assistiveTechnologiesAreToldThePlaceAndTheSize();
    void theScrollBarCanBeTakenHoldOf();

private:
    std::unique_ptr<ManyLayouts> m_settings;
};

void TestManyLayouts::init()
{
    if (m_settings)
        m_settings->reopen();
    else
        m_settings = std::make_unique<ManyLayouts>();
}

void TestManyLayouts::onlyRowsNearTheViewHaveItems()
{
    ManyLayouts &settings = *m_settings;
    const auto most = qsizetype(settings.window().height() / pitch) + 8;
    QVERIFY(settings.end() > count * pitch - settings.window().height());
    QVERIFY(settings.rows().size() <= most);
    settings.scrollToLayout(50);
    QVERIFY(settings.rows().size() <= most);
    settings.scrollTo(settings.end());
    QVERIFY(settings.rows().size() <= most);
}

void TestManyLayouts::noOtherRowsAreMadeWhileThePageOpens()
{
    m_settings.reset();
    RowCounter counter;
    QCoreApplication::installTranslator(&counter);
    m_settings = std::make_unique<ManyLayouts>();
    QCoreApplication::removeTranslator(&counter);
    QVERIFY(counter.rows > 2);
    QVERIFY2(counter.rows < count / 2, qPrintable(QString::number(counter.rows)));
}

void TestManyLayouts::noPictureIsMuchHigherThanTheWindow()
{
    ManyLayouts &settings = *m_settings;
    for (const qreal position : {0.0, settings.end() / 2, settings.end()}) {
        settings.scrollTo(position);
        for (const QQuickItem *picture : settings.typed("CrispItem"))
            QVERIFY(picture->height() < settings.window().height() + 8 * pitch);
    }
}

void TestManyLayouts::whereverTheViewIsItsRowsAreThere_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("near the top") << 8;
    QTest::newRow("in the middle") << 50;
    QTest::newRow("near the bottom") << 96;
}

void TestManyLayouts::whereverTheViewIsItsRowsAreThere()
{
    QFETCH(int, number);
    ManyLayouts &settings = *m_settings;
    settings.scrollToLayout(number);
    const int around = int(settings.window().height() / pitch) / 2;
    for (int other = std::max(1, number - around); other <= std::min(count, number + around); ++other) {
        const QRectF row = SettingsWindow::frame(settings.item(QString("N%1").arg(other), QAccessible::Grouping));
        QCOMPARE(row.height(), pitch - 1);
        QCOMPARE(row.top(), settings.window().height() / 2 + (other - number) * pitch);
    }
}

void TestManyLayouts::tabGoesThroughTheRowsInTheirOrder()
{
    ManyLayouts &settings = *m_settings;
    settings.field(1)->forceActiveFocus(Qt::TabFocusReason);
    for (int number = 1; number <= 15; ++number) {
        QCOMPARE(settings.focused(), QString("Name of layout %1").arg(number));
        QVERIFY(settings.isInView(settings.window().activeFocusItem()));
        settings.press(Qt::Key_Tab);
        QCOMPARE(settings.focused(), QString("Delete N%1").arg(number));
        settings.press(Qt::Key_Tab);
    }
    for (int number = 15; number >= 1; --number) {
        settings.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(settings.focused(), QString("Delete N%1").arg(number));
        settings.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(settings.focused(), QString("Name of layout %1").arg(number));
        QVERIFY(settings.isInView(settings.window().activeFocusItem()));
    }
}

void TestManyLayouts::theKeyboardGoesOnFromItsRowThoughTheViewHasMovedAway()
{
    ManyLayouts &settings = *m_settings;
    settings.scrollToLayout(30);
    settings.click(settings.field(30));
    settings.type("Office");
    settings.scrollToLayout(70);
    QCOMPARE(settings.focused(), "Name of layout 30");
    QCOMPARE(settings.field(30)->property("text").toString(), "Office");
    settings.press(Qt::Key_Tab);
    QCOMPARE(settings.focused(), "Save name");
    QTRY_VERIFY(settings.isInView(settings.window().activeFocusItem()));
    settings.press(Qt::Key_Space);
    QVERIFY(settings.stored().contains("\"Office\""));
    settings.scrollToLayout(70);
    settings.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(settings.focused(), "Delete N29");
    settings.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(settings.focused(), "Name of layout 29");
}

void TestManyLayouts::theKeyboardEntersTheListAtBothEnds()
{
    ManyLayouts &settings = *m_settings;
    settings.scrollToLayout(50);
    settings.item("Open apps that aren't running", QAccessible::CheckBox)->forceActiveFocus(Qt::TabFocusReason);
    settings.scrollToLayout(50);
    settings.press(Qt::Key_Tab);
    QCOMPARE(settings.focused(), "Name of layout 1");
    settings.scrollToLayout(50);
    settings.deletion(50)->forceActiveFocus(Qt::TabFocusReason);
    settings.press(Qt::Key_Space);
    settings.item("Undo", QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);
    settings.scrollToLayout(50);
    settings.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(settings.focused(), "Delete N100");
}

void TestManyLayouts::aFarLayoutIsRenamed()
{
    ManyLayouts &settings = *m_settings;
    settings.scrollToLayout(80);
    settings.click(settings.field(80));
    settings.type("Office");
    settings.press(Qt::Key_Return);
    QCOMPARE(settings.stored(), hundredLayouts().replace("\"N80\"", "\"Office\""));
    QVERIFY(settings.field(80)->hasActiveFocus());
    settings.scrollTo(0);
    settings.scrollToLayout(80);
    QCOMPARE(settings.field(80)->property("text").toString(), "Office");
}

void TestManyLayouts::aFarLayoutIsDeletedAndTakenBack()
{
    ManyLayouts &settings = *m_settings;
    settings.scrollToLayout(80);
    settings.deletion(80)->forceActiveFocus(Qt::TabFocusReason);
    settings.press(Qt::Key_Space);
    QVERIFY(!settings.stored().contains("\"N80\""));
    QCOMPARE(settings.focused(), "Delete N81");
    QCOMPARE(settings.field(80)->property("text").toString(), "N81");
    settings.item("Undo", QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);
    QTRY_VERIFY(settings.isInView(settings.window().activeFocusItem()));
    settings.press(Qt::Key_Space);
    QCOMPARE(settings.stored(), hundredLayouts());
    QCOMPARE(settings.focused(), "Delete N80");
    QTRY_VERIFY(settings.isInView(settings.window().activeFocusItem()));
}

void TestManyLayouts::deletingTheLastGoesToTheOneBefore()
{
    ManyLayouts &settings = *m_settings;
    settings.scrollTo(settings.end());
    settings.deletion(count)->forceActiveFocus(Qt::TabFocusReason);
    settings.press(Qt::Key_Space);
    QCOMPARE(settings.focused(), "Delete N99");
}

void TestManyLayouts::deletingByPointerLeavesTheViewWhereItIs()
{
    ManyLayouts &settings = *m_settings;
    settings.scrollToLayout(50);
    const QVariant before = settings.area()->property("contentY");
    settings.click(settings.deletion(50));
    settings.waitForFrame();
    QVERIFY(!settings.stored().contains("\"N50\""));
    QCOMPARE(settings.area()->property("contentY"), before);
}

void TestManyLayouts::assistiveTechnologiesAreToldThePlaceAndTheSize()
{
    ManyLayouts &settings = *m_settings;
    const auto place = [&settings](const QString &name) {
        QQuickItem *row = settings.item(name, QAccessible::Grouping);
        return QAccessible::queryAccessibleInterface(row)->text(QAccessible::Description);
    };
    QCOMPARE(place("N1"), "1 of 100");
    settings.scrollToLayout(80);
    QCOMPARE(place("N80"), "80 of 100");
    settings.click(settings.deletion(79));
    QCOMPARE(place("N80"), "79 of 99");
}

void TestManyLayouts::theScrollBarCanBeTakenHoldOf()
{
    ManyLayouts &settings = *m_settings;
    const FoundItems<QQuickItem> bars = settings.typed("QQuickScrollBar");
    QCOMPARE(bars.size(), 1);
    const auto *handle = bars.at(0)->property("contentItem").value<QQuickItem *>();
    QVERIFY(handle->height() >= 20);
}

CORVANE_TEST(TestManyLayouts, runInGui)
#include "tst_manylayouts.moc"
