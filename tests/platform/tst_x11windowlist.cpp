#include "OnDesktop.h"
#include "TestProgram.h"
#include "X11TestWindow.h"
#include "X11WindowList.h"

namespace {

constexpr QRect place(100, 50, 640, 480);
// The class of an application that is nobody's settings.
constexpr const char *editor = "org.example.Editor";

}

/// The windows of a display on which the test itself plays the window manager, or leaves it out.
class X11WindowListTest : public QObject {
    Q_OBJECT
public:
    explicit X11WindowListTest(const Desktop &desktop) : m_x(desktop.x()) { }

private slots:
    void initTestCase();
    void cleanup();

    void withoutWindowsTheListIsEmpty();
    void windowsComeFrontToBack();
    void onlyWindowsOnTheScreenCount();
    void theWindowManagersStackingIsTheOrder();
    void withoutAStackingTheWindowManagersListCounts();
    void minimisedWindowsAreLeftOut_data();
    void minimisedWindowsAreLeftOut();
    void onlyTheCurrentDesktopCounts_data();
    void onlyTheCurrentDesktopCounts();
    void theLayerFollowsFromTheKindOfWindow_data();
    void theLayerFollowsFromTheKindOfWindow();
    void aMenuWithoutAWindowManagerIsNoOrdinaryWindow();
    void systemSettingsIsKnownByItsClass_data();
    void systemSettingsIsKnownByItsClass();
    void theFrameOfTheWindowManagerCounts();
    void theShadowThatAWindowDrawsItselfDoesNotCount();
    void aWindowInsideAnotherIsPlacedOnTheScreen();
    void aMovedWindowIsFoundWhereItIs();
    void aWindowThatIsGoneIsLeftOut();
    void brokenPropertiesAreIgnored();

private:
    const X11TestWindow &show(QRect where = place, bool overrideRedirect = false);
    void setStacking(const QList<const X11TestWindow *> &bottomToTop);
    QList<OnScreenWindow> list() { return m_list.onScreenWindows(); }
    QList<QRectF> bounds();
    static QRectF points(QRect pixels);

    const XConnection &m_x;
    X11WindowList m_list;
    std::vector<std::unique_ptr<X11TestWindow>> m_windows;
};

void X11WindowListTest::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), "xcb");
    QCOMPARE(qApp->devicePixelRatio(), qgetenv("CORVANE_TEST_SCALE").toDouble());
}

void X11WindowListTest::cleanup()
{
    m_windows.clear();
    for (const char *property : {"_NET_CLIENT_LIST_STACKING", "_NET_CLIENT_LIST", "_NET_CURRENT_DESKTOP"})
        xcb_delete_property(m_x, m_x.root(), m_x.atom(property));
    m_x.synchronise();
}

const X11TestWindow &X11WindowListTest::show(QRect where, bool overrideRedirect)
{
    m_windows.push_back(std::make_unique<X11TestWindow>(m_x, where, overrideRedirect));
    m_windows.back()->map();
    return *m_windows.back();
}

void X11WindowListTest::setStacking(const QList<const X11TestWindow *> &bottomToTop)
{
    QList<quint32> ids;
    for (const X11TestWindow *window : bottomToTop)
        ids.append(window->id());
    X11TestWindow::setNumbers(m_x, m_x.root(), "_NET_CLIENT_LIST_STACKING", ids);
}

QList<QRectF> X11WindowListTest::bounds()
{
    QList<QRectF> bounds;
    const auto windows = list();
    for (const OnScreenWindow &window : windows)
        bounds.append(window.bounds.value_or(QRectF()));
    return bounds;
}

QRectF X11WindowListTest::points(QRect pixels)
{
    const qreal scale = qgetenv("CORVANE_TEST_SCALE").toDouble();
    return {QPointF(pixels.topLeft()) / scale, QSizeF(pixels.size()) / scale};
}

void X11WindowListTest::withoutWindowsTheListIsEmpty()
{
    QVERIFY(list().isEmpty());
    X11TestWindow::setNumbers(m_x, m_x.root(), "_NET_CLIENT_LIST_STACKING", {});
    QVERIFY(list().isEmpty());
}

