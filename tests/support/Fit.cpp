#include "Fit.h"

#include "Views.h"

#include <QAccessible>
#include <QFont>

namespace {

/// What must not lie over anything else of its kind, unless one is a part of the other.
struct Solid {
    const QQuickItem *item;
    QString name;
    QRectF place;
    /// With the ring that shows the focus, where it may have one.
    QRectF ring;
};

/// The letters of a text; those in the size of a poster are a picture, which may run out of its window.
bool isReadable(const QQuickItem *text)
{
    return !text->property("text").toString().isEmpty() && text->property("font").value<QFont>().pixelSize() < 60;
}

/// Where the item is seen, with a ring around it: what lies in a part that is scrolled away is cut off there.
QRectF placeOf(const QQuickItem *item, qreal ring)
{
    QRectF place = item->mapRectToScene(item->boundingRect()).adjusted(-ring, -ring, ring, ring);
    for (const QQuickItem *parent = item->parentItem(); parent; parent = parent->parentItem()) {
        if (parent->clip() && parent->inherits("QQuickFlickable"))
            place &= parent->mapRectToScene(parent->boundingRect());
    }
    return place;
}

/// Every text, control, card and pretend window that is seen.
QList<Solid> solidsIn(QQuickItem *view)
{
    QList<Solid> solids;
    const auto add = [&solids](const QQuickItem *item, const QString &name, qreal ring = 0) {
        if (const QRectF place = placeOf(item, 0); !place.isEmpty())
            solids.append({item, name, place, placeOf(item, ring)});
    };
    for (QQuickItem *item : Views::visible(view)) {
        const auto *element = QAccessible::queryAccessibleInterface(item);
        const QAccessible::Role role = element ? element->role() : QAccessible::NoRole;
        if (item->inherits("QQuickText") && isReadable(item))
            add(item, item->property("text").toString());
        else if (role == QAccessible::Button)
            add(item, element->text(QAccessible::Name), 4);
        else if (role == QAccessible::CheckBox || role == QAccessible::RadioButton)
            add(item, element->text(QAccessible::Name));
    }
    for (const char *type : {"EBGroup", "EBWell", "DemoCell", "KeyCap", "EBSegmented", "DragTileContent"}) {
        for (const QQuickItem *item : Views::visible(view, type))
            add(item, QString::fromLatin1(type));
    }
    return solids;
}

bool collide(const Solid &one, const Solid &other)
{
    // Only one of them has the focus.
    const auto overlap = [](const QRectF &ring, const QRectF &place) {
        const QRectF common = ring & place;
        return common.width() >= 1 && common.height() >= 1;
    };
    return (overlap(one.ring, other.place) || overlap(one.place, other.ring)) && !one.item->isAncestorOf(other.item)
        && !other.item->isAncestorOf(one.item);
}

/// Whether the item is brought into the window by scrolling.
bool scrolls(const QQuickItem *item)
{
    while (item && !item->inherits("QQuickFlickable"))
        item = item->parentItem();
    return item && item->property("contentHeight").toReal() > item->height();
}

bool leaves(const QRectF &part, const QRectF &whole)
{
    return !whole.adjusted(-0.5, -0.5, 0.5, 0.5).contains(part);
}

/// Whether a text does not show all of itself.
bool isCut(const QQuickItem *text)
{
    const QFont font = text->property("font").value<QFont>();
    const qreal paddings = text->property("leftPadding").toReal() + text->property("rightPadding").toReal();
    const qreal tracking = std::max(0.0, font.letterSpacing());
    return text->property("truncated").toBool() || text->property("contentHeight").toReal() > text->height() + 0.5
        || text->property("contentWidth").toReal() > text->width() - std::min(0.0, paddings) + tracking + 0.5;
}

}

QStringList Fit::faults(QQuickItem *view, const QRectF &frame)
{
    QStringList faults;
    const QList<Solid> solids = solidsIn(view);
    for (qsizetype i = 0; i < solids.size(); ++i) {
        const Solid &one = solids.at(i);
        if (one.item->inherits("QQuickText") && isCut(one.item))
            faults.append(one.name + QStringLiteral(" is cut"));
        const bool isBelow = one.ring.top() >= frame.top() && scrolls(one.item);
        if (leaves(one.ring, isBelow ? frame.adjusted(0, 0, 0, one.ring.bottom()) : frame))
            faults.append(one.name + QStringLiteral(" leaves the window"));
        for (qsizetype j = 0; j < solids.size(); ++j) {
            const Solid &other = solids.at(j);
            if (other.item->isAncestorOf(one.item) && leaves(one.ring, other.ring))
                faults.append(one.name + QStringLiteral(" leaves ") + other.name);
            if (j < i && collide(one, other))
                faults.append(one.name + QStringLiteral(" lies over ") + other.name);
        }
    }
    return faults;
}
