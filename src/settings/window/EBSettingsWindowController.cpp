#include "EBSettingsWindowController.h"

#include "MeasuredItem.h"
#include "Platform.h"
#include "SettingsModel.h"
#include "SidebarModel.h"
#include "ViewEngine.h"

#include <QScreen>

#include <cmath>

namespace {

constexpr QSize initialContent(620, 410);
constexpr qreal noise = 0.5;

const QString rootView = QStringLiteral("qrc:/qt/qml/Corvane/Settings/Window/SettingsRoot.qml");

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

    m_root = ViewEngine::make<MeasuredItem>(
        engine, rootView,
        {
            {QStringLiteral("version"), version},
            {QStringLiteral("pages"), QVariant::fromValue(new SidebarModel(pages, this))},
            {QStringLiteral("model"), QVariant::fromValue(m_model)},
        });
    connect(m_root, &MeasuredItem::measured, this, &EBSettingsWindowController::fit);
    connect(m_window.get(), &QWindow::screenChanged, this, [this] { fit(m_root->contentSize()); });
    m_window->host(m_root);
    m_window->center();
    m_root->settle();
    fit(m_root->contentSize());
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

/// The first fit centers the window, so that it has the whole screen; after that it grows downwards. A window that was
/// moved far down keeps a usable height.
qreal EBSettingsWindowController::room() const
{
    const QRect available = m_window->screen()->availableGeometry();
    const int below = available.bottom() + 1 - m_window->y();
    return std::min(available.height(), m_sized ? std::max(below, initialContent.height()) : available.height());
}

void EBSettingsWindowController::fit(QSizeF size)
{
    if (!(size.height() > 0))
        return;
    m_root->setRoomHeight(room());
    const qreal wanted =
        std::min(wholePixels(std::ceil(size.height()), m_window->devicePixelRatio()), m_root->roomHeight());
    const int current = m_window->targetHeight();
    if (std::abs(wanted - current) <= noise || std::abs(size.height() - current) <= noise)
        return;
    const bool reduceMotion = Platform::current().appearance().shouldReduceMotion();
    m_window->setHeight(int(wanted), m_sized && m_window->isVisible() && !reduceMotion);
    if (!m_sized) {
        m_sized = true;
        m_window->center();
    }
}
