#include "Accessible.h"
#include "Desktop.h"
#include "OnDesktop.h"
#include "Pointer.h"
#include "Program.h"
#include "Screen.h"
#include "Store.h"
#include "TopLevel.h"
#include "WindowManager.h"
#include "XReply.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>
#include <xcb/xcb_icccm.h>

namespace {

const QString trusted = QStringLiteral("agent.accessibilityTrusted");
// The accent of the product, with which the list marks a drag that it takes.
constexpr QColor accent(90, 92, 242);

}

/// The tile in a process of its own, beside the reference agent's System Settings, on a display without a window
/// manager. The pointer is a real one.
class DraggedTileTest : public QObject {
    Q_OBJECT
public:
    explicit DraggedTileTest(const Desktop &desktop) : m_desktop(desktop), m_pointer(desktop.x()), m_screen(desktop.x())
    {
    }

private slots:
    void init();
    void cleanup();

    void theTileAppearsBelowSystemSettingsAndFollowsIt();
    void theTileIsOnEveryDesktopAboveTheOthersAndInNoList();
    void theTileNeverTakesTheKeyboard();
    void withoutACompositorTheCornersAreCutOff();
    void withACompositorTheTileHasAShadowThroughWhichThePointerReaches();
    void theTileGoesWithSystemSettings();
    void whileSystemSettingsIsAwayTheTileIsToo();
    void droppedOntoTheListItGrantsThePermission_data();
    void droppedOntoTheListItGrantsThePermission();
    void droppedElsewhereItGrantsNothing();
    void theListRefusesAnotherApplication_data();
    void theListRefusesAnotherApplication();

private:
    void openSystemSettings(const QStringList &flags = {});
    void startHost(const QString &executable = QStringLiteral(PROGRAM_TILE_HOST));
    std::optional<TopLevel> settings() const;
    std::optional<TopLevel> tile() const;
    bool tileIsAt(QPoint place) const;
    void moveSettings(QPoint to) const;
    /// Takes the tile up at `grip`, a point of the tile, and holds it over the list.
    void dragOntoTheList(QPoint grip);
    /// The picture of the icon is on the screen, which has the pointer for so long.
    bool isDragging() const;
    QList<quint32> numbers(const char *property) const;
    /// The window that a click there would go to.
    xcb_window_t windowUnder(QPoint place) const;

    const Desktop &m_desktop;
    const Store m_store;
    const Pointer m_pointer;
    const Screen m_screen;
    std::unique_ptr<Program> m_agent;
    std::unique_ptr<Program> m_host;
};

void DraggedTileTest::init()
{
    m_store.removeAll();
}

void DraggedTileTest::cleanup()
{
    m_pointer.release();
    for (std::unique_ptr<Program> *program : {&m_host, &m_agent}) {
        if (*program)
            QCOMPARE((*program)->complaints(), QStringList());
        program->reset();
    }
}

void DraggedTileTest::openSystemSettings(const QStringList &flags)
{
    m_agent = std::make_unique<Program>(QStringLiteral(PROGRAM_CORVANE_AGENT), m_desktop.environment());
    REQUIRE(m_agent->start(flags));
    // It receives commands once it has reported its state.
    QTRY_VERIFY_WITH_TIMEOUT(m_store.read("agent.launchAtLoginNeedsApproval").isValid(), startTime);
    QDBusMessage request = QDBusMessage::createSignal("/com/vexmoor/corvane", "com.vexmoor.corvane", "command");
    request << QVariantMap{{"command", "requestAccessibility"}};
    REQUIRE(QDBusConnection::sessionBus().send(request));
    QTRY_VERIFY_WITH_TIMEOUT(settings(), startTime);
}

void DraggedTileTest::startHost(const QString &executable)
{
    m_host = std::make_unique<Program>(executable, m_desktop.environment());
    REQUIRE(m_host->start());
    QTRY_VERIFY_WITH_TIMEOUT(tile(), startTime);
}

std::optional<TopLevel> DraggedTileTest::settings() const
{
    const auto windows = TopLevel::ofProcess(m_desktop.x(), m_agent->processId());
    for (const TopLevel &window : windows) {
        if (window.isViewable() && window.title() == "System Settings")
            return window;
    }
    return std::nullopt;
}

