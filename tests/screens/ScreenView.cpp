#include "ScreenView.h"

#include "EBKitFonts.h"

#include <QQmlComponent>
#include <QTest>

namespace {

void collect(QQuickItem *item, QList<QQuickItem *> &found)
{
    if (!item->isVisible())
        return;
    found.append(item);
    for (QQuickItem *child : item->childItems())
        collect(child, found);
}

bool isOfType(const QQuickItem *item, const QByteArray &type)
{
    for (const QMetaObject *meta = item->metaObject(); meta; meta = meta->superClass()) {
        // A type written in QML has a suffix of the engine's.
        const QByteArray name = meta->className();
        if (name == type || (name.startsWith(type) && name.mid(type.size()).startsWith("_QML")))
            return true;
    }
    return false;
}

}

ScreenView::ScreenView(const QString &qml, QSize size) : m_platform(FakePlatform::install())
{
    for (const QString &face : {EBKitFonts::display, EBKitFonts::mono}) {
        const QString file = face + QStringLiteral(".ttf");
        m_platform.main.resources.insert(file, QUrl::fromLocalFile(QStringLiteral(FONTS_DIR "/") + file));
    }
    EBKitFonts::registerFonts();
    QQmlComponent component(&m_engine);
    component.setData(
        "import QtQuick\nimport Embera.Controls\nimport Embera.Rows\nimport Embera.Screens\n" + qml.toUtf8(), {});
    m_root = qobject_cast<QQuickItem *>(component.create());
    if (!m_root)
        qFatal("%s", qPrintable(component.errorString()));
    m_window.resize(size);
    m_root->setParent(&m_window);
    m_root->setParentItem(m_window.contentItem());
    m_root->setSize(size);
}

ScreenView::~ScreenView() = default;

void ScreenView::show()
{
    m_window.show();
    m_window.requestActivate();
    if (!QTest::qWaitForWindowActive(&m_window))
        qFatal("the window does not come up");
    m_window.grabWindow();
}

QList<QQuickItem *> ScreenView::visibleItems() const
{
    QList<QQuickItem *> found;
    collect(m_root, found);
    return found;
}

QList<QQuickItem *> ScreenView::visibleItems(const char *type) const
{
    QList<QQuickItem *> found = visibleItems();
    found.removeIf([type](const QQuickItem *item) { return !isOfType(item, type); });
    return found;
}

QQuickItem *ScreenView::textItem(const QString &text) const
{
    for (QQuickItem *item : visibleItems("QQuickText")) {
        if (item->property("text") == text)
            return item;
    }
    return nullptr;
}
