#include "ServiceTest.h"

/// What the list of windows promises.
class WindowListTest : public ServiceTest {
    Q_OBJECT
public:
    using ServiceTest::ServiceTest;

private slots:
    void itIsAvailableWhereThereAreWindows();
    void anEmptyScreenHasNoWindows();
    void windowsComeFrontToBackWithWhatIsKnownOfThem();
    void theListIsThatOfTheMoment();

private:
    static QList<OnScreenWindow> list() { return platform().windowList().onScreenWindows(); }
};

void WindowListTest::itIsAvailableWhereThereAreWindows()
{
    QVERIFY(platform().windowList().isAvailable());
}

void WindowListTest::anEmptyScreenHasNoWindows()
{
    QVERIFY(list().isEmpty());
}

void WindowListTest::windowsComeFrontToBackWithWhatIsKnownOfThem()
{
    implementation().show({
        {.layer = 0, .ownerIsSystemSettings = true, .bounds = QRectF(10, 20, 300, 200)},
        {.layer = 1, .ownerIsSystemSettings = false, .bounds = QRectF(0, 0, 640, 30)},
        {.layer = 0, .ownerIsSystemSettings = false, .bounds = QRectF(50, 60, 400, 300)},
    });
    const QList<OnScreenWindow> windows = list();
    QCOMPARE(windows.size(), 3);
    QCOMPARE(windows[0].bounds, QRectF(10, 20, 300, 200));
    QCOMPARE(windows[1].bounds, QRectF(0, 0, 640, 30));
    QCOMPARE(windows[2].bounds, QRectF(50, 60, 400, 300));
    QCOMPARE(windows[0].layer, 0);
    QVERIFY(windows[1].layer != 0);
    QCOMPARE(windows[2].layer, 0);
    QVERIFY(windows[0].ownerIsSystemSettings);
    QVERIFY(!windows[1].ownerIsSystemSettings && !windows[2].ownerIsSystemSettings);
}

void WindowListTest::theListIsThatOfTheMoment()
{
    implementation().show({{.layer = 0, .bounds = QRectF(10, 20, 300, 200)}});
    QCOMPARE(list().size(), 1);
    implementation().show({{.layer = 0, .bounds = QRectF(30, 40, 300, 200)}});
    QCOMPARE(list().size(), 1);
    QCOMPARE(list().constFirst().bounds, QRectF(30, 40, 300, 200));
    implementation().show({});
    QVERIFY(list().isEmpty());
}

CORVANE_TEST(WindowListTest, runOnDesktop)

#include "tst_windowlist.moc"
