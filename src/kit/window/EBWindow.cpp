#include "EBWindow.h"

#include "EBEnvironment.h"
#include "EBKit.h"
#include "Motion.h"
#include "Platform.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickItem>
#include <QScreen>

namespace {

const QString chromeView = QStringLiteral("qrc:/Embera/Window/WindowChrome.qml");
/// How far down the strip reaches that moves the window, in points.
constexpr int titleBarHeight = 28;
constexpr qreal resizeDuration = 0.2; // seconds

/// Lies under the content and moves the window by the presses that nothing above it takes.
class Handle : public QQuickItem {
public:
    explicit Handle(QQuickItem *parent) : QQuickItem(parent)
    {
        setAcceptedMouseButtons(Qt::LeftButton);
        setZ(-1);
    }

protected:
    void mousePressEvent(QMouseEvent *) override { window()->startSystemMove(); }
};

}

EBWindow::EBWindow(EBApp app, QSize contentSize, Style style) : m_app(app), m_style(style)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint);
    fixSize(contentSize);
    m_resize.setEasingCurve(QEasingCurve::InOutQuad);
    // It tells of a value as well when it is given its ends, and then of the last one.
    connect(&m_resize, &QVariantAnimation::valueChanged, this, [this](const QVariant &frame) {
        if (m_resize.state() == QAbstractAnimation::Running)
            setGeometry(frame.toRect());
    });
    connect(&m_resize, &QVariantAnimation::finished, this, [this] { fixSize(m_resize.endValue().toRect().size()); });
    // Some desktops minimise a window without its state telling so afterwards.
    connect(this, &QWindow::windowStateChanged, this,
            [this](Qt::WindowState state) { m_minimized = m_minimized || state == Qt::WindowMinimized; });
    connect(this, &QWindow::activeChanged, this, [this] { m_minimized = m_minimized && !isActive(); });
    const auto paint = [this] { setColor(EBKit::paper().current()); };
    connect(&Platform::current().appearance(), &Appearance::changed, this, paint);
    paint();
}

void EBWindow::host(QQuickItem *view)
{
    // The chrome imports the kit, before which there is no environment.
    QQuickItem *chrome = makeChrome(qmlEngine(view));
    EBEnvironment::of(contentItem())->setEbApp(m_app);
    addItem(view);
    auto *handle = new Handle(contentItem());
    // Before a window is shown it has its size already, and its content item has none.
    const auto fill = [this, view, handle] {
        view->setSize(size());
        handle->setSize({qreal(width()), qreal(m_style.movableByWindowBackground ? height() : titleBarHeight)});
    };
    connect(this, &QWindow::widthChanged, view, fill);
    connect(this, &QWindow::heightChanged, view, fill);
    fill();
    addItem(chrome);
}

void EBWindow::prefetch(ViewEngine &engine)
{
    engine.prefetch(QUrl(chromeView));
}

QQuickItem *EBWindow::makeChrome(QQmlEngine *engine)
{
    return ViewEngine::make(*engine, chromeView, {{QStringLiteral("window"), QVariant::fromValue(this)}});
}

void EBWindow::addItem(QQuickItem *item)
{
    item->setParent(contentItem());
    item->setParentItem(contentItem());
    if (QGuiApplication::isRightToLeft())
        QQmlProperty::write(item, QStringLiteral("LayoutMirroring.enabled"), true, qmlContext(item));
}

void EBWindow::setLoudGround(bool loud)
{
    if (m_loudGround == loud)
        return;
    m_loudGround = loud;
    emit loudGroundChanged();
}

void EBWindow::center()
{
    QRect frame = geometry();
    frame.moveCenter(screen()->availableGeometry().center());
    setPosition(frame.topLeft());
}

void EBWindow::setFrame(int top, int height, bool animate)
{
    m_resize.stop();
    // A window manager refuses what lies outside the limits.
    setMinimumHeight(std::min(this->height(), height));
    setMaximumHeight(std::max(this->height(), height));
    const QRect frame(x(), top, width(), height);
    if (animate) {
        m_resize.setStartValue(geometry());
        m_resize.setEndValue(frame);
        m_resize.setDuration(Motion::duration(resizeDuration));
        m_resize.start();
        return;
    }
    setGeometry(frame);
    fixSize(frame.size());
}

QRect EBWindow::targetFrame() const
{
    return m_resize.state() == QAbstractAnimation::Running ? m_resize.endValue().toRect() : geometry();
}

void EBWindow::setShortcutsEnabled(bool enabled)
{
    if (enabled == m_shortcutsEnabled)
        return;
    m_shortcutsEnabled = enabled;
    emit shortcutsEnabledChanged();
}

/// Not to the size that the window has: a late notice of the window manager may still tell of one on the way.
void EBWindow::fixSize(QSize size)
{
    resize(size);
    setMinimumSize(size);
    setMaximumSize(size);
}

void EBWindow::makeKeyAndOrderFront()
{
    // A new window comes up in front; one that was hidden comes back where it was among the others.
    const bool isNew = !handle();
    // Where the desktop keeps a minimised window to itself, only one that is shown anew comes back.
    if (m_minimized && !isActive() && !Platform::current().workspace().placesWindows())
        hide();
    m_minimized = false;
    show();
    requestActivate();
    if (isNew)
        return;
    raise();
    // The click that asked for it may have been in another program.
    Platform::current().workspace().bringToFront(*this);
}

void EBWindow::paintNext()
{
    QCoreApplication::postEvent(this, new QEvent(QEvent::UpdateRequest), Qt::HighEventPriority);
}
