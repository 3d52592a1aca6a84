#include "Canvas.h"
#include "EBKit.h"
#include "FakePlatform.h"
#include "SampleLayouts.h"
#include "SettingsModel.h"
#include "SettingsPages.h"
#include "Shared.h"
#include "SidebarModel.h"
#include "ViewEngine.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQuickItem>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr double target = 16; // milliseconds
constexpr QSize windowSize(620, 800);
constexpr int layouts = 10'000;
constexpr int frames = 300;

QQuickItem *flickable(QQuickItem *item)
{
    if (item->inherits("QQuickFlickable") && item->property("contentHeight").toReal() > 2 * windowSize.height())
        return item;
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = flickable(child))
            return found;
    }
    return nullptr;
}

/// Scrolls that many points a frame.
void measure(Canvas &canvas, QQuickItem &area, const char *motion, int step)
{
    QList<double> times;
    for (int frame = 1; frame <= frames; ++frame) {
        QElapsedTimer timer;
        timer.start();
        area.setProperty("contentY", frame * step);
        canvas.draw();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        times.append(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    QTextStream(stdout) << QStringLiteral("scrolling, %1  median of %5 frames %2 ms  slowest %3 ms  target %4\n")
                               .arg(QLatin1String(motion), -32)
                               .arg(times.at(times.size() / 2), 0, 'f', 2)
                               .arg(times.constLast(), 0, 'f', 2)
                               .arg(target, 0, 'f', 0)
                               .arg(times.size());
}

}

/// What a frame takes in which the list of ten thousand saved layouts scrolls.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    FakePlatform &platform = FakePlatform::install();
    platform.suite(Shared::suiteName).setValue(QStringLiteral("layouts.saved"), SampleLayouts::text(layouts));

    ViewEngine engine;
    EBSettingsWindowController::Model model(SettingsPages::make(), QStringLiteral("layouts"), nullptr);
    SidebarModel sidebar(SettingsPages::make());
    Canvas canvas(windowSize, EBKit::paper().current());
    QQuickItem *view = ViewEngine::make(engine, QStringLiteral("qrc:/Corvane/Settings/Window/EBSettingsView.qml"),
                                        {{QStringLiteral("version"), QStringLiteral("1")},
                                         {QStringLiteral("pages"), QVariant::fromValue(&sidebar)},
                                         {QStringLiteral("model"), QVariant::fromValue(&model)},
                                         {QStringLiteral("roomHeight"), windowSize.height()},
                                         {QStringLiteral("width"), windowSize.width()},
                                         {QStringLiteral("height"), windowSize.height()}});
    view->setParent(canvas.content());
    view->setParentItem(canvas.content());
    canvas.draw();
    QQuickItem *area = flickable(view);
    if (!area)
        qFatal("there is nothing to scroll");
    measure(canvas, *area, "a notch of the wheel a frame", 60);
    measure(canvas, *area, "a window's height a frame", windowSize.height());
    return 0;
}
