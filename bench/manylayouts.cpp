#include "Process.h"
#include "SampleLayouts.h"
#include "Screen.h"

#include <QCoreApplication>
#include <QList>
#include <QTextStream>

// GIO has members named like the Qt keyword.
#pragma push_macro("signals")
#undef signals
#include <dconf.h>
#pragma pop_macro("signals")

#include <algorithm>
#include <thread>

using namespace std::chrono;

namespace {

constexpr QRgb card = qRgb(0xFF, 0xFF, 0xFF);
/// In the page's first card beside its texts, however many layouts stand below; in points above the middle of the
/// screen.
constexpr int probe = 195;
constexpr int runs = 7;

void store(const QString &layouts)
{
    DConfClient *client = dconf_client_new();
    GVariant *value = g_variant_new_string(layouts.toUtf8().constData());
    if (!dconf_client_write_sync(client, "/com/vexmoor/corvane/layouts.saved", value, nullptr, nullptr, nullptr))
        qFatal("the layouts cannot be stored");
    g_object_unref(client);
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

struct Cost {
    /// Until the first painted frame, in milliseconds.
    double time;
    /// Once the program has come to rest, in MiB.
    double memory;
};

Cost start(Screen &screen, const QString &application)
{
    screen.waitUntilEmpty();
    screen.settle();
    const auto begin = Screen::Clock::now();
    const Process process(application);
    const auto painted = screen.waitForColor(card, probe, seconds(60));
    if (!painted)
        qFatal("no window was painted in time");
    std::this_thread::sleep_for(seconds(2));
    return {duration<double, std::milli>(*painted - begin).count(), process.ownMemory()};
}

Cost typical(Screen &screen, const QString &application)
{
    QList<double> times, memories;
    for (int run = 0; run < runs; ++run) {
        const Cost cost = start(screen, application);
        times.append(cost.time);
        memories.append(cost.memory);
    }
    return {median(times), median(memories)};
}

}

/// What it costs to open the application on the Layouts page, by the number of saved layouts.
int main(int argc, char *argv[])
{
    const QCoreApplication process(argc, argv);
    if (QCoreApplication::arguments().size() != 2)
        qFatal("usage: corvane-bench-manylayouts APPLICATION");
    const QString application = QCoreApplication::arguments().at(1);
    qputenv("CV_TAB", "layouts");
    Screen screen;
    QTextStream out(stdout);
    store(SampleLayouts::text(0));
    start(screen, application);
    const Cost none = typical(screen, application);
    for (const int count : {100, 1'000, 10'000}) {
        store(SampleLayouts::text(count));
        const Cost cost = typical(screen, application);
        out << QStringLiteral("open with %1 layouts  %2 ms  target 300  %3 MiB more than none  target 8\n")
                   .arg(count, 5)
                   .arg(cost.time, 0, 'f', 1)
                   .arg(cost.memory - none.memory, 0, 'f', 1);
        out.flush();
    }
    store(SampleLayouts::text(0));
    return 0;
}
