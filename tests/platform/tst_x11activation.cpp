#include "FreedesktopWorkspace.h"
#include "OnDesktop.h"
#include "RootListener.h"
#include "TestProgram.h"

#include <QWindow>

/// A window that is to come to the front. The test plays the window manager.
class X11ActivationTest : public QObject {
    Q_OBJECT
public:
    explicit X11ActivationTest(const Desktop &desktop) : m_root(desktop.display()) { }

private slots:
    void theWindowManagerIsAskedAsThePersonWouldAsk()
    {
        QWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        m_workspace.bringToFront(window);
        // Two is for what stands for the person; a program that asks for itself says one, and when it last had input.
        QVERIFY(m_root.waitForRequest(xcb_window_t(window.winId()), "_NET_ACTIVE_WINDOW", {2}));
    }

private:
    RootListener m_root;
    PlistBundle m_bundle{"/nonexistent"};
    FreedesktopWorkspace m_workspace{m_bundle};
};

CORVANE_TEST(X11ActivationTest, runOnDesktop)

#include "tst_x11activation.moc"
