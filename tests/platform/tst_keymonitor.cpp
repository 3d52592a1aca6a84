#include "FreedesktopPlatform.h"
#include "Keyboard.h"
#include "PrivateSession.h"
#include "Program.h"
#include "TestProgram.h"
#include "TopLevel.h"
#include "VirtualDisplay.h"
#include "XConnection.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <X11/keysym.h>
#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

namespace {

/// Has a shortcut, and a field that counts the keys it is sent.
constexpr auto content = R"(
    import QtQuick
    Item {
        property int closed: 0
        property alias keys: field.keys
        property alias text: field.text
        Shortcut {
            sequence: "Ctrl+W"
            onActivated: ++closed
        }
        TextInput {
            id: field
            objectName: "field"
            property int keys: 0
            focus: true
            Keys.onPressed: ++keys
        }
    })";

}

/// What Qt does for a screen reader that listens to keys: takes each key away, and sends a copy, without a time, when
/// the reader has answered.
class KeyReader : public QObject {
public:
    KeyReader() { QCoreApplication::instance()->installEventFilter(this); }

    void answer()
    {
        for (const auto &[receiver, key] : std::exchange(m_taken, {})) {
            QCoreApplication::postEvent(receiver,
                                        new QKeyEvent(key->type(), key->key(), key->modifiers(), key->nativeScanCode(),
                                                      key->nativeVirtualKey(), key->nativeModifiers(), key->text(),
                                                      key->isAutoRepeat()));
        }
    }
    qsizetype taken() const { return m_taken.size(); }

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (!event->spontaneous() || event->type() != QEvent::KeyPress)
            return false;
        m_taken.append({receiver, std::shared_ptr<QKeyEvent>(static_cast<QKeyEvent *>(event)->clone())});
        return true;
    }

private:
    QList<std::pair<QObject *, std::shared_ptr<QKeyEvent>>> m_taken;
};

/// The display, and what is on it beside this program.
struct Surroundings {
    PrivateSession session;
    VirtualDisplay display;
    XConnection x{display.name()};
};

class KeyMonitorTest : public QObject {
    Q_OBJECT
public:
    explicit KeyMonitorTest(Surroundings &around) : m_around(around), m_keyboard(around.x) { }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase() { Platform::install(nullptr); }

    void aKeyIsHeardOnceAndGoesOn();
    void aShortcutIsHeardOnceAndGoesOn();
    void aSwallowedKeyReachesNobody_data();
    void aSwallowedKeyReachesNobody();
    void theSameKeyAgainIsHeardAgain();
    void aKeyThatAScreenReaderGetsFirstIsHeardOnce_data();
    void aKeyThatAScreenReaderGetsFirstIsHeardOnce();
    void modifiersAreFlags_data();
    void modifiersAreFlags();
    void aHeldKeyRepeats();
    void positionsStayWhateverTheLayout_data();
    void positionsStayWhateverTheLayout();

    void keysAreHeardWhileNoItemHasTheFocus();
    void everyWindowOfThisApplicationIsHeard();
    void otherProcessesAreNotHeard();

    void aMonitorThatEndsItselfStillSwallows();

private:
    using Monitor = std::unique_ptr<KeyMonitor>;

    /// A monitor that keeps the keys it hears that somebody asks for, and swallows all of them or none.
    Monitor listen(bool swallows = false);

    static Monitor monitor(KeyMonitor::Handler handler)
    {
        return Platform::current().monitorKeyDown(std::move(handler));
    }

    bool giveInputFocus(xcb_window_t window) const;

    /// Sends a last key, and returns once it was heard: then everything before it has been too.
    void finish();

    int closed() const { return m_content->property("closed").toInt(); }
    int keys() const { return m_content->property("keys").toInt(); }
    QString text() const { return m_content->property("text").toString(); }

    Surroundings &m_around;
    Keyboard m_keyboard;
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QQuickItem *m_content = nullptr;
    QList<KeyDown> m_heard;
};

void KeyMonitorTest::initTestCase()
{
    Platform::install(makeFreedesktopPlatform());
}

