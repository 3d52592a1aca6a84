#include "ConstructionPlan.h"

#include "MarkGeometry.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <numbers>

namespace {

using ConstructionPlan::Callout;

QString capitals(const QString &text)
{
    return QLocale().toUpper(text);
}

QString pill(int width, int height)
{
    //: A note on a drawing: a pill-shaped part, %1 units wide and %2 high.
    return capitals(QCoreApplication::translate("ConstructionPlan", "Pill %1 × %2").arg(width).arg(height));
}

QString circle(int diameter)
{
    //: A note on a drawing: a circle, %1 units across.
    return capitals(QCoreApplication::translate("ConstructionPlan", "Circle %1").arg(diameter));
}

QString gap()
{
    //: A note on a drawing: the room between two parts, %1 units wide.
    return capitals(QCoreApplication::translate("ConstructionPlan", "Gap %1").arg(MarkGeometry::gap));
}

// Notes stand in these four places.
constexpr QPointF leftMiddle(6, 60);
constexpr QPointF leftBottom(6, 92);
constexpr QPointF rightTop(154, 28);
constexpr QPointF rightBottom(154, 92);

}

QList<ConstructionPlan::Circle> ConstructionPlan::circles(EBApp app)
{
    const QPointF center = MarkGeometry::block.center();
    const qreal half = MarkGeometry::block.width() / 2;
    QList<Circle> circles = {{center, half * std::numbers::sqrt2, Tone::indigo}, {center, half, Tone::teal}};
    for (const QRectF &part : MarkGeometry::parts(app)) {
        const qreal radius = std::min(part.width(), part.height()) / 2;
        const QPointF reach(radius, radius);
        circles.append({part.topLeft() + reach, radius, Tone::coral});
        if (part.width() != part.height())
            circles.append({part.bottomRight() - reach, radius, Tone::coral});
    }
    return circles;
}

QList<Callout> ConstructionPlan::callouts(EBApp app)
{
    switch (app) {
    case EBApp::quiller:
        return {{{41, 60}, leftMiddle, circle(15)},
                {{50.5, 62}, leftBottom, gap()},
                {{60, 41}, rightTop, pill(15, 53)},
                {{79, 69.5}, rightBottom, pill(15, 34)}};
    case EBApp::corvane:
        return {{{41, 60}, leftMiddle, pill(15, 53)},
                {{50.5, 69.5}, leftBottom, gap()},
                {{79, 41}, rightTop, pill(34, 15)},
                {{75, 75}, rightBottom, circle(34)}};
    case EBApp::parcelo:
        return {{{41, 60}, leftMiddle, pill(15, 34)},
                {{41, 69.5}, leftBottom, gap()},
                {{60, 38}, rightTop, circle(15)},
                {{79, 79}, rightBottom, pill(53, 15)}};
    }
    return {};
}

QString ConstructionPlan::title(EBApp app)
{
    //: The title of a drawing of a product's mark; %1 is the product's name.
    return QCoreApplication::translate("ConstructionPlan", "The %1 mark").arg(EBApps::displayName(app));
}
