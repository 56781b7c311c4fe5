// How the time for a tool's output grows with it: each message is another one.

#include <synthesis/run/sourcestage.h>
#include <synthesis/run/toollog.h>

#include <benchmark/benchmark.h>

static void messages(benchmark::State &state)
{
    const Synthesis::SourceStage sources;
    const int count = int(state.range(0));
    for (auto _ : state) {
        Synthesis::ToolLog log;
        for (int i = 1; i <= count; ++i)
            log.add(QStringLiteral("a.v:%1: Warning: Wire top.n is used but has no driver.").arg(i),
                    sources);
        benchmark::DoNotOptimize(log.messages().size());
    }
    state.SetComplexityN(count);
}
BENCHMARK(messages)
    ->RangeMultiplier(2)
    ->Range(5000, 40000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

BENCHMARK_MAIN();