void X11WindowListTest::windowsComeFrontToBack()
{
    const X11TestWindow &first = show({0, 0, 10, 10});
    show({0, 0, 20, 20});
    show({0, 0, 30, 30});
    QCOMPARE(bounds(), (QList{points({0, 0, 30, 30}), points({0, 0, 20, 20}), points({0, 0, 10, 10})}));
    first.raise();
    QCOMPARE(bounds(), (QList{points({0, 0, 10, 10}), points({0, 0, 30, 30}), points({0, 0, 20, 20})}));
}

void X11WindowListTest::onlyWindowsOnTheScreenCount()
{
    const X11TestWindow &shown = show();
    const X11TestWindow never(m_x, {0, 0, 20, 20});
    QCOMPARE(bounds(), QList{points(place)});
    shown.unmap();
    QVERIFY(list().isEmpty());
    shown.map();
    QCOMPARE(bounds(), QList{points(place)});
}

void X11WindowListTest::theWindowManagersStackingIsTheOrder()
{
    const X11TestWindow &one = show({0, 0, 10, 10});
    const X11TestWindow &two = show({0, 0, 20, 20});
    show({0, 0, 30, 30});
    setStacking({&two, &one});
    QCOMPARE(bounds(), (QList{points({0, 0, 10, 10}), points({0, 0, 20, 20})}));
    setStacking({&one, &two});
    QCOMPARE(bounds(), (QList{points({0, 0, 20, 20}), points({0, 0, 10, 10})}));
    setStacking({});
    QVERIFY(list().isEmpty());
}

void X11WindowListTest::withoutAStackingTheWindowManagersListCounts()
{
    const X11TestWindow &frame = show({100, 100, 410, 340});
    const X11TestWindow &client = show({0, 0, 400, 300});
    xcb_reparent_window(m_x, client.id(), frame.id(), 5, 35);
    client.map();
    X11TestWindow::setNumbers(m_x, m_x.root(), "_NET_CLIENT_LIST", {client.id()});
    QCOMPARE(bounds(), QList{points({105, 135, 400, 300})});
    // The stacking goes first, even an empty one.
    setStacking({});
    QVERIFY(list().isEmpty());
}

void X11WindowListTest::minimisedWindowsAreLeftOut_data()
{
    QTest::addColumn<bool>("managed");
    QTest::newRow("with a window manager") << true;
    QTest::newRow("without one") << false;
}

void X11WindowListTest::minimisedWindowsAreLeftOut()
{
    QFETCH(bool, managed);
    const X11TestWindow &window = show();
    if (managed)
        setStacking({&window});
    // Compositing window managers leave minimised windows mapped.
    window.setNumbers("WM_STATE", {3, 0});
    QVERIFY(list().isEmpty());
    window.setNumbers("WM_STATE", {1, 0});
    QCOMPARE(list().size(), 1);
    window.setNumbers("_NET_WM_STATE", {m_x.atom("_NET_WM_STATE_ABOVE"), m_x.atom("_NET_WM_STATE_HIDDEN")});
    QVERIFY(list().isEmpty());
    window.setNumbers("_NET_WM_STATE", {m_x.atom("_NET_WM_STATE_ABOVE")});
    QCOMPARE(list().size(), 1);
    window.unmap();
    QVERIFY(list().isEmpty());
}

void X11WindowListTest::onlyTheCurrentDesktopCounts_data()
{
    QTest::addColumn<QList<quint32>>("current");
    QTest::addColumn<QList<quint32>>("own");
    QTest::addColumn<bool>("counts");
    using Numbers = QList<quint32>;
    QTest::newRow("the same") << Numbers{2} << Numbers{2} << true;
    QTest::newRow("another one") << Numbers{2} << Numbers{1} << false;
    QTest::newRow("on all of them") << Numbers{2} << Numbers{0xFFFFFFFF} << true;
    QTest::newRow("on none in particular") << Numbers{2} << Numbers{} << true;
    QTest::newRow("no desktops") << Numbers{} << Numbers{1} << true;
}

void X11WindowListTest::onlyTheCurrentDesktopCounts()
{
    QFETCH(QList<quint32>, current);
    QFETCH(QList<quint32>, own);
    QFETCH(bool, counts);
    const X11TestWindow &window = show();
    setStacking({&window});
    if (!current.isEmpty())
        X11TestWindow::setNumbers(m_x, m_x.root(), "_NET_CURRENT_DESKTOP", current);
    if (!own.isEmpty())
        window.setNumbers("_NET_WM_DESKTOP", own);
    QCOMPARE(list().size(), counts ? 1 : 0);
}

