#include "OverlayView.h"

#include "EBEnvironment.h"
#include "EBKit.h"

#include <QQmlProperty>

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
    Views::bringUp(m_window);
}
