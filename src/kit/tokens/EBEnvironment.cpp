#include "EBEnvironment.h"

#include "Platform.h"

#include <qqml.h>

EBEnvironment::EBEnvironment(QObject *parent) : QObject(parent)
{
    if (auto *item = qobject_cast<QQuickItem *>(parent))
        connect(item, &QQuickItem::parentChanged, this, &EBEnvironment::followParent);
    connect(&Platform::current().appearance(), &Appearance::changed, this, &EBEnvironment::changed);
    followParent();
}

EBEnvironment *EBEnvironment::qmlAttachedProperties(QObject *object)
{
    return new EBEnvironment(object);
}

EBEnvironment *EBEnvironment::of(QQuickItem *item)
{
    return qobject_cast<EBEnvironment *>(qmlAttachedPropertiesObject<EBEnvironment>(item, true));
}

void EBEnvironment::setEbApp(EBApp app)
{
    m_isOwn = true;
    if (m_app == app)
        return;
    m_app = app;
    emit changed();
}

void EBEnvironment::setRawApp(const QString &rawValue)
{
    if (const auto app = EBApps::fromRawValue(rawValue))
        setEbApp(*app);
}

void EBEnvironment::followParent()
{
    if (m_parent)
        m_parent->disconnect(this);
    auto *item = qobject_cast<QQuickItem *>(parent());
    m_parent = item && item->parentItem() ? of(item->parentItem()) : nullptr;
    if (m_parent)
        connect(m_parent, &EBEnvironment::changed, this, &EBEnvironment::inherit);
    inherit();
}

void EBEnvironment::inherit()
{
    const EBApp inherited = m_parent ? m_parent->m_app : EBApp::quiller;
    if (m_isOwn || m_app == inherited)
        return;
    m_app = inherited;
    emit changed();
}
