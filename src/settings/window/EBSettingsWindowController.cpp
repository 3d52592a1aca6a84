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
      m_window(std::make_unique<EBWindow>(initialContent, EBWindow::Style{.miniaturizeButtonEnabled = true}))
{
    //: The title of the settings window; %1 is the product's name.
    m_window->setTitle(tr("%1 Settings").arg(EBApps::displayName(app)));
    m_window->center();

    auto *root = ViewEngine::make<MeasuredItem>(
        engine, QStringLiteral("qrc:/qt/qml/Corvane/Settings/Window/SettingsRoot.qml"),
        {
            {QStringLiteral("app"), EBApps::rawValue(app)},
            {QStringLiteral("version"), version},
            {QStringLiteral("pages"), QVariant::fromValue(new SidebarModel(pages, this))},
            {QStringLiteral("model"), QVariant::fromValue(m_model)},
        });
    connect(root, &MeasuredItem::measured, this, &EBSettingsWindowController::fit);
    m_window->host(root);
    m_window->center();
    root->settle();
    fit(root->contentSize());
}

EBSettingsWindowController::~EBSettingsWindowController() = default;

void EBSettingsWindowController::showWindow()
{
    m_window->makeKeyAndOrderFront();
}

void EBSettingsWindowController::fit(QSizeF size)
{
    if (!(size.height() > 0))
        return;
    const qreal screenHeight = m_window->screen()->availableGeometry().height();
    const qreal wanted = std::min(wholePixels(std::ceil(size.height()), m_window->devicePixelRatio()), screenHeight);
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
