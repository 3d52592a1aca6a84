#include "DragTilePanel.h"

#include "ContinuousRect.h"
#include "DragTileView.h"
#include "EBApp.h"
#include "Platform.h"
#include "ViewEngine.h"

#include <QGuiApplication>
#include <QQmlProperty>

namespace {

constexpr QSize panelSize(330, 76);
constexpr qreal cornerRadius = 16;

}

DragTilePanel::DragTilePanel(const QUrl &appURL) : m_engine(std::make_unique<ViewEngine>())
{
    // Not a tool window: some desktops hide those of an application that is not the active one.
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus);
    setProperty("_q_showWithoutActivating", true);
    QSurfaceFormat transparent = format();
    transparent.setAlphaBufferSize(8);
    setFormat(transparent);
    setColor(Qt::transparent);
    setTitle(EBApps::displayName(EBApp::corvane));
    resize(panelSize);
    setMinimumSize(panelSize);
    setMaximumSize(panelSize);

    m_view.reset(ViewEngine::make<DragTileView>(*m_engine,
                                                QStringLiteral("qrc:/qt/qml/Corvane/Onboarding/Tile/DragTile.qml"),
                                                {{QStringLiteral("appURL"), appURL}}));
    if (QGuiApplication::isRightToLeft())
        QQmlProperty::write(m_view.get(), QStringLiteral("LayoutMirroring.enabled"), true, qmlContext(m_view.get()));
    m_view->setParentItem(contentItem());
    m_view->setSize(panelSize);
}

DragTilePanel::~DragTilePanel() = default;

void DragTilePanel::orderFront()
{
    cutOut();
    Platform::current().workspace().floatOnAllSpaces(*this);
    show();
}

/// Without blending the corners would be black.
void DragTilePanel::cutOut()
{
    QRegion shape;
    if (!Platform::current().workspace().blendsWindows())
        shape = QRegion(continuousRect(QRectF(QPointF(), panelSize), cornerRadius).toFillPolygon().toPolygon());
    if (mask() != shape)
        setMask(shape);
}

void DragTilePanel::dispose()
{
    if (!m_view->isDragging()) {
        delete this;
        return;
    }
    hide();
    connect(m_view.get(), &DragTileView::dragEnded, this, &QObject::deleteLater);
}