void X11WindowListTest::theLayerFollowsFromTheKindOfWindow_data()
{
    QTest::addColumn<QByteArrayList>("types");
    QTest::addColumn<bool>("hasOwner");
    QTest::addColumn<bool>("isOrdinary");
    const auto row = [](const char *name, const char *type, bool hasOwner, bool isOrdinary) {
        QTest::newRow(name) << QByteArray(type).split(' ') << hasOwner << isOrdinary;
    };
    row("no type", "", false, true);
    row("no type, of another window", "", true, false);
    row("normal", "_NET_WM_WINDOW_TYPE_NORMAL", false, true);
    row("normal, of another window", "_NET_WM_WINDOW_TYPE_NORMAL", true, true);
    row("a dialog by itself", "_NET_WM_WINDOW_TYPE_DIALOG", false, true);
    row("a dialog of another window", "_NET_WM_WINDOW_TYPE_DIALOG", true, false);
    row("a panel", "_NET_WM_WINDOW_TYPE_DOCK", false, false);
    row("the background", "_NET_WM_WINDOW_TYPE_DESKTOP", false, false);
    row("a tool window", "_NET_WM_WINDOW_TYPE_UTILITY", false, false);
    row("a splash", "_NET_WM_WINDOW_TYPE_SPLASH", false, false);
    row("a notification", "_NET_WM_WINDOW_TYPE_NOTIFICATION", false, false);
    row("unknown", "_EXAMPLE_TYPE", false, true);
    row("unknown, of another window", "_EXAMPLE_TYPE", true, false);
    row("normal if need be", "_EXAMPLE_TYPE _NET_WM_WINDOW_TYPE_NORMAL _NET_WM_WINDOW_TYPE_DOCK", false, true);
    row("a panel if need be", "_EXAMPLE_TYPE _NET_WM_WINDOW_TYPE_DOCK _NET_WM_WINDOW_TYPE_NORMAL", false, false);
}

void X11WindowListTest::theLayerFollowsFromTheKindOfWindow()
{
    QFETCH(QByteArrayList, types);
    QFETCH(bool, hasOwner);
    QFETCH(bool, isOrdinary);
    const X11TestWindow &window = show();
    QList<quint32> atoms;
    for (const QByteArray &type : std::as_const(types)) {
        if (!type.isEmpty())
            atoms.append(m_x.atom(type.constData()));
    }
    window.setNumbers("_NET_WM_WINDOW_TYPE", atoms);
    if (hasOwner)
        window.setNumbers("WM_TRANSIENT_FOR", {m_x.root()});
    QCOMPARE(list().size(), 1);
    QCOMPARE(list().constFirst().layer == 0, isOrdinary);
}

void X11WindowListTest::aMenuWithoutAWindowManagerIsNoOrdinaryWindow()
{
    show(place, true);
    QCOMPARE(list().size(), 1);
    QVERIFY(list().constFirst().layer != 0);
}

void X11WindowListTest::systemSettingsIsKnownByItsClass_data()
{
    QTest::addColumn<QByteArray>("instance");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isSettings");
    const auto row = [](const char *instance, const char *name, bool isSettings) {
        QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(instance), QLatin1String(name))))
            << QByteArray(instance) << QByteArray(name) << isSettings;
    };
    row("gnome-control-center", "Gnome-control-center", true);
    row("gnome-control-center", "gnome-control-center", true);
    row("org.gnome.Settings", "org.gnome.Settings", true);
    row("systemsettings", "systemsettings", true);
    row("xfce4-settings-manager", "Xfce4-settings-manager", true);
    row("cinnamon-settings", "Cinnamon-settings", true);
    row("mate-control-center", "Mate-control-center", true);
    row("lxqt-config", "lxqt-config", true);
    row("io.elementary.settings", "Io.elementary.settings", true);
    row("io.elementary.switchboard", "Io.elementary.switchboard", true);
    row("budgie-control-center", "budgie-control-center", true);
    row("cosmic-settings", "com.system76.CosmicSettings", true);
    row("corvane-agent", "com.vexmoor.corvane.systemsettings", true);
    row("corvane-settings", "com.vexmoor.corvane.settings", false);
    row("corvane-agent", "com.vexmoor.corvane", false);
    row("editor", editor, false);
    row("my-systemsettings", "systemsettings-like", false);
    row("", "", false);
}

