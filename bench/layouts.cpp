#include "FakeUserDefaults.h"
#include "LayoutStore.h"
#include "SampleLayouts.h"

#include <benchmark/benchmark.h>

#include <QJsonDocument>
#include <QMap>
#include <QTextStream>

#include <algorithm>
#include <limits>

namespace {

constexpr double target = 2;

/// The floor: the same text parsed to a tree of values, and nothing made of it.
void parse(benchmark::State &state)
{
    const QByteArray text = SampleLayouts::text(int(state.range(0))).toUtf8();
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(QJsonDocument::fromJson(text));
}

void load(benchmark::State &state)
{
    FakeUserDefaults store;
    store.values.insert(QStringLiteral("layouts.saved"), SampleLayouts::text(int(state.range(0))));
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(LayoutStore::load(store));
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->RangeMultiplier(10)->Range(10, 10'000)->Repetitions(7)->MinTime(0.05)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(parse)->Apply(sizes);
BENCHMARK(load)->Apply(sizes);

/// Keeps the best round of each benchmark and prints them side by side.
class Comparison : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            auto &times = run.run_name.function_name == "parse" ? m_parse : m_load;
            const int count = QByteArray(run.run_name.args.c_str()).toInt();
            times[count] = std::min(times.value(count, std::numeric_limits<double>::max()), run.GetAdjustedCPUTime());
        }
    }

    void Finalize() override
    {
        QTextStream out(stdout);
        for (const auto &[count, floor] : m_parse.asKeyValueRange()) {
            const double time = m_load.value(count);
            out << QStringLiteral(
                       "load %1 layouts  floor %2 µs  application %3 µs  µs a layout %4  ratio %5  target %6\n")
                       .arg(count, 5)
                       .arg(floor, 8, 'f', 1)
                       .arg(time, 8, 'f', 1)
                       .arg(time / count, 0, 'f', 2)
                       .arg(time / floor, 0, 'f', 2)
                       .arg(target, 0, 'f', 2);
        }
    }

private:
    QMap<int, double> m_parse;
    QMap<int, double> m_load;
};

}

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    Comparison comparison;
    benchmark::RunSpecifiedBenchmarks(&comparison);
    return 0;
}
