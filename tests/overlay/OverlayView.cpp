#include "OverlayView.h"

#include "EBEnvironment.h"
#include "EBKit.h"

#include <QCoreApplication>
#include <QQmlProperty>
#include <QTest>

#include <cmath>

namespace {

void collect(QQuickItem *item, QList<QQuickItem *> &found)
{
    if (!item->isVisible())
        return;
    found.append(item);
    for (QQuickItem *child : item->childItems())
        collect(child, found);
}

}

OverlayView::OverlayView(const QString &name, const QVariantMap &properties, qreal width)
    : m_platform(FakePlatform::install())
{
    const QString url = QStringLiteral("qrc:/qt/qml/Corvane/Overlay/%1.qml").arg(name);
    m_window.setColor(EBKit::paper().current());
    m_window.resize(480, 320);
    m_root = ViewEngine::make(m_engine, url, properties);
    m_root->setParent(&m_window);
    m_root->setParentItem(m_window.contentItem());
    m_root->setPosition({20, 20});
    if (width > 0)
        QQmlProperty::write(m_root, QStringLiteral("width"), width);
    EBEnvironment::of(m_root)->setEbApp(EBApp::corvane);
    m_window.show();
    m_window.requestActivate();
    if (!QTest::qWaitForWindowActive(&m_window))
        qFatal("the window does not come up");
    m_window.grabWindow();
}

void OverlayView::mirror()
{
    for (const char *property : {"LayoutMirroring.enabled", "LayoutMirroring.childrenInherit"})
        QVERIFY(QQmlProperty::write(m_window.contentItem(), QString::fromLatin1(property), true, qmlContext(m_root)));
}

QColor OverlayView::pixel(QQuickItem *item, QPointF at)
{
    const QPointF point = item->mapToScene(at);
    return picture().pixelColor(int(std::floor(point.x())), int(std::floor(point.y())));
}

QList<QQuickItem *> OverlayView::visibleItems() const
{
    QList<QQuickItem *> found;
    collect(m_root, found);
    return found;
}

QQuickItem *OverlayView::textItem(const QString &text) const
{
    for (QQuickItem *item : visibleItems()) {
        if (item->inherits("QQuickText") && item->property("text") == text)
            return item;
    }
    return nullptr;
}

void AnimationClock::start()
{
    m_elapsed = 0;
    QAnimationDriver::start();
}

void AnimationClock::advance(int milliseconds)
{
    // What has just been started joins in a few events later.
    QCoreApplication::processEvents();
    QTRY_VERIFY(isRunning());
    m_elapsed += milliseconds;
    advanceAnimation();
}

QColor over(const QColor &upper, const QColor &ground, qreal opacity)
{
    const qreal alpha = upper.alphaF() * opacity;
    const auto mix = [alpha](float a, float b) { return float(a * alpha + b * (1 - alpha)); };
    return QColor::fromRgbF(mix(upper.redF(), ground.redF()), mix(upper.greenF(), ground.greenF()),
                            mix(upper.blueF(), ground.blueF()));
}

bool isNear(const QColor &actual, const QColor &expected, int tolerance)
{
    return std::abs(actual.red() - expected.red()) <= tolerance
        && std::abs(actual.green() - expected.green()) <= tolerance
        && std::abs(actual.blue() - expected.blue()) <= tolerance;
}
