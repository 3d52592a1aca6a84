#include "StatusPanelController.h"

#include "ButtonHighlight.h"
#include "OutsideMonitor.h"
#include "PanelPlacement.h"
#include "PanelWindow.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace {

/// A click that comes this soon after the panel has closed, in milliseconds, is the one that closed it.
constexpr qint64 sameClick = 300;

const QDateTime distantPast(QDate(1, 1, 1), QTime(0, 0), Qt::UTC);

QRect screenAround(const QRect &anchor)
{
    const QScreen *screen = QGuiApplication::screenAt(anchor.center());
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

}

StatusPanelController::StatusPanelController(QWidget *content, QObject *parent)
    : QObject(parent), m_panel(std::make_unique<PanelWindow>(content)), m_closedAt(distantPast)
{
    const auto closeIfAlive = [controller = QPointer(this)] {
        if (controller)
            controller->close();
    };
    m_panel->onEscape = closeIfAlive;
    m_panel->onResignKey = closeIfAlive;
}

StatusPanelController::~StatusPanelController()
{
    // Whoever set it may be half destroyed.
    onClose = nullptr;
    close();
}

QWidget &StatusPanelController::panel() const
{
    return *m_panel;
}

bool StatusPanelController::isOpen() const
{
    // isVisible() would still be true while the panel is being hidden.
    return !m_panel->isHidden();
}

void StatusPanelController::open(QWidget &button)
{
    if (isOpen())
        return;
    m_button = &button;
    show(QRect(button.mapToGlobal(QPoint()), button.size()), button.screen()->availableGeometry());
}

void StatusPanelController::open(const QRect &anchor)
{
    if (isOpen())
        return;
    m_button = nullptr;
    const QRect place = anchor.isEmpty() ? QRect(QCursor::pos(), QSize(1, 1)) : anchor;
    show(place, screenAround(place));
}

void StatusPanelController::toggle(QWidget &button)
{
    if (!closesOrHasJustClosed())
        open(button);
}

void StatusPanelController::toggle(const QRect &anchor)
{
    if (!closesOrHasJustClosed())
        open(anchor);
}

bool StatusPanelController::closesOrHasJustClosed()
{
    if (isOpen()) {
        close();
        return true;
    }
    const qint64 since = m_closedAt.msecsTo(now());
    return since >= 0 && since < sameClick;
}

void StatusPanelController::show(const QRect &anchor, const QRect &available)
{
    const QSize size = prepare();
    m_panel->setGeometry(panelPlacement(anchor, size, available));
    if (m_button)
        m_highlight = std::make_unique<ButtonHighlight>(*m_button);
    m_panel->show();
    m_panel->activateWindow();
    m_outsideMonitor = std::make_unique<OutsideMonitor>(*m_panel, [this] { close(); });
    if (onOpen)
        onOpen();
}

void StatusPanelController::close()
{
    if (!isOpen())
        return;
    m_panel->hide();
    m_closedAt = now();
    m_highlight.reset();
    m_outsideMonitor.reset();
    const auto tell = onClose;
    if (tell)
        tell();
}
