#include "Canvas.h"
#include "DemoModel.h"
#include "EBKit.h"
#include "FakePlatform.h"
#include "Shared.h"
#include "ViewEngine.h"

#include <QAnimationDriver>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTextStream>

#include <algorithm>
#include <functional>

namespace {

constexpr double target = 16; // milliseconds
constexpr int frameTime = 16; // milliseconds
constexpr QSize windowSize(560, 260);

/// Moves every animation on by one frame at a time, whatever the clock says.
class FrameClock : public QAnimationDriver {
public:
    FrameClock() { install(); }

    void step()
    {
        m_elapsed += frameTime;
        advanceAnimation();
    }
    qint64 elapsed() const override { return m_elapsed; }

protected:
    void start() override
    {
        m_elapsed = 0;
        QAnimationDriver::start();
    }

private:
    qint64 m_elapsed = 0;
};

/// The time in milliseconds that each frame takes in which something moves because of `change`.
QList<double> frames(FrameClock &clock, Canvas &canvas, const std::function<void()> &change)
{
    constexpr int count = 45; // as long as the slowest spring takes
    QList<double> times;
    change();
    QCoreApplication::processEvents();
    for (int frame = 0; frame < count; ++frame) {
        const QImage before = canvas.picture().copy();
        QElapsedTimer timer;
        timer.start();
        clock.step();
        canvas.draw();
        const double time = double(timer.nsecsElapsed()) / 1e6;
        if (canvas.picture() != before)
            times.append(time);
        QCoreApplication::processEvents();
    }
    return times;
}

void report(const char *motion, QList<double> times)
{
    if (times.size() < 10)
        qFatal("%s: too little moves to be measured", motion);
    std::sort(times.begin(), times.end());
    QTextStream(stdout) << QStringLiteral("practice, %1  median of %5 frames %2 ms  slowest %3 ms  target %4\n")
                               .arg(QLatin1String(motion), -32)
                               .arg(times.at(times.size() / 2), 0, 'f', 2)
                               .arg(times.constLast(), 0, 'f', 2)
                               .arg(target, 0, 'f', 0)
                               .arg(times.size());
}

QQuickItem *show(QQmlEngine &engine, const char *view, QVariantMap properties, DemoModel &model, QQuickItem *parent)
{
    properties.insert(QStringLiteral("model"), QVariant::fromValue(&model));
    QQuickItem *item =
        ViewEngine::make(engine, QStringLiteral("qrc:/Corvane/Demo/%1.qml").arg(QLatin1String(view)), properties);
    item->setParent(parent);
    item->setParentItem(parent);
    return item;
}

}

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    FakePlatform &platform = FakePlatform::install();
    FakeUserDefaults &store = platform.suite(Shared::suiteName);
    store.setValue(QStringLiteral("buttonSizeOption"), QStringLiteral("large"));
    store.setValue(QStringLiteral("showMinimizeButton"), true);
    store.setValue(QStringLiteral("showMaximizeButton"), true);

    FrameClock clock;
    ViewEngine engine;
    DemoModel model;
    Canvas canvas(windowSize, EBKit::paper().current());
    show(engine, "HandsOnMissionControl", {}, model, canvas.content());
    const QStringList shown = {QStringLiteral("close"), QStringLiteral("minimize"), QStringLiteral("maximize")};
    show(engine, "ShortcutChips", {{QStringLiteral("shown"), shown}}, model, canvas.content())->setPosition({120, 210});
    canvas.draw();

    report("the buttons come", frames(clock, canvas, [&] { model.enter(4); }));
    report("the buttons go", frames(clock, canvas, [&] { model.leave(4); }));
    report("one window is minimised", frames(clock, canvas, [&] { model.apply(Hotkey::minimize, 1); }));
    report("the others are hidden", frames(clock, canvas, [&] { model.apply(Hotkey::hideOthers, 3); }));
    report("every window comes back", frames(clock, canvas, [&] { model.reset(); }));
    report("the chips shake and light up", frames(clock, canvas, [&] { model.press(Hotkey::close); }));
    return 0;
}
