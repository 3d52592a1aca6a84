#include "EBSettingsWindowController.h"

#include "MeasuredItem.h"
#include "Platform.h"
#include "SettingsModel.h"
#include "SidebarModel.h"

#include <QScreen>

#include <cmath>

namespace {

constexpr QSize initialContent(620, 410);
constexpr qreal noise = 0.5;
constexpr double stillSeconds = 0.3;
/// What a bar of the desktop may take of the screen, where it tells neither that nor the window's place; in points.
constexpr int desktopBar = 48;

const QString rootView = QStringLiteral("qrc:/Corvane/Settings/Window/EBSettingsView.qml");

bool isPlaceKnown()
{
    return Platform::current().workspace().placesWindows();
}

/// The next height that ends on a whole pixel: at a scale of 1.5 an odd one would leave half a row unpainted.
qreal wholePixels(qreal height, qreal scale)
{
    constexpr int finestFraction = 4;
    for (int more = 0; more < finestFraction; ++more) {
        const qreal pixels = (height + more) * scale;
        if (qFuzzyCompare(pixels, std::round(pixels)))
            return height + more;
    }
    return height;
}

}

EBSettingsWindowController::EBSettingsWindowController(QQmlEngine &engine, EBApp app, const QString &version,
                                                       const QList<EBSettingsPage> &pages,
                                                       const std::optional<QString> &initial)
    : m_model(new Model(pages, initial, this)),
      m_window(std::make_unique<EBWindow>(app, initialContent, EBWindow::Style{.miniaturizeButtonEnabled = true}))
{
    //: The title of the settings window; %1 is the product's name.
    m_window->setTitle(tr("%1 Settings").arg(EBApps::displayName(app)));
    m_window->center();
    connect(m_window.get(), &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (isVisible)
            m_placedHeight = m_window->height();
    });

    m_root =
        m_window->host<MeasuredItem>(engine, rootView,
                                     {
                                         {QStringLiteral("version"), version},
                                         {QStringLiteral("pages"), QVariant::fromValue(new SidebarModel(pages, this))},
                                         {QStringLiteral("model"), QVariant::fromValue(m_model)},
                                     });
    connect(m_root, &MeasuredItem::measured, this, &EBSettingsWindowController::fit);
    connect(m_model, &Model::selectionChanged, m_window.get(), &EBWindow::paintNext);
    connect(m_window.get(), &QWindow::screenChanged, this, [this] { adapt(m_root->contentSize(), Place::kept); });
    m_window->center();
    m_root->settle();
    fit(m_root->contentSize());
    connect(m_window.get(), &QWindow::yChanged, this, &EBSettingsWindowController::followMove);
}

EBSettingsWindowController::~EBSettingsWindowController() = default;

void EBSettingsWindowController::prefetch(ViewEngine &engine, const QList<EBSettingsPage> &pages,
                                          const std::optional<QString> &initial)
{
    engine.prefetch(QUrl(rootView));
    engine.prefetch(Model(pages, initial, nullptr).content());
}

void EBSettingsWindowController::showWindow()
{
    m_window->makeKeyAndOrderFront();
}

/// The window manager, which moves the window, does not say when it is done.
void EBSettingsWindowController::followMove()
{
    m_move = Platform::current().mainQueue().every(stillSeconds, this, [this] {
        m_move.reset();
        adapt(m_root->contentSize(), Place::kept);
    });
}

/// How high a window can become whose upper edge is at `top`. The first fit centers the window, so that it has the
/// whole screen. A window that was moved far down keeps a usable height. Where its place is unknown it is
/// taken for the one that it came up at, in the middle: half of what it left free there lies below it.
int EBSettingsWindowController::room(int top) const
{
    const QRect screen = m_window->screen()->availableGeometry();
    if (!isPlaceKnown()) {
        const int whole = screen.height() - 2 * desktopBar;
        return m_placedHeight ? std::min(whole, (screen.height() - desktopBar + *m_placedHeight) / 2) : whole;
    }
    const int below = m_sized ? screen.bottom() + 1 - top : screen.height();
    return std::min(std::max(below, initialContent.height()), screen.height());
}

/// The upper edge of a window of that height: moved up by what the screen has not below it, if that is enough.
int EBSettingsWindowController::topFor(int height) const
{
    const QRect screen = m_window->screen()->availableGeometry();
    const int top = m_window->targetFrame().top();
    const int lowest = screen.bottom() + 1 - height;
    return isPlaceKnown() && lowest >= screen.top() ? std::min(top, lowest) : top;
}

void EBSettingsWindowController::fit(QSizeF size)
{
    adapt(size, Place::mayMoveUp);
}

void EBSettingsWindowController::adapt(QSizeF size, Place place)
{
    if (!(size.height() > 0))
        return;
    const QRect current = m_window->targetFrame();
    const int wanted = int(wholePixels(std::ceil(size.height()), m_window->devicePixelRatio()));
    const int top = place == Place::mayMoveUp ? topFor(wanted) : current.top();
    m_root->setRoomHeight(room(top));
    const int height = std::min(wanted, room(top));
    const bool isNoise = height == wanted && std::abs(size.height() - current.height()) <= noise;
    if (height == current.height() || isNoise)
        return;
    const bool reduceMotion = Platform::current().appearance().shouldReduceMotion();
    m_window->setFrame(top, height, m_sized && m_window->isVisible() && !reduceMotion);
    if (!m_sized) {
        m_sized = true;
        m_window->center();
    }
}