void KeyMonitorTest::init()
{
    m_heard.clear();
    QQmlComponent component(&m_engine);
    component.setData(content, {});
    m_content = qobject_cast<QQuickItem *>(component.create());
    QVERIFY2(m_content, qPrintable(component.errorString()));
    m_window = std::make_unique<QQuickWindow>();
    m_content->setParent(m_window.get());
    m_content->setParentItem(m_window->contentItem());
    m_window->resize(200, 100);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QVERIFY(giveInputFocus(xcb_window_t(m_window->winId())));
    QTRY_VERIFY(m_window->isActive());
}

void KeyMonitorTest::cleanup()
{
    m_window.reset();
}

KeyMonitorTest::Monitor KeyMonitorTest::listen(bool swallows)
{
    return monitor([this, swallows](const KeyDown &key) {
        if (key.keyCode == KeyCodes::none)
            return false;
        m_heard.append(key);
        return swallows;
    });
}

bool KeyMonitorTest::giveInputFocus(xcb_window_t window) const
{
    const auto request =
        xcb_set_input_focus_checked(m_around.x, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    return !xcb_request_check(m_around.x, request);
}

void KeyMonitorTest::finish()
{
    bool isHeard = false;
    const Monitor last = monitor([&](const KeyDown &key) {
        isHeard = isHeard || key.keyCode == KeyCodes::escape;
        return key.keyCode == KeyCodes::escape;
    });
    m_keyboard.pressPosition(KEY_ESC);
    REQUIRE_SOON(isHeard);
}

void KeyMonitorTest::aKeyIsHeardOnceAndGoesOn()
{
    const Monitor held = listen();
    m_keyboard.pressPosition(KEY_W);
    finish();
    QCOMPARE(m_heard.size(), 1);
    QCOMPARE(m_heard.constFirst().keyCode, KeyCodes::w);
    QCOMPARE(m_heard.constFirst().flags, std::uint64_t(0));
    QVERIFY(!m_heard.constFirst().isARepeat);
    QCOMPARE(keys(), 1);
    QCOMPARE(text(), u"w"_s);
}

void KeyMonitorTest::aShortcutIsHeardOnceAndGoesOn()
{
    const Monitor held = listen();
    m_keyboard.pressPosition(KEY_W, {XK_Control_L});
    finish();
    QCOMPARE(m_heard.size(), 1);
    QCOMPARE(m_heard.constFirst().keyCode, KeyCodes::w);
    QCOMPARE(m_heard.constFirst().flags, KeyFlags::commandFlag);
    QCOMPARE(closed(), 1);
}

void KeyMonitorTest::aSwallowedKeyReachesNobody_data()
{
    using Press = std::function<void(KeyMonitorTest &)>;
    QTest::addColumn<Press>("press");
    QTest::newRow("on the keyboard") << Press(
        [](KeyMonitorTest &test) { test.m_keyboard.pressPosition(KEY_W, {XK_Control_L}); });
    QTest::newRow("from the system without a place")
        << Press([](KeyMonitorTest &test) { QTest::keyClick(test.m_window.get(), Qt::Key_W, Qt::ControlModifier); });
    QTest::newRow("made up, the question missing") << Press([](KeyMonitorTest &test) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_W, Qt::ControlModifier);
        QVERIFY(QCoreApplication::sendEvent(test.m_window.get(), &event));
        QVERIFY(event.isAccepted());
    });
}

void KeyMonitorTest::aSwallowedKeyReachesNobody()
{
    QFETCH(const std::function<void(KeyMonitorTest &)>, press);
    const Monitor held = listen(true);
    press(*this);
    finish();
    QCOMPARE(m_heard.size(), 1);
    QCOMPARE(m_heard.constFirst().keyCode, KeyCodes::w);
    QCOMPARE(m_heard.constFirst().flags, KeyFlags::commandFlag);
    QCOMPARE(closed(), 0);
    QVERIFY(!m_content->property("text").toString().contains(u'w'));
}

