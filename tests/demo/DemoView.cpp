#include "DemoView.h"

#include "EBEnvironment.h"
#include "EBKit.h"
#include "Shared.h"

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

DemoView::DemoView(const QString &name, const QVariantMap &properties, qreal width, const QVariantMap &stored)
    : m_platform(FakePlatform::install())
{
    store().values = stored;
    QVariantMap all = properties;
    all.insert(QStringLiteral("model"), QVariant::fromValue(&m_model));
    m_window.setColor(EBKit::paper().current());
    m_window.resize(600, 420);
    m_root.reset(ViewEngine::make(m_engine, QStringLiteral("qrc:/qt/qml/Corvane/Demo/%1.qml").arg(name), all));
    m_root->setParentItem(m_window.contentItem());
    m_root->setPosition({40, 60});
    if (width > 0)
        m_root->setWidth(width);
    EBEnvironment::of(m_root.get())->setEbApp(EBApp::corvane);
    m_window.show();
    m_window.requestActivate();
    if (!QTest::qWaitForWindowActive(&m_window))
        qFatal("the window does not come up");
    pointAway();
    m_window.grabWindow();
}

FakeUserDefaults &DemoView::store()
{
    return m_platform.suite(Shared::suiteName);
}

void DemoView::mirror()
{
    for (const char *property : {"LayoutMirroring.enabled", "LayoutMirroring.childrenInherit"})
        QVERIFY(
            QQmlProperty::write(m_window.contentItem(), QString::fromLatin1(property), true, qmlContext(m_root.get())));
    m_window.grabWindow();
}

void DemoView::point(QQuickItem *item, QPointF at)
{
    QTest::mouseMove(&m_window, item->mapToScene(at).toPoint());
}

void DemoView::pointAway()
{
    QTest::mouseMove(&m_window, {590, 410});
}

void DemoView::click(QQuickItem *item, QPointF at, Qt::MouseButton button)
{
    point(item, at);
    QTest::mouseClick(&m_window, button, {}, item->mapToScene(at).toPoint());
}

bool DemoView::press(std::int64_t keyCode, std::uint64_t flags, bool isARepeat)
{
    return m_platform.pressKey({keyCode, flags, isARepeat});
}

QColor DemoView::pixel(QQuickItem *item, QPointF at)
{
    const QPointF point = item->mapToScene(at);
    return picture().pixelColor(int(std::floor(point.x())), int(std::floor(point.y())));
}

QList<QQuickItem *> DemoView::typed(const QString &type, QQuickItem *in) const
{
    QList<QQuickItem *> found;
    for (QQuickItem *item : visibleItems(in)) {
        if (QString::fromLatin1(item->metaObject()->className()).startsWith(type + QStringLiteral("_QML")))
            found.append(item);
    }
    return found;
}

QList<QQuickItem *> DemoView::visibleItems(QQuickItem *in) const
{
    QList<QQuickItem *> found;
    collect(in ? in : m_root.get(), found);
    return found;
}

QQuickItem *DemoView::textItem(const QString &text, QQuickItem *in) const
{
    for (QQuickItem *item : visibleItems(in)) {
        if (item->inherits("QQuickText") && item->property("text") == text)
            return item;
    }
    return nullptr;
}

QRectF DemoView::rectOf(QQuickItem *item, QQuickItem *in) const
{
    return item->mapRectToItem(in ? in : m_root.get(), item->boundingRect());
}
