#include "DotLayout.h"
#include "Mulberry32.h"

#include <benchmark/benchmark.h>

#include <QMap>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double target = 1.5;

// The field of the loud screen in a window of 3840 x 2160 points, with its calm places and without.
constexpr QSizeF area(3840, 2160);
constexpr double cell = 22;
constexpr quint32 seed = 21;
constexpr double density = 0.7;
constexpr double ramp = 80;
constexpr double margin = 2;

QList<Zone> zones(bool calm)
{
    if (!calm)
        return {};
    const double k = std::min(area.width() / 560, area.height() / 388);
    const double mark = 275;
    return {{50, 20, 30, 18},
            {area.width() - 84, 22, 62, 18},
            {62 * k, 90 * k, 0, 56 * k},
            {area.width() - 32 * k - mark / 2 - 2, 120 * k, 62 * k, 86 * k},
            {196 * k, area.height() - 32 * k, 196 * k, 54 * k}};
}

QList<QRectF> field(const QList<Zone> &calm)
{
    return DotLayout::layout(area, cell, seed, density, ramp, margin, calm);
}

bool isOpen(const QList<Zone> &calm, double x, double y)
{
    return std::all_of(calm.begin(), calm.end(), [&](const Zone &zone) {
        return std::hypot(std::max(std::abs(x - zone.x) - zone.a, 0.0), y - zone.y) - zone.r >= margin;
    });
}

/// How many numbers a field takes: one for each open cell that no bar has reached, one more for each mark, and one more
/// for each bar.
int drawCount(const QList<Zone> &calm)
{
    const int columns = int(area.width() / cell);
    const int rows = int(area.height() / cell);
    int draws = 0;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const double x = (area.width() - cell * columns) / 2 + cell * (column + 0.5);
            const double y = (area.height() - cell * rows) / 2 + cell * (row + 0.5);
            draws += isOpen(calm, x, y);
        }
    }
    for (const QRectF &mark : field(calm)) {
        const int more = int(std::lround((std::max(mark.width(), mark.height()) - 0.6 * cell) / cell));
        draws += 1 + (more > 0) - more;
    }
    return draws;
}

/// The floor: the generator alone.
void draw(benchmark::State &state)
{
    const int count = drawCount(zones(state.range(0) != 0));
    for ([[maybe_unused]] auto round : state) {
        Mulberry32 generator(seed);
        for (int i = 0; i < count; ++i)
            benchmark::DoNotOptimize(generator.next());
    }
}

void layout(benchmark::State &state)
{
    const QList<Zone> calm = zones(state.range(0) != 0);
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(field(calm));
}

void settings(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(0)->Arg(1)->Repetitions(7)->MinTime(0.05)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(draw)->Apply(settings);
BENCHMARK(layout)->Apply(settings);

/// Keeps the best round of each benchmark and prints them side by side.
class Comparison : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            auto &times = run.run_name.function_name == "draw" ? m_draw : m_layout;
            const bool calm = run.run_name.args == "1";
            times[calm] = std::min(times.value(calm, std::numeric_limits<double>::max()), run.GetAdjustedCPUTime());
        }
    }

    void Finalize() override
    {
        QTextStream out(stdout);
        for (const auto &[calm, floor] : m_draw.asKeyValueRange()) {
            const double time = m_layout.value(calm);
            out << QStringLiteral("dot field 3840 x 2160, %1  %2 draws  floor %3 µs  application %4 µs  ratio %5  "
                                  "target %6\n")
                       .arg(calm ? QStringLiteral("calm places") : QStringLiteral("all open   "))
                       .arg(drawCount(zones(calm)))
                       .arg(floor, 5, 'f', 1)
                       .arg(time, 5, 'f', 1)
                       .arg(time / floor, 0, 'f', 2)
                       .arg(target, 0, 'f', 2);
        }
    }

private:
    QMap<bool, double> m_draw;
    QMap<bool, double> m_layout;
};

}

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    Comparison comparison;
    benchmark::RunSpecifiedBenchmarks(&comparison);
    return 0;
}
