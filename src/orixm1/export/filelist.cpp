#include "filelist.h"

#include "config/latin1literal.h"
#include "filledtext.h"
#include "names.h"
#include "rtl.h"
#include "testbench.h"

namespace TARVOORIXM1
{

namespace
{

const char synthesisText[] =
    R"(// The sources of @top@ in the order of compilation, relative to this folder: run the tools here.
// The processor and other licensed blocks are declarations and stand-ins until you compile the real ones in their place.
//   $ verilator --lint-only --top-module @top@ -f @file@
//   $ iverilog -g2005 -tnull -s @top@ -c @file@
+incdir+@include@
@sources@
)";

const char simulationText[] =
    R"(// @top@ with a stand-in that plays the processor, and a test bench, relative to this folder: run the tools here.
// They set the time scale for what stands behind them.
//   $ iverilog -g2005-sv -s @bench@ -o simulation -c @file@
//   $ vvp -n simulation +@argument@=@script@
+incdir+@include@
@sources@
)";

ExportedFile listFile(const SystemMap &map, QLatin1String suffix, const char *text,
                      const QStringList &sources)
{
    const QString name = fileName(map, suffix);
    return {name, filledText(text, {{QStringLiteral("top"), topModuleName(map)},
                                    {QStringLiteral("bench"), BenchName::verilogModule(map)},
                                    {QStringLiteral("script"), BenchName::script(map)},
                                    {QStringLiteral("argument"), BenchName::scriptArgument(map)},
                                    {QStringLiteral("file"), name},
                                    {QStringLiteral("include"), RtlPath::includeFolder()},
                                    {QStringLiteral("sources"), sources.join(u'\n')}})
                      .toUtf8()};
}

} // namespace

QVector<ExportedFile> fileListFiles(const SystemMap &map)
{
    if (map.rtl.isEmpty())
        return {};
    QVector<ExportedFile> files = {
        listFile(map, "_synthesis.f"_l1, synthesisText, RtlPath::compiled(map))};
    if (const QStringList bench = BenchName::verilogSources(map); !bench.isEmpty())
        files.append(
            listFile(map, "_simulation.f"_l1, simulationText, bench + RtlPath::simulated(map)));
    return files;
}

} // namespace TARVOORIXM1
