#include "Views.h"

#include <QQmlEngine>
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

void Views::bringUp(QQuickWindow &window)
{
    window.show();
    window.requestActivate();
    REQUIRE(QTest::qWaitForWindowActive(&window));
    window.grabWindow();
}

void Views::mirror(QQuickWindow &window, const QQuickItem *item)
{
    for (const char *property : {"LayoutMirroring.enabled", "LayoutMirroring.childrenInherit"})
        REQUIRE(QQmlProperty::write(window.contentItem(), QString::fromLatin1(property), true, qmlContext(item)));
}

QColor Views::pixel(QQuickWindow &window, const QQuickItem *item, QPointF at)
{
    const QPointF point = item->mapToScene(at);
    return window.grabWindow().pixelColor(int(std::floor(point.x())), int(std::floor(point.y())));
}

FoundItems<QQuickItem> Views::visible(QQuickItem *root)
{
    FoundItems<QQuickItem> found;
    collect(root, found);
    return found;
}

FoundItems<QQuickItem> Views::visible(QQuickItem *root, const char *type)
{
    FoundItems<QQuickItem> found = visible(root);
    found.removeIf([type](const QQuickItem *item) { return !isOfType(item, type); });
    return found;
}

FoundItem Views::text(QQuickItem *root, const QString &text)
{
    QQuickItem *found = nullptr;
    for (QQuickItem *item : visible(root, "QQuickText")) {
        if (!found && item->property("text") == text)
            found = item;
    }
    return {found, QStringLiteral("text \"%1\"").arg(text)};
}
