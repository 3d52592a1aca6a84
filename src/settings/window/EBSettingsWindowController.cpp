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
constexpr int resizeDuration = 200; // milliseconds
constexpr qreal noise = 0.5;

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

    m_resize.setDuration(resizeDuration);
    m_resize.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_resize, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &height) { setHeight(height.toInt()); });

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
    const qreal wanted = std::min(std::ceil(size.height()), screenHeight);
    if (m_resize.state() == QAbstractAnimation::Running && m_resize.endValue() == int(wanted))
        return;
    m_resize.stop();
    const int current = m_window->height();
    if (std::abs(wanted - current) <= noise || std::abs(size.height() - current) <= noise)
        return;
    if (m_sized && m_window->isVisible() && !Platform::current().appearance().shouldReduceMotion()) {
        m_resize.setStartValue(current);
        m_resize.setEndValue(int(wanted));
        m_resize.start();
        return;
    }
    setHeight(int(wanted));
    if (!m_sized) {
        m_sized = true;
        m_window->center();
    }
}

void EBSettingsWindowController::setHeight(int height)
{
    m_window->setFrame(QRect(m_window->position(), QSize(initialContent.width(), height)));
}
