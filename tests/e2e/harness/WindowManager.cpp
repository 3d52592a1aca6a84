#include "WindowManager.h"

#include "Desktop.h"

#include <QTest>

WindowManager::WindowManager(const Desktop &desktop, const QString &program)
    : m_desktop(desktop), m_program(program, desktop.environment())
{
}

WindowManager::~WindowManager()
{
    m_program.terminate();
    [[maybe_unused]] const bool isGone = QTest::qWaitFor([this] { return !isManaging(); });
}

bool WindowManager::start(const QStringList &arguments)
{
    return m_program.start(arguments) && QTest::qWaitFor([this] { return isManaging(); }, 20000);
}

/// It names a window of its own, which knows its own name.
bool WindowManager::isManaging() const
{
    const XConnection &x = m_desktop.x();
    const xcb_atom_t check = x.atom("_NET_SUPPORTING_WM_CHECK");
    const xcb_window_t own = x.number(x.root(), check);
    return own != XCB_NONE && x.number(own, check) == own;
}
