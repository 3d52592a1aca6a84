#include "DragTileController.h"

#include "AgentBundle.h"
#include "DragTilePanel.h"
#include "GuideVisibility.h"
#include "Platform.h"
#include "SettingsWindow.h"
#include "TilePlacement.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

constexpr double tick = 0.25; // seconds

QUrl productBundle()
{
    return AgentBundle::url().value_or(QUrl::fromLocalFile(QStringLiteral("/Applications/Corvane.app")));
}

qreal firstScreenHeight()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    return screens.isEmpty() ? 0 : screens.constFirst()->geometry().height();
}

TilePlacement::Screen placed(const QScreen *screen)
{
    if (!screen)
        return {};
    return {TilePlacement::flipped(screen->geometry(), firstScreenHeight()),
            TilePlacement::flipped(screen->availableGeometry(), firstScreenHeight())};
}

/// The screen people look at: that of the window with the keyboard focus.
TilePlacement::Screen mainScreen()
{
    const QWindow *focused = QGuiApplication::focusWindow();
    return placed(focused ? focused->screen() : QGuiApplication::primaryScreen());
}

QRectF visibleFrameAround(const QRectF &window)
{
    QList<TilePlacement::Screen> screens;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (const QScreen *screen : all)
        screens.append(placed(screen));
    return TilePlacement::visibleFrame(window, screens, mainScreen());
}

}

void DragTileController::Disposer::operator()(DragTilePanel *panel) const
{
    panel->dispose();
}

DragTileController::DragTileController(QObject *parent) : QObject(parent), m_appURL(productBundle()) { }

DragTileController::~DragTileController() = default;

void DragTileController::show()
{
    if (m_panel)
        return;
    m_panel.reset(new DragTilePanel(m_appURL));
    // The first look comes at once, and may already be the last one.
    reposition();
    if (m_panel)
        m_timer = Platform::current().mainQueue().every(tick, this, [this] { reposition(); });
}

void DragTileController::hide()
{
    m_timer.reset();
    m_panel.reset();
}

std::optional<QRectF> DragTileController::settingsWindowFrame()
{
    const auto frame = SettingsWindow::frame(Platform::current().windowList().onScreenWindows());
    return frame ? std::optional(TilePlacement::flipped(*frame, firstScreenHeight())) : std::nullopt;
}

void DragTileController::reposition()
{
    if (!m_panel)
        return;
    if (const auto settingsWindow = settingsWindowFrame())
        moveTo(*settingsWindow);
    else
        lookedInVain();
}

void DragTileController::lookedInVain()
{
    m_panel->hide();
    if (!m_watch.lost())
        return;
    GuideVisibility::post(true);
    hide();
}

/// Places the panel before it is shown, so that it never flashes up elsewhere.
void DragTileController::moveTo(const QRectF &settingsWindow)
{
    m_watch.found();
    const QSizeF size = m_panel->tile().size();
    const QPointF origin = TilePlacement::origin(settingsWindow, size, visibleFrameAround(settingsWindow));
    const QPoint position = TilePlacement::flipped({origin, size}, firstScreenHeight()).topLeft().toPoint();
    if (m_panel->tile().topLeft() != position)
        m_panel->moveTile(position);
    m_panel->followCompositor();
    if (!m_panel->isVisible())
        m_panel->orderFront();
}
