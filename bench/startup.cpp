#include "Process.h"
#include "Screen.h"
#include "StoreListener.h"

#include <QCoreApplication>
#include <QList>
#include <QTextStream>

#include <algorithm>
#include <thread>

using namespace std::chrono;

namespace {

constexpr QRgb paper = qRgb(0xF7, 0xF6, 0xF2);
/// Near the window's upper edge, where neither program draws anything but the background.
constexpr int probe = 140;
constexpr int runs = 15;
constexpr auto patience = seconds(20);

QTextStream out(stdout);

double milliseconds(Screen::Clock::duration time)
{
    return duration_cast<duration<double, std::milli>>(time).count();
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/// When the program that was just started showed its window.
Screen::Clock::time_point whenShown(Screen &screen, const QString &program)
{
    const auto painted = screen.waitForColor(paper, probe, patience);
    if (!painted)
        qFatal("%s painted no window in time", qPrintable(program));
    return *painted;
}

/// Time from starting the program to its first painted frame on the screen.
double firstFrame(Screen &screen, const QString &program)
{
    screen.waitUntilEmpty();
    screen.settle();
    const auto start = Screen::Clock::now();
    const Process process(program);
    return milliseconds(whenShown(screen, program) - start);
}

void compare(const char *figure, const char *unit, double floor, double application, double target)
{
    out << QStringLiteral("%1  floor %2 %5  application %3 %5  ratio %4  target %6\n")
               .arg(QLatin1String(figure), -20)
               .arg(floor, 0, 'f', 1)
               .arg(application, 0, 'f', 1)
               .arg(application / floor, 0, 'f', 2)
               .arg(QLatin1String(unit))
               .arg(target, 0, 'f', 2);
    out.flush();
}

void measureStart(Screen &screen, const QString &floor, const QString &application)
{
    firstFrame(screen, floor);
    firstFrame(screen, application);
    QList<double> floors, applications;
    for (int run = 0; run < runs; ++run) {
        floors.append(firstFrame(screen, floor));
        applications.append(firstFrame(screen, application));
    }
    compare("first painted frame", "ms", median(floors), median(applications), 1.15);
}

Process::Activity tenSecondsOf(const Process &process)
{
    const Process::Activity before = process.activity();
    std::this_thread::sleep_for(seconds(10));
    const Process::Activity after = process.activity();
    return {after.wakeups - before.wakeups, after.processor - before.processor};
}

struct Settled {
    double memory;
    Process::Activity idle;
};

/// Memory once the program has come to rest, and what it does in the ten seconds after.
Settled rest(Screen &screen, const QString &program)
{
    screen.waitUntilEmpty();
    screen.settle();
    const Process process(program);
    whenShown(screen, program);
    std::this_thread::sleep_for(seconds(3));
    const double memory = process.memory();
    return {memory, tenSecondsOf(process)};
}

void measureRest(Screen &screen, const QString &floor, const QString &application)
{
    const Settled least = rest(screen, floor);
    const Settled ours = rest(screen, application);
    compare("memory when settled", "MiB", least.memory, ours.memory, 1.3);
    out << "idle for 10 s         floor " << least.idle.wakeups << " wake-ups, " << least.idle.processor
        << " ms  application " << ours.idle.wakeups << " wake-ups, " << ours.idle.processor << " ms  target 0\n";
    out.flush();
}

/// What each step of the guide does while nothing happens.
void measureGuideAtRest(Screen &screen, const QString &application)
{
    for (int step = 0; step < 5; ++step) {
        screen.waitUntilEmpty();
        qputenv("CV_STEP", QByteArray::number(step));
        const Process process(application, {QStringLiteral("--onboarding")});
        std::this_thread::sleep_for(seconds(3));
        const Process::Activity idle = tenSecondsOf(process);
        out << "idle for 10 s, guide's step " << step + 1 << "  " << idle.wakeups << " wake-ups, " << idle.processor
            << " ms  target 0\n";
        out.flush();
    }
}

/// Time from the news that another process has changed the store to the pixels that show it.
void measureStoreChange(Screen &screen, const QString &application)
{
    screen.waitUntilEmpty();
    const Process process(application);
    whenShown(screen, application);
    std::this_thread::sleep_for(seconds(1));
    StoreListener store;
    constexpr const char *key = "/com/vexmoor/corvane/agent.accessibilityTrusted";
    QList<double> times;
    for (int run = 0; run < runs; ++run) {
        screen.settle();
        // Writing what is stored already would be no news.
        const QString value = store.boolean(key) ? QStringLiteral("false") : QStringLiteral("true");
        const Process writer(QStringLiteral("/usr/bin/dconf"),
                             {QStringLiteral("write"), QString::fromLatin1(key), value});
        const auto heard = store.waitForChange(patience);
        const auto painted = screen.waitForPaint(patience);
        if (!heard || !painted)
            qFatal("a change of the store was never %s", heard ? "painted" : "heard");
        times.append(milliseconds(*painted - *heard));
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    out << QStringLiteral("store change to pixels  %1 ms  target 33.3\n").arg(median(times), 0, 'f', 1);
    out.flush();
}

}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList programs = QCoreApplication::arguments().mid(1);
    if (programs.size() != 2)
        qFatal("usage: corvane-bench-startup EMPTY-WINDOW APPLICATION");
    Screen screen;
    measureStart(screen, programs.at(0), programs.at(1));
    measureRest(screen, programs.at(0), programs.at(1));
    measureStoreChange(screen, programs.at(1));
    measureGuideAtRest(screen, programs.at(1));
    return 0;
}