void X11WindowListTest::systemSettingsIsKnownByItsClass()
{
    QFETCH(QByteArray, instance);
    QFETCH(QByteArray, name);
    QFETCH(bool, isSettings);
    const X11TestWindow &window = show();
    QVERIFY(!list().constFirst().ownerIsSystemSettings);
    window.setClass(instance, name);
    QCOMPARE(list().constFirst().ownerIsSystemSettings, isSettings);
}

void X11WindowListTest::theFrameOfTheWindowManagerCounts()
{
    const X11TestWindow &window = show({100, 100, 400, 300});
    // Left, right, top, bottom.
    window.setNumbers("_NET_FRAME_EXTENTS", {2, 4, 30, 6});
    QCOMPARE(bounds(), QList{points({98, 70, 406, 336})});
}

void X11WindowListTest::theShadowThatAWindowDrawsItselfDoesNotCount()
{
    const X11TestWindow &window = show({100, 100, 400, 300});
    window.setNumbers("_GTK_FRAME_EXTENTS", {20, 22, 16, 28});
    QCOMPARE(bounds(), QList{points({120, 116, 358, 256})});
}

void X11WindowListTest::aWindowInsideAnotherIsPlacedOnTheScreen()
{
    const X11TestWindow &frame = show({100, 100, 410, 340});
    const X11TestWindow &client = show({0, 0, 400, 300});
    xcb_reparent_window(m_x, client.id(), frame.id(), 5, 35);
    client.map();
    client.setNumbers("_NET_FRAME_EXTENTS", {5, 5, 35, 5});
    setStacking({&client});
    QCOMPARE(bounds(), QList{points({100, 100, 410, 340})});
    // A window in a frame that is not on the screen is not there either.
    frame.unmap();
    QVERIFY(list().isEmpty());
}

void X11WindowListTest::aMovedWindowIsFoundWhereItIs()
{
    const X11TestWindow &window = show({100, 100, 400, 300});
    window.move({-50, 7});
    QCOMPARE(bounds(), QList{points({-50, 7, 400, 300})});
}

void X11WindowListTest::aWindowThatIsGoneIsLeftOut()
{
    const X11TestWindow &window = show();
    setStacking({&window});
    {
        const X11TestWindow other(m_x, place);
        other.map();
        setStacking({&window, &other});
        QCOMPARE(list().size(), 2);
    }
    QCOMPARE(list().size(), 1);
    X11TestWindow::setNumbers(m_x, m_x.root(), "_NET_CLIENT_LIST_STACKING", {0, 1, 0xFFFFFFFF, window.id()});
    QCOMPARE(list().size(), 1);
}

void X11WindowListTest::brokenPropertiesAreIgnored()
{
    const X11TestWindow &window = show({100, 100, 400, 300});
    const char text[] = "nonsense";
    for (const char *property : {"_NET_FRAME_EXTENTS", "_GTK_FRAME_EXTENTS", "_NET_WM_DESKTOP", "_NET_WM_STATE",
                                 "_NET_WM_WINDOW_TYPE", "WM_STATE"}) {
        xcb_change_property(m_x, XCB_PROP_MODE_REPLACE, window.id(), m_x.atom(property), XCB_ATOM_STRING, 8, 8, text);
    }
    m_x.synchronise();
    QCOMPARE(bounds(), QList{points({100, 100, 400, 300})});
    window.setNumbers("_NET_FRAME_EXTENTS", {1, 2});
    window.setNumbers("WM_CLASS", {1, 2});
    QCOMPARE(bounds(), QList{points({100, 100, 400, 300})});
    QVERIFY(!list().constFirst().ownerIsSystemSettings);
    // Margins beyond all measure neither overflow nor make the window a wide one.
    window.setNumbers("_NET_FRAME_EXTENTS", {});
    window.setNumbers("_GTK_FRAME_EXTENTS", {0x7FFFFFFF, 0x7FFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF});
    QVERIFY(bounds().constFirst().width() < 0);
}

CORVANE_TEST(X11WindowListTest, runOnDesktop)

#include "tst_x11windowlist.moc"
