#include "FreedesktopWorkspace.h"
#include "OnDesktop.h"
#include "TestProgram.h"
#include "X11Connection.h"
#include "X11TestWindow.h"
#include "XReply.h"

/// Mission Control where no desktop has an overview. The test plays the window manager.
class X11ShowDesktopTest : public QObject {
    Q_OBJECT
public:
    explicit X11ShowDesktopTest(const Desktop &desktop) : m_x(desktop.display()) { }

private slots:
    void initTestCase();
    void theWindowManagerIsAskedToShowTheDesktop();
    void aWindowManagerThatCannotIsNotAsked_data();
    void aWindowManagerThatCannotIsNotAsked();

private:
    void setSupported(const QList<const char *> &names) const;
    /// The numbers with which the desktop was asked for since the last time, by this program.
    QList<quint32> asked() const;

    XConnection m_x;
    PlistBundle m_bundle{"/nonexistent"};
    FreedesktopWorkspace m_workspace{m_bundle};
};

void X11ShowDesktopTest::initTestCase()
{
    QVERIFY(m_x.isValid());
    const quint32 mask = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_x, m_x.root(), XCB_CW_EVENT_MASK, &mask);
    m_x.synchronise();
}

void X11ShowDesktopTest::setSupported(const QList<const char *> &names) const
{
    QList<quint32> atoms;
    for (const char *name : names)
        atoms.append(m_x.atom(name));
    xcb_change_property(m_x, XCB_PROP_MODE_REPLACE, m_x.root(), m_x.atom("_NET_SUPPORTED"), XCB_ATOM_ATOM, 32,
                        quint32(atoms.size()), atoms.constData());
    m_x.synchronise();
}

QList<quint32> X11ShowDesktopTest::asked() const
{
    // What this program sends last ends what it sent before.
    xcb_client_message_event_t last = {};
    last.response_type = XCB_CLIENT_MESSAGE;
    last.format = 32;
    last.window = m_x.root();
    last.type = m_x.atom("CORVANE_TEST_LAST");
    xcb_send_event(X11::connection(), false, m_x.root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&last));
    xcb_flush(X11::connection());
    QList<quint32> numbers;
    const xcb_atom_t showingDesktop = m_x.atom("_NET_SHOWING_DESKTOP");
    while (const XReply<xcb_generic_event_t> event{xcb_wait_for_event(m_x)}) {
        if ((event->response_type & ~0x80) != XCB_CLIENT_MESSAGE)
            continue;
        const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event.get());
        if (message->type == last.type)
            break;
        if (message->type == showingDesktop && message->window == m_x.root())
            numbers.append(message->data.data32[0]);
    }
    return numbers;
}

void X11ShowDesktopTest::theWindowManagerIsAskedToShowTheDesktop()
{
    setSupported({"_NET_ACTIVE_WINDOW", "_NET_SHOWING_DESKTOP"});
    m_workspace.openMissionControl();
    QCOMPARE(asked(), QList<quint32>{1});
}

void X11ShowDesktopTest::aWindowManagerThatCannotIsNotAsked_data()
{
    QTest::addColumn<QList<const char *>>("supported");
    QTest::newRow("nothing") << QList<const char *>();
    QTest::newRow("other things") << QList<const char *>{"_NET_ACTIVE_WINDOW", "_NET_CLIENT_LIST"};
}

void X11ShowDesktopTest::aWindowManagerThatCannotIsNotAsked()
{
    QFETCH(const QList<const char *>, supported);
    setSupported(supported);
    m_workspace.openMissionControl();
    QCOMPARE(asked(), QList<quint32>());
    xcb_delete_property(m_x, m_x.root(), m_x.atom("_NET_SUPPORTED"));
    m_x.synchronise();
    m_workspace.openMissionControl();
    QCOMPARE(asked(), QList<quint32>());
}

CORVANE_TEST(X11ShowDesktopTest, runOnDesktop)

#include "tst_x11showdesktop.moc"
