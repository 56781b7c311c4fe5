// How long building all include files in memory takes, next to only copying the same lines into
// lists.

#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <generate/defines.h>

#include <benchmark/benchmark.h>

using namespace TARVOORIXM1;

namespace
{

// Everything on: the longest lists.
OptionMap everything()
{
    OptionMap options;
    for (const Option &option : optionTable()) {
        if (option.isOption && option.type == OptionType::Bool)
            options.insert(option.key, true);
    }
    options.insert(Key::canBufferDepth, QStringLiteral("1024"));
    return options;
}

DEV::DeviceArg device()
{
    DEV::ChipFilter filter;
    filter.device = QStringLiteral("TV5KT-138");
    return DEV::DeviceDb::bundled().filterDevice(filter).first();
}

void buildLines(benchmark::State &state)
{
    const OptionMap options = everything();
    const DEV::DeviceArg target = device();
    for (auto _ : state)
        benchmark::DoNotOptimize(buildIncludeFiles(options, target));
}

void copyLines(benchmark::State &state)
{
    const QVector<IncludeFile> files = buildIncludeFiles(everything(), device());
    for (auto _ : state) {
        QVector<QStringList> copy;
        for (const IncludeFile &file : files) {
            QStringList lines;
            for (const QString &line : file.lines)
                lines.append(QString(line.constData(), line.size()));
            copy.append(lines);
        }
        benchmark::DoNotOptimize(copy);
    }
}

} // namespace

BENCHMARK(buildLines)->Unit(benchmark::kMicrosecond);
BENCHMARK(copyLines)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