std::optional<TopLevel> DraggedTileTest::tile() const
{
    const auto windows = TopLevel::ofProcess(m_desktop.x(), m_host->processId());
    for (const TopLevel &window : windows) {
        if (window.isViewable() && window.frame().size() == QSize(330, 76))
            return window;
    }
    return std::nullopt;
}

bool DraggedTileTest::tileIsAt(QPoint place) const
{
    const auto shown = tile();
    return shown && shown->frame().topLeft() == place;
}

void DraggedTileTest::moveSettings(QPoint to) const
{
    const quint32 values[] = {quint32(to.x()), quint32(to.y())};
    xcb_configure_window(m_desktop.x(), settings()->id(), XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values);
    m_desktop.x().synchronise();
}

QList<quint32> DraggedTileTest::numbers(const char *property) const
{
    const QByteArray bytes = m_desktop.x().property(tile()->id(), m_desktop.x().atom(property));
    const auto *first = reinterpret_cast<const quint32 *>(bytes.constData());
    return {first, first + bytes.size() / qsizetype(sizeof(quint32))};
}

xcb_window_t DraggedTileTest::windowUnder(QPoint place) const
{
    m_pointer.move(place);
    const XConnection &x = m_desktop.x();
    xcb_window_t under = x.root();
    for (xcb_window_t child = under; child != XCB_NONE;) {
        under = child;
        const XReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(x, xcb_query_pointer(x, child), nullptr));
        child = reply ? reply->child : XCB_NONE;
    }
    return under;
}

bool DraggedTileTest::isDragging() const
{
    const auto windows = TopLevel::ofProcess(m_desktop.x(), m_host->processId());
    return std::any_of(windows.begin(), windows.end(), [](const TopLevel &window) {
        return window.isViewable() && window.geometry().size() == QSize(56, 56);
    });
}

void DraggedTileTest::dragOntoTheList(QPoint grip)
{
    const QPoint start = tile()->frame().topLeft() + grip;
    m_pointer.move(start);
    m_pointer.press();
    m_pointer.move(start + QPoint(2, -2));
    REQUIRE_SOON(isDragging());
    m_pointer.move(settings()->geometry().center());
}

void DraggedTileTest::theTileAppearsBelowSystemSettingsAndFollowsIt()
{
    openSystemSettings();
    const QRect window = settings()->geometry();
    QCOMPARE(window.size(), QSize(480, 300));
    startHost();
    QTRY_VERIFY(tileIsAt({window.x() + 240 - 165, window.y() + 300 + 12}));
    moveSettings({30, 40});
    QTRY_VERIFY(tileIsAt({30 + 75, 352}));
    moveSettings({600, 100});
    QTRY_VERIFY(tileIsAt({675, 412}));
    // 800 pixels high: from here on there is no room below.
    moveSettings({600, 408});
    QTRY_VERIFY(tileIsAt({675, 720}));
    moveSettings({600, 409});
    QTRY_VERIFY(tileIsAt({675, 617}));
}

