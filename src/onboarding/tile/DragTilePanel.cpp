#include "DragTilePanel.h"

#include "ContinuousRect.h"
#include "DragTileView.h"
#include "EBApp.h"
#include "Platform.h"
#include "TileGround.h"
#include "ViewEngine.h"

#include <QGuiApplication>
#include <QQmlProperty>

namespace {

constexpr QSize tileSize(330, 76);
constexpr QMargins shadow(TileGround::margin, TileGround::margin, TileGround::margin, TileGround::margin);
constexpr QRect tileInPanel(QPoint(TileGround::margin, TileGround::margin), tileSize);

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
    const QSize size = tileSize.grownBy(shadow);
    resize(size);
    setMinimumSize(size);
    setMaximumSize(size);
    m_ground = new TileGround(contentItem());
    m_ground->setSize(size);

    m_view.reset(ViewEngine::make<DragTileView>(*m_engine, QStringLiteral("qrc:/Corvane/Onboarding/Tile/DragTile.qml"),
                                                {{QStringLiteral("appURL"), appURL}}));
    if (QGuiApplication::isRightToLeft())
        QQmlProperty::write(m_view.get(), QStringLiteral("LayoutMirroring.enabled"), true, qmlContext(m_view.get()));
    m_view->setParentItem(contentItem());
    m_view->setPosition(tileInPanel.topLeft());
    m_view->setSize(tileSize);
}

DragTilePanel::~DragTilePanel() = default;

QRect DragTilePanel::tile() const
{
    return geometry().marginsRemoved(shadow);
}

void DragTilePanel::moveTile(QPoint topLeft)
{
    setPosition(topLeft - tileInPanel.topLeft());
}

void DragTilePanel::followCompositor()
{
    // Without blending, what is not opaque would be black: the tile stands a pixel inside its place, which is cut out
    // of an opaque ground.
    const bool blends = Platform::current().workspace().blendsWindows();
    const QRect card = blends ? tileInPanel : tileInPanel.adjusted(1, 1, -1, -1);
    m_ground->setBlended(blends);
    m_view->setPosition(card.topLeft());
    m_view->setSize(card.size());
    const QPainterPath outline = continuousRect(card, TileGround::cornerRadius);
    const QRegion shape = blends ? QRegion() : QRegion(outline.toFillPolygon().toPolygon());
    if (mask() != shape)
        setMask(shape);
}

void DragTilePanel::orderFront()
{
    Platform::current().workspace().floatOnAllSpaces(*this);
    Platform::current().workspace().setShadow(*this, shadow);
    show();
}

void DragTilePanel::exposeEvent(QExposeEvent *event)
{
    QQuickWindow::exposeEvent(event);
    if (isExposed())
        Platform::current().workspace().setShadow(*this, shadow);
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
