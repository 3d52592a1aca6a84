#include "EndToEndTest.h"
#include "TestProgram.h"
#include "WindowManager.h"

using namespace Qt::StringLiterals;

/// The settings window where a window manager places and moves it.
class TestWindowManager : public EndToEndTest {
    Q_OBJECT

private slots:
    void cleanup();

    void aPageWithoutRoomBelowMovesTheWindowUp();
    void aWindowThatWasMovedFitsAgain();
    void aLowerPageLeavesNoPointOfHeight();

private:
    /// Starts the window manager, and then the program on that page.
    bool openPage(const QString &page, const QString &manager = u"openbox"_s, const QStringList &arguments = {});
    /// Whether the last tip of the Layouts page, far down, is on the screen.
    bool showsTheEnd() const;

    std::unique_ptr<WindowManager> m_manager;
};

bool TestWindowManager::openPage(const QString &page, const QString &manager, const QStringList &arguments)
{
    m_manager = std::make_unique<WindowManager>(desktop(), manager);
    return m_manager->start(arguments) && open({.environment = {{u"CV_TAB"_s, page}}})
        && QTest::qWaitFor([this] { return window()->hasInputFocus(); });
}

void TestWindowManager::cleanup()
{
    EndToEndTest::cleanup();
    m_manager.reset();
}

bool TestWindowManager::showsTheEnd() const
{
    const Accessible last = application().find(ATSPI_ROLE_LABEL, u"Put a saved layout back"_s);
    return last && window()->geometry().contains(last.extents());
}

void TestWindowManager::aPageWithoutRoomBelowMovesTheWindowUp()
{
    QVERIFY(openPage(u"general"_s));
    const QRect first = window()->geometry();
    const int screen = desktop().x().size().height();
    FIND(page, ATSPI_ROLE_LIST_ITEM, "Layouts");
    QVERIFY(page.doAction(u"Press"_s));
    QTRY_VERIFY(window()->geometry().height() > screen - first.top());
    QTRY_COMPARE(window()->geometry().bottom(), screen - 1);
    QCOMPARE(window()->geometry().left(), first.left());
    QTRY_VERIFY(showsTheEnd());
}

void TestWindowManager::aWindowThatWasMovedFitsAgain()
{
    QVERIFY(openPage(u"layouts"_s));
    const QRect first = window()->geometry();
    const int screen = desktop().x().size().height();
    window()->moveTo({first.left(), 220});
    QTRY_COMPARE(window()->geometry(), QRect(first.left(), 220, first.width(), screen - 220));
    window()->moveTo(first.topLeft());
    QTRY_COMPARE(window()->geometry(), first);
    QTRY_VERIFY(showsTheEnd());
}

/// This window manager reports sizes of the animation after it is over.
void TestWindowManager::aLowerPageLeavesNoPointOfHeight()
{
    QVERIFY(openPage(u"general"_s, u"mutter"_s, {u"--x11"_s}));
    const int low = window()->geometry().height();
    FIND(general, ATSPI_ROLE_LIST_ITEM, "General");
    FIND(layouts, ATSPI_ROLE_LIST_ITEM, "Layouts");
    for (int round = 0; round < 3; ++round) {
        QVERIFY(layouts.doAction(u"Press"_s));
        QTRY_COMPARE(window()->geometry().height(), 654);
        QVERIFY(general.doAction(u"Press"_s));
        QTRY_COMPARE(window()->geometry().height(), low);
        settle();
        QCOMPARE(window()->geometry().height(), low);
    }
}

CORVANE_TEST(TestWindowManager, runInCore)
#include "e2e_windowmanager.moc"