void DraggedTileTest::theTileIsOnEveryDesktopAboveTheOthersAndInNoList()
{
    openSystemSettings();
    startHost();
    const QList<quint32> states = numbers("_NET_WM_STATE");
    for (const char *state :
         {"_NET_WM_STATE_STICKY", "_NET_WM_STATE_ABOVE", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
        QVERIFY2(states.contains(m_desktop.x().atom(state)), state);
    QCOMPARE(numbers("_NET_WM_DESKTOP"), QList<quint32>{0xFFFFFFFF});
    // Brought back over what was put in front of it.
    const auto isInFront = [&] {
        const XReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(m_desktop.x(), xcb_query_tree(m_desktop.x(), m_desktop.x().root()), nullptr));
        const int count = xcb_query_tree_children_length(tree.get());
        const auto *ids = xcb_query_tree_children(tree.get());
        return std::find(ids, ids + count, tile()->id()) > std::find(ids, ids + count, settings()->id());
    };
    const xcb_window_t window = settings()->id();
    xcb_unmap_window(m_desktop.x(), window);
    m_desktop.x().synchronise();
    QTRY_VERIFY(!tile());
    const quint32 above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(m_desktop.x(), window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    xcb_map_window(m_desktop.x(), window);
    m_desktop.x().synchronise();
    QTRY_VERIFY(tile());
    QVERIFY(isInFront());
    QVERIFY(numbers("_NET_WM_STATE").contains(m_desktop.x().atom("_NET_WM_STATE_STICKY")));
}

void DraggedTileTest::theTileNeverTakesTheKeyboard()
{
    openSystemSettings();
    QTRY_VERIFY(settings()->hasInputFocus());
    startHost();
    QVERIFY(settings()->hasInputFocus());
    // Asks a window manager to leave the focus where it is.
    QCOMPARE(numbers("_NET_WM_USER_TIME"), QList<quint32>{0});
    m_pointer.click(tile()->frame().center());
    const Accessible host = Accessible::application(m_host->processId());
    // The host has handled the click when it answers.
    host.name();
    QVERIFY(settings()->hasInputFocus());
    xcb_icccm_wm_hints_t hints = {};
    QVERIFY(xcb_icccm_get_wm_hints_reply(m_desktop.x(), xcb_icccm_get_wm_hints(m_desktop.x(), tile()->id()), &hints,
                                         nullptr));
    QVERIFY(hints.flags & XCB_ICCCM_WM_HINT_INPUT);
    QCOMPARE(hints.input, 0U);
}

void DraggedTileTest::withoutACompositorTheCornersAreCutOff()
{
    openSystemSettings();
    const QRect window = settings()->geometry();
    startHost();
    QTRY_VERIFY(tileIsAt({window.x() + 75, window.y() + 312}));
    const QRect place = tile()->frame();
    const QColor root = m_screen.pixel({1, 1});
    QVERIFY(m_screen.waitForPixel(place.topLeft() + QPoint(165, 6), QColor(Qt::white)));
    const QImage picture = m_screen.picture(place.marginsAdded({24, 24, 24, 24}));
    QCOMPARE(picture.pixelColor(24, 24), root);
    QCOMPARE(picture.pixelColor(353, 99), root);
    QCOMPARE(picture.pixelColor(10, 62), root);
    // The root is black, and so would be what is not opaque: the corner has pixels of either kind and none between.
    const QImage corner = picture.copy(24, 24, 16, 16);
    for (int y = 0; y < corner.height(); ++y) {
        for (int x = 0; x < corner.width(); ++x) {
            const QColor color = corner.pixelColor(x, y);
            QVERIFY2(color == root || color.lightness() > 200, qPrintable(color.name()));
        }
    }
}

void DraggedTileTest::withACompositorTheTileHasAShadowThroughWhichThePointerReaches()
{
    auto manager = std::make_unique<WindowManager>(m_desktop, "xfwm4");
    QVERIFY(manager->start({"--compositor=on", "--vblank=off"}));
    openSystemSettings();
    startHost();
    // There is no room below: the tile stands over the window, whose colour is known.
    moveSettings({400, 480});
    QTRY_COMPARE(tile()->frame().bottom(), settings()->geometry().bottom() - 16);
    const QRect place = tile()->frame();
    const QPoint below(place.center().x(), place.bottom() + 4);
    const QColor paper = m_screen.pixel(settings()->geometry().topLeft() + QPoint(200, 200));
    QTRY_VERIFY(m_screen.pixel(below).lightness() < paper.lightness());
    QVERIFY(m_screen.pixel(below).lightness() > paper.lightness() - 60);
    // The shadow lies over the switch's row as well, which can be used all the same.
    const QPoint above(place.center().x(), place.top() - 2);
    QVERIFY(tile()->geometry().contains(above));
    QCOMPARE(windowUnder(above), settings()->id());

    manager.reset();
    QVERIFY(m_screen.waitForPixel(below, QColor("#F7F6F2")));
    QCOMPARE(tile()->frame(), place);
}

void DraggedTileTest::theTileGoesWithSystemSettings()
{
    openSystemSettings();
    startHost();
    settings()->close();
    QTRY_VERIFY(!tile());
    QVERIFY(m_host->waitForExit());
    QCOMPARE(m_host->exitCode(), 0);
    QCOMPARE(m_host->standardOutput(), QStringList("guide shown"));
}

void DraggedTileTest::whileSystemSettingsIsAwayTheTileIsToo()
{
    m_host = std::make_unique<Program>(QStringLiteral(PROGRAM_TILE_HOST), m_desktop.environment());
    QVERIFY(m_host->start());
    // The one second in which the host starts to look is far from the twelve it waits.
    openSystemSettings();
    QTRY_VERIFY_WITH_TIMEOUT(tile(), startTime);
    const xcb_window_t window = settings()->id();
    xcb_unmap_window(m_desktop.x(), window);
    m_desktop.x().synchronise();
    QTRY_VERIFY(!tile());
    xcb_map_window(m_desktop.x(), window);
    m_desktop.x().synchronise();
    QTRY_VERIFY(tile());
    QVERIFY(m_host->isRunning());
}

void DraggedTileTest::droppedOntoTheListItGrantsThePermission_data()
{
    QTest::addColumn<QPoint>("grip");
    QTest::newRow("taken at the icon") << QPoint(36, 38);
    QTest::newRow("taken at the text") << QPoint(150, 30);
    QTest::newRow("taken at the arrow") << QPoint(310, 40);
}

void DraggedTileTest::droppedOntoTheListItGrantsThePermission()
{
    QFETCH(QPoint, grip);
    openSystemSettings();
    const Accessible agent = Accessible::application(m_agent->processId());
    QTRY_VERIFY(agent.find(ATSPI_ROLE_PANEL, "No applications"));
    QVERIFY(!agent.find(ATSPI_ROLE_CHECK_BOX, "Corvane"));
    startHost();
    dragOntoTheList(grip);
    const QRect window = settings()->geometry();
    QVERIFY(m_screen.waitForPixel({window.left() + 5, window.center().y()}, accent));
    QVERIFY(!m_store.read(trusted).isValid());
    m_pointer.release();
    QVERIFY(m_store.waitFor(trusted, true));
    QTRY_VERIFY(agent.find(ATSPI_ROLE_CHECK_BOX, "Corvane"));
    QTRY_VERIFY(agent.find(ATSPI_ROLE_CHECK_BOX, "Corvane").has(ATSPI_STATE_CHECKED));
    QVERIFY(!agent.find(ATSPI_ROLE_PANEL, "No applications"));
    QVERIFY(m_screen.pixel({window.left() + 5, window.center().y()}) != accent);
    // The tile is still there, to be dragged again.
    QVERIFY(tile());
    QVERIFY(m_host->isRunning());
}

void DraggedTileTest::droppedElsewhereItGrantsNothing()
{
    openSystemSettings();
    startHost();
    dragOntoTheList({36, 38});
    const QRect window = settings()->geometry();
    QVERIFY(m_screen.waitForPixel({window.left() + 5, window.center().y()}, accent));
    m_pointer.move({5, 5});
    QTRY_VERIFY(m_screen.pixel({window.left() + 5, window.center().y()}) != accent);
    m_pointer.release();
    QTRY_VERIFY(!isDragging());
    // What the list takes now comes after whatever it made of that.
    dragOntoTheList({36, 38});
    QVERIFY(m_screen.waitForPixel({window.left() + 5, window.center().y()}, accent));
    QVERIFY(!m_store.read(trusted).isValid());
}

void DraggedTileTest::theListRefusesAnotherApplication_data()
{
    QTest::addColumn<QString>("place");
    // Outside a product's bundle the tile stands for the installed product, which is not there.
    QTest::newRow("one that is missing") << "";
    QTest::newRow("another copy") << "/Corvane.app/Contents/Helpers/Tile Host.app/Contents/MacOS";
}

void DraggedTileTest::theListRefusesAnotherApplication()
{
    namespace files = std::filesystem;
    QFETCH(QString, place);
    const QTemporaryDir elsewhere(QFileInfo(QStringLiteral(PROGRAM_TILE_HOST)).path() + "/../../../../../../t-XXXXXX");
    QVERIFY(QDir().mkpath(elsewhere.path() + place));
    const QString executable = elsewhere.path() + place + "/tile-host";
    std::error_code error;
    files::create_hard_link(files::path(PROGRAM_TILE_HOST), files::path(executable.toStdString()), error);
    QVERIFY2(!error, error.message().c_str());
    openSystemSettings();
    startHost(executable);
    dragOntoTheList({36, 38});
    const QRect window = settings()->geometry();
    QVERIFY(!m_screen.waitForPixel({window.left() + 5, window.center().y()}, accent, 500));
    m_pointer.release();
    const Accessible agent = Accessible::application(m_agent->processId());
    QVERIFY(agent.find(ATSPI_ROLE_PANEL, "No applications"));
    QVERIFY(!m_store.read(trusted).isValid());
}

CORVANE_TEST(DraggedTileTest, runBesideDesktop)

#include "tst_draggedtile.moc"
