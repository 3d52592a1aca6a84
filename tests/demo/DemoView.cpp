#include "DemoView.h"

#include "EBEnvironment.h"
#include "EBKit.h"
#include "Shared.h"

#include <QTest>

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
    Views::bringUp(m_window);
    pointAway();
    m_window.grabWindow();
}

FakeUserDefaults &DemoView::store()
{
    return m_platform.suite(Shared::suiteName);
}

void DemoView::mirror()
{
    Views::mirror(m_window, m_root.get());
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

QList<QQuickItem *> DemoView::typed(const char *type, QQuickItem *in) const
{
    return Views::visible(in ? in : m_root.get(), type);
}

QList<QQuickItem *> DemoView::visibleItems(QQuickItem *in) const
{
    return Views::visible(in ? in : m_root.get());
}

QQuickItem *DemoView::textItem(const QString &text, QQuickItem *in) const
{
    return Views::text(in ? in : m_root.get(), text);
}

QRectF DemoView::rectOf(QQuickItem *item, QQuickItem *in) const
{
    return item->mapRectToItem(in ? in : m_root.get(), item->boundingRect());
}