// A shortcut takes the key, so that what the monitors said of it is never asked for.
void KeyMonitorTest::theSameKeyAgainIsHeardAgain()
{
    const Monitor held = listen();
    m_keyboard.pressPosition(KEY_W, {XK_Control_L});
    m_keyboard.pressPosition(KEY_W, {XK_Control_L});
    finish();
    QCOMPARE(m_heard.size(), 2);
    QCOMPARE(closed(), 2);
    for (int i = 0; i < 2; ++i) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_M, Qt::ControlModifier);
        QCoreApplication::sendEvent(m_window.get(), &event);
    }
    QCOMPARE(m_heard.size(), 4);
}

void KeyMonitorTest::aKeyThatAScreenReaderGetsFirstIsHeardOnce_data()
{
    QTest::addColumn<bool>("swallowed");
    QTest::newRow("swallowed") << true;
    QTest::newRow("not swallowed") << false;
}

void KeyMonitorTest::aKeyThatAScreenReaderGetsFirstIsHeardOnce()
{
    QFETCH(const bool, swallowed);
    const Monitor held = listen(swallowed);
    {
        KeyReader reader;
        for (const quint32 key : {KEY_W, KEY_H, KEY_W})
            m_keyboard.pressPosition(key);
        QTRY_COMPARE(reader.taken(), 3);
        QCOMPARE(m_heard.size(), 3);
        reader.answer();
        QCoreApplication::processEvents();
    }
    QCOMPARE(m_heard.size(), 3);
    QCOMPARE(text(), swallowed ? QString() : u"whw"_s);
}

void KeyMonitorTest::modifiersAreFlags_data()
{
    QTest::addColumn<QList<xcb_keysym_t>>("held");
    QTest::addColumn<std::uint64_t>("flags");
    using Held = QList<xcb_keysym_t>;
    QTest::newRow("shift") << Held{XK_Shift_L} << KeyFlags::shiftFlag;
    QTest::newRow("ctrl") << Held{XK_Control_L} << KeyFlags::commandFlag;
    QTest::newRow("alt") << Held{XK_Alt_L} << KeyFlags::optionFlag;
    QTest::newRow("super") << Held{XK_Super_L} << KeyFlags::controlFlag;
    QTest::newRow("alt and ctrl") << Held{XK_Alt_L, XK_Control_L} << (KeyFlags::optionFlag | KeyFlags::commandFlag);
    QTest::newRow("all") << Held{XK_Shift_L, XK_Super_L, XK_Alt_L, XK_Control_L}
                         << (KeyFlags::shiftFlag | KeyFlags::controlFlag | KeyFlags::optionFlag
                             | KeyFlags::commandFlag);
}

void KeyMonitorTest::modifiersAreFlags()
{
    QFETCH(const QList<xcb_keysym_t>, held);
    const Monitor monitor = listen(true);
    m_keyboard.pressPosition(KEY_H, held);
    finish();
    QCOMPARE(m_heard.size(), 1);
    QCOMPARE(m_heard.constFirst().keyCode, KeyCodes::h);
    QTEST(m_heard.constFirst().flags, "flags");
}

void KeyMonitorTest::aHeldKeyRepeats()
{
    const Monitor held = listen(true);
    m_keyboard.hold(KEY_W);
    QTRY_VERIFY(m_heard.size() >= 3);
    m_keyboard.letGo(KEY_W);
    finish();
    for (qsizetype i = 0; i < m_heard.size(); ++i) {
        QCOMPARE(m_heard.at(i).keyCode, KeyCodes::w);
        QCOMPARE(m_heard.at(i).isARepeat, i > 0);
    }
    QCOMPARE(keys(), 0);
}

void KeyMonitorTest::positionsStayWhateverTheLayout_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("typed");
    QTest::newRow("american") << u"us"_s << u"qwhm"_s;
    QTest::newRow("french") << u"fr"_s << u"azh,"_s;
    QTest::newRow("dvorak") << u"us(dvorak)"_s << u"',dm"_s;
    QTest::newRow("russian") << u"ru"_s << u"йцрь"_s;
}

