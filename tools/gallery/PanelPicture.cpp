#include "PanelPicture.h"

#include "EBKit.h"
#include "EBKitButton.h"
#include "EBKitIconButton.h"
#include "EBKitKeyRow.h"
#include "EBKitMenuRow.h"
#include "EBKitPanelHeader.h"
#include "EBKitPanelView.h"
#include "EBKitRow.h"
#include "EBKitSectionLabel.h"
#include "EBKitSeparator.h"
#include "KitEnvironment.h"
#include "KitText.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QHBoxLayout>

namespace {

constexpr int panelWidth = 300;

EBKitText text(const QString &string, EBTypeRole role, const EBKitColor &color = EBKit::ink())
{
    return KitText::make(string, role, color);
}

EBKitText keyText(const QString &keys)
{
    EBKitText text = KitText::make(keys, EBTypeRole::small, EBKit::ink());
    text.font.setWeight(QFont::DemiBold);
    return text;
}

/// Several views side by side, with the margins of the first.
EBKitView *beside(const QList<EBKitView *> &views)
{
    auto *line = new EBKitView;
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(views.constFirst()->panelMargins());
    layout->setSpacing(8);
    for (EBKitView *view : views)
        layout->addWidget(view);
    layout->addStretch();
    return line;
}

}

PanelPicture::PanelPicture(QQuickItem *parent) : CrispItem(parent)
{
    connect(this, &PanelPicture::changed, this, &PanelPicture::build);
    build();
}

PanelPicture::~PanelPicture() = default;

void PanelPicture::build()
{
    const EBApp app = EBApps::fromRawValue(m_app).value_or(EBApp::corvane);
    const EBKitApp product = EBKitApps::of(app);
    const auto title = [](const QString &string) { return text(string, EBTypeRole::bodyStrong); };
    const auto detail = [](const QString &string) { return text(string, EBTypeRole::caption, EBKit::inkMuted()); };
    const auto label = [](const QString &string) { return text(string, EBTypeRole::mono, EBKit::inkMuted()); };
    const auto button = [](const QString &string, EBKitButton::Variant variant) {
        const EBKitColor &color = variant == EBKitButton::Variant::primary ? EBKit::onInk() : EBKit::ink();
        return new EBKitButton(text(string, EBTypeRole::bodyStrong, color), variant, 32, {});
    };
    const auto keyRow = [&](const QString &keys, const QString &string, bool on) {
        return new EBKitKeyRow(keyText(keys), title(string), new EBKitSwitch(on, product, string, {}));
    };
    const auto entry = [](EBKitGlyph glyph, const QString &string, const QString &keys) {
        return new EBKitMenuRow(glyph, text(string, EBTypeRole::body), text(keys, EBTypeRole::small, EBKit::inkMuted()),
                                {});
    };

    EBKitKeyRow *focused = keyRow(QStringLiteral("⌘M"), tr("Minimize"), false);
    EBKitKeyRow *disabled = keyRow(QStringLiteral("⌥⌘W"), tr("Close All"), true);
    EBKitMenuRow *hovered = entry(EBKitGlyph::gear, tr("Settings…"), QStringLiteral("⌘,"));
    auto *hoveredIcon = new EBKitIconButton(EBKitGlyph::info, tr("About"), {});
    disabled->setEnabled(false);
    hovered->setHover(true);
    hoveredIcon->setHover(true);

    m_panel = std::make_unique<EBKitPanelView>();
    KitEnvironment::setEbApp(*m_panel, app);
    m_panel->setLayoutDirection(m_mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    m_panel->stack({
        new EBKitPanelHeader(product, label(tr("Menu bar")), text(product.name, EBTypeRole::lead)),
        new EBKitSectionLabel(label(tr("Windows"))),
        new EBKitRow(product, EBKitGlyph::wins, true, title(tr("Overview")), detail(tr("Shows the buttons"))),
        new EBKitRow(product, EBKitGlyph::dock, false, title(tr("Dock")), {}),
        new EBKitRow(product, {}, false, title(tr("Displays")),
                     detail(tr("Every display has its own overview, and its windows stay where they are."))),
        new EBKitSectionLabel(label(tr("Shortcuts"))),
        keyRow(QStringLiteral("⌘W"), tr("Close"), true),
        focused,
        disabled,
        beside({button(tr("Continue"), EBKitButton::Variant::primary),
                button(tr("Not Now"), EBKitButton::Variant::secondary)}),
        new EBKitSeparator,
        hovered,
        entry(EBKitGlyph::power, tr("Quit"), QStringLiteral("⌘Q")),
        new EBKitSeparator,
        beside({new EBKitIconButton(EBKitGlyph::gear, tr("Settings"), {}), hoveredIcon,
                new EBKitIconButton(EBKitGlyph::close, tr("Close"), {})}),
    });
    QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&focused->toggle(), &focus);

    m_panel->resize(panelWidth, m_panel->layout()->totalHeightForWidth(panelWidth));
    setImplicitSize(m_panel->width(), m_panel->height());
}

void PanelPicture::paint(QPainter *painter)
{
    m_panel->render(painter, QPoint(), QRegion(), QWidget::DrawChildren);
}
