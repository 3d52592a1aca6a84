#include "Process.h"
#include "Screen.h"
#include "StoreListener.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QList>
#include <QTextStream>

#include <algorithm>
#include <numeric>
#include <random>
#include <thread>
#include <vector>

using namespace std::chrono;
using namespace Qt::StringLiterals;

namespace {

constexpr QRgb paper = qRgb(0xF7, 0xF6, 0xF2);
constexpr QRgb loud = qRgb(0x5A, 0x5C, 0xF2);

/// A program with what it is asked for, and where its first frame is seen: a place that many points over the middle of
/// the screen gets that colour, as it draws nothing but the background there.
struct Contender {
    QString name;
    QString program;
    QStringList arguments;
    double target;
    QRgb color = paper;
    int probe = 140;
};

constexpr int runs = 31;
constexpr double windowTarget = 1.25;
constexpr double otherTarget = 1.35;
constexpr double memoryTarget = 1.35;
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
Screen::Clock::time_point whenShown(Screen &screen, const Contender &contender)
{
    const auto painted = screen.waitForColor(contender.color, contender.probe, patience);
    if (!painted)
        qFatal("%s painted no window in time", qPrintable(contender.name));
    return *painted;
}

/// Time from starting the program to its first painted frame on the screen.
double firstFrame(Screen &screen, const Contender &contender)
{
    screen.waitUntilEmpty();
    screen.settle();
    const auto start = Screen::Clock::now();
    const Process process(contender.program, contender.arguments);
    return milliseconds(whenShown(screen, contender) - start);
}

void compare(const QString &figure, const char *unit, double floor, double application, double target)
{
    out << QStringLiteral("%1  floor %2 %5  application %3 %5  ratio %4  target %6\n")
               .arg(figure, -20)
               .arg(floor, 0, 'f', 1)
               .arg(application, 0, 'f', 1)
               .arg(application / floor, 0, 'f', 2)
               .arg(QLatin1String(unit))
               .arg(target, 0, 'f', 2);
    out.flush();
}

/// Starts each as often, and returns the medians. What was started before a program costs it 1 to 2 %, so each round
/// has an order of its own, the same in every run of the bench.
QList<double> firstFrames(Screen &screen, const QList<Contender> &contenders)
{
    std::vector<qsizetype> order(std::size_t(contenders.size()));
    std::iota(order.begin(), order.end(), 0);
    std::mt19937 random;
    QList<QList<double>> times(contenders.size());
    for (int run = -1; run < runs; ++run) {
        std::shuffle(order.begin(), order.end(), random);
        for (const qsizetype i : order) {
            const double time = firstFrame(screen, contenders.at(i));
            if (run >= 0)
                times[i].append(time);
        }
    }
    QList<double> medians;
    std::transform(times.cbegin(), times.cend(), std::back_inserter(medians), median);
    return medians;
}

/// The share of the window's pixels that differ to the eye.
double difference(const QImage &a, const QImage &b)
{
    constexpr int visible = 40;
    constexpr QSize window(620, 311);
    const QPoint corner((a.width() - window.width()) / 2, (a.height() - window.height()) / 2);
    int different = 0;
    for (int y = corner.y(); y < corner.y() + window.height(); ++y) {
        for (int x = corner.x(); x < corner.x() + window.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            different += std::abs(qRed(p) - qRed(q)) > visible || std::abs(qGreen(p) - qGreen(q)) > visible
                || std::abs(qBlue(p) - qBlue(q)) > visible;
        }
    }
    return double(different) / (window.width() * window.height());
}

QImage pictureOf(Screen &screen, const Contender &contender)
{
    screen.waitUntilEmpty();
    screen.settle();
    const Process process(contender.program, contender.arguments);
    whenShown(screen, contender);
    std::this_thread::sleep_for(seconds(1));
    return screen.picture();
}

/// The plain page says what its picture costs only as long as that is the application's.
void holdAgainstThePage(Screen &screen, const Contender &plain, const Contender &application)
{
    constexpr double most = 0.02;
    const double share = difference(pictureOf(screen, plain), pictureOf(screen, application));
    out << QStringLiteral("the plain page differs from the application's in %1 % of its pixels\n")
               .arg(100 * share, 0, 'f', 1);
    out.flush();
    if (share > most)
        qFatal("bench/floor/Page.qml no longer shows the General page");
}

void measureStart(Screen &screen, const QList<Contender> &contenders)
{
    const QList<double> times = firstFrames(screen, contenders);
    for (qsizetype i = 1; i < contenders.size(); ++i)
        compare(u"first frame, "_s + contenders.at(i).name, "ms", times.front(), times.at(i), contenders.at(i).target);
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
Settled rest(Screen &screen, const Contender &contender)
{
    screen.waitUntilEmpty();
    screen.settle();
    const Process process(contender.program, contender.arguments);
    whenShown(screen, contender);
    std::this_thread::sleep_for(seconds(3));
    const double memory = process.memory();
    return {memory, tenSecondsOf(process)};
}

void measureRest(Screen &screen, const QList<Contender> &contenders)
{
    const Settled least = rest(screen, contenders.front());
    for (const Contender &contender : contenders.mid(1)) {
        const Settled settled = rest(screen, contender);
        compare(u"memory, "_s + contender.name, "MiB", least.memory, settled.memory, memoryTarget);
        out << "idle for 10 s         floor " << least.idle.wakeups << " wake-ups, " << least.idle.processor << " ms  "
            << contender.name << ' ' << settled.idle.wakeups << " wake-ups, " << settled.idle.processor
            << " ms  target 0\n";
        out.flush();
    }
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

/// Asks the running application for a page, as another start of it does.
void askForPage(const QString &page)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(u"com.vexmoor.corvane.settings"_s, u"/com/vexmoor/corvane/settings"_s,
                                       u"org.freedesktop.Application"_s, u"ActivateAction"_s);
    call << u"page"_s << QVariantList{page} << QVariantMap();
    QDBusConnection::sessionBus().send(call);
}

/// Time from asking for another page to the pixels that show it, on the first visit and later ones.
void measurePages(Screen &screen, const Contender &application)
{
    const QStringList pages = {u"buttons"_s, u"shortcuts"_s, u"layouts"_s, u"general"_s};
    QList<double> firsts, later;
    for (int start = 0; start < 5; ++start) {
        screen.waitUntilEmpty();
        const Process process(application.program);
        whenShown(screen, application);
        std::this_thread::sleep_for(seconds(1));
        for (int visit = 0; visit < 2 * pages.size(); ++visit) {
            screen.settle();
            const auto asked = Screen::Clock::now();
            askForPage(pages.at(visit % pages.size()));
            const auto painted = screen.waitForPaint(patience);
            if (!painted)
                qFatal("a page was never painted");
            (visit < pages.size() - 1 ? firsts : later).append(milliseconds(*painted - asked));
            // The window takes its new height by degrees.
            std::this_thread::sleep_for(std::chrono::milliseconds(500));
        }
    }
    out << QStringLiteral("page switch  first visit %1 ms  later %2 ms  target 33.3\n")
               .arg(median(firsts), 0, 'f', 1)
               .arg(median(later), 0, 'f', 1);
    out.flush();
}

/// Time from the news that another process has changed the store to the pixels that show it.
void measureStoreChange(Screen &screen, const Contender &application)
{
    screen.waitUntilEmpty();
    const Process process(application.program);
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
    const QString &floor = programs.at(0);
    const QString &program = programs.at(1);
    const Contender plain = {u"plain page"_s, floor, {u"Page"_s}, windowTarget};
    const Contender settings = {u"settings"_s, program, {}, windowTarget};
    const QList<Contender> contenders = {
        {u"empty"_s, floor, {}, 1},
        {u"one text"_s, floor, {u"Text"_s}, windowTarget},
        plain,
        settings,
        {u"guide"_s, program, {u"--onboarding"_s}, otherTarget, loud},
        {u"about"_s, program, {u"--about"_s}, otherTarget, paper, 180},
    };
    Screen screen;
    holdAgainstThePage(screen, plain, settings);
    measureStart(screen, contenders);
    measureRest(screen, contenders);
    measureStoreChange(screen, settings);
    measurePages(screen, settings);
    measureGuideAtRest(screen, program);
    return 0;
}