void KeyMonitorTest::positionsStayWhateverTheLayout()
{
    QFETCH(const QString, layout);
    const auto restored = qScopeGuard([this] { m_around.display.setKeyboardLayout(u"us"_s); });
    QVERIFY(m_around.display.setKeyboardLayout(layout));
    const Monitor held = listen();
    for (const quint32 key : {KEY_Q, KEY_W, KEY_H, KEY_M})
        m_keyboard.pressPosition(key);
    finish();
    QTEST(text(), "typed");
    m_keyboard.pressPosition(KEY_W, {XK_Control_L});
    finish();
    QList<std::int64_t> codes;
    for (const KeyDown &key : std::as_const(m_heard))
        codes.append(key.keyCode);
    QCOMPARE(codes, QList<std::int64_t>({KeyCodes::q, KeyCodes::w, KeyCodes::h, KeyCodes::m, KeyCodes::w}));
    QCOMPARE(m_heard.constLast().flags, KeyFlags::commandFlag);
}

void KeyMonitorTest::keysAreHeardWhileNoItemHasTheFocus()
{
    const Monitor held = listen(true);
    m_content->findChild<QQuickItem *>(u"field"_s)->setFocus(false);
    QVERIFY(!m_window->activeFocusItem() || m_window->activeFocusItem() == m_window->contentItem());
    m_keyboard.pressPosition(KEY_W, {XK_Control_L});
    finish();
    QCOMPARE(m_heard.size(), 1);
    QCOMPARE(closed(), 0);
}

void KeyMonitorTest::everyWindowOfThisApplicationIsHeard()
{
    const Monitor held = listen();
    QWindow other;
    other.resize(50, 50);
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QVERIFY(giveInputFocus(xcb_window_t(other.winId())));
    QTRY_VERIFY(other.isActive());
    m_keyboard.pressPosition(KEY_W);
    finish();
    QCOMPARE(m_heard.size(), 1);
    QCOMPARE(keys(), 0);
}

void KeyMonitorTest::otherProcessesAreNotHeard()
{
    const Monitor held = listen(true);
    Program other(QCoreApplication::applicationFilePath(), QProcessEnvironment::systemEnvironment());
    QVERIFY(other.start({u"tst_keymonitor"_s, u"--another-program"_s}));
    const auto window = [&] { return TopLevel::ofProcess(m_around.x, other.processId()); };
    QTRY_VERIFY(!window().isEmpty() && window().constFirst().isViewable());
    QVERIFY(giveInputFocus(window().constFirst().id()));
    QTRY_VERIFY(!m_window->isActive());
    m_keyboard.pressPosition(KEY_W);
    // The other program ends when it hears a key.
    QVERIFY(other.waitForExit());
    QCOMPARE(other.exitCode(), int(Qt::Key_W));
    QVERIFY(giveInputFocus(xcb_window_t(m_window->winId())));
    QTRY_VERIFY(m_window->isActive());
    finish();
    QCOMPARE(m_heard.size(), 0);
}

void KeyMonitorTest::aMonitorThatEndsItselfStillSwallows()
{
    Monitor held;
    const QString kept = u"kept alive"_s;
    QString after;
    held = monitor([&held, &after, kept](const KeyDown &key) {
        if (key.keyCode != KeyCodes::w)
            return false;
        held.reset();
        after = kept;
        return true;
    });
    QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(after, kept);
    QCOMPARE(closed(), 0);
    QVERIFY(!text().contains(u'w'));
    QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(closed(), 1);
}

namespace {

/// Ends when a key is pressed, with the key as its exit code.
class OtherWindow : public QWindow {
protected:
    void keyPressEvent(QKeyEvent *event) override { QCoreApplication::exit(event->key()); }
};

int runAnotherProgram(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    OtherWindow window;
    window.resize(50, 50);
    window.show();
    return QGuiApplication::exec();
}

}

static int runKeyMonitor(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--another-program") == 0)
        return runAnotherProgram(argc, argv);
    Surroundings around;
    if (!around.session.start() || !around.x.isValid())
        return 1;
    qputenv("DISPLAY", around.display.name());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication application(argc, argv);
    return runTest<KeyMonitorTest>(argc, argv, around);
}

CORVANE_TEST_MAIN(runKeyMonitor)

#include "tst_keymonitor.moc"
