#include "yosysflow.h"

#include "netlist/library.h"
#include "netlist/verilogoutputs.h"
#include "netlist/verilogscan.h"
#include "netlist/vhdloutputs.h"
#include "tr.h"
#include "yosysscript.h"

#include <QRegularExpression>

#include <algorithm>

namespace Synthesis
{

namespace
{

struct Stage {
    const char *title;  // how the tool's title of a step begins
    int after;          // the stage that must have been reached
    const char *phrase; // the stage
};

// Stages only advance: the same step runs in many places.
constexpr Stage stages[] = {
    {"Executing Verilog", -1, QT_TRANSLATE_NOOP("Synthesis", "Reading sources")},
    {"Executing HIERARCHY", 0, QT_TRANSLATE_NOOP("Synthesis", "Elaborating")},
    {"Executing OPT", 1, QT_TRANSLATE_NOOP("Synthesis", "Optimizing")},
    {"Executing MEMORY", 2, QT_TRANSLATE_NOOP("Synthesis", "Mapping memories")},
    {"Executing DFFLEGALIZE", 3, QT_TRANSLATE_NOOP("Synthesis", "Mapping logic")},
    {"Executing Verilog backend", 4, QT_TRANSLATE_NOOP("Synthesis", "Writing netlist")},
};

} // namespace

QString YosysFlow::prepareTool()
{
    using namespace YosysScript;
    for (const char *name : {"primitives.v", "memories.txt", "map_tristate.v", "map_memories.v",
                             "map_carry.v", "map_cells.v"}) {
        const QString file = QLatin1String(name);
        if (QString error = writeScratch(file, Library::file(file)); !error.isEmpty())
            return error;
    }
    QString error = writeScratch(QLatin1String(script), reading(m_sources, topModule()));
    if (error.isEmpty())
        error = writeScratch(QLatin1String(mappingScript), mapping(topModule(), language()));
    for (const char *name : {script, mappingScript}) {
        if (error.isEmpty())
            error = addCommand(m_tool, arguments(name));
    }
    return error;
}

QString YosysFlow::commandDone(int command)
{
    if (command != 0)
        return {};
    const QString file = QLatin1String(YosysScript::design);
    QByteArray text;
    const QString path = outputPath(m_tool.netlist);
    QString error = readResult(file, path, &text);
    if (error.isEmpty() && !YosysScript::takeEndMark(&text))
        error = notComplete(QLatin1String(m_tool.name), path);
    if (error.isEmpty())
        error = writeScratch(file, YosysScript::withoutOpenDrivers(text));
    return error;
}

QString YosysFlow::stageOf(const QString &line)
{
    static const QRegularExpression step(QStringLiteral("^\\d+\\. (.*)$"));
    const auto match = step.match(line);
    if (!match.hasMatch())
        return {};
    for (int i = m_stage + 1; i < int(std::size(stages)); ++i) {
        if (m_stage >= stages[i].after &&
            match.captured(1).startsWith(QLatin1String(stages[i].title))) {
            m_stage = i;
            return Tr::tr(stages[i].phrase);
        }
    }
    return {};
}

QString YosysFlow::explained(const QString &error) const
{
    if (error.contains(QLatin1String("t:$mem_v2")))
        return Tr::tr("A large memory fits no memory primitive: it needs one clocked read and one "
                      "clocked write port, or two "
                      "ports that read or write.");
    if (error.contains(QLatin1String("Assertion failed")))
        return Tr::tr("The design holds something that no primitive can do.");
    return {};
}

int YosysFlow::stagesDone() const
{
    return std::max(m_stage, 0);
}

int YosysFlow::stageCount() const
{
    return int(std::size(stages));
}

QString YosysFlow::collect(Results *results)
{
    const QString netlistPath = outputPath(m_tool.netlist);
    const QByteArray top = topModule().toUtf8();
    QByteArray body;
    QByteArray cells;
    QByteArray outline;
    QString error = readResult(QLatin1String(YosysScript::netlist), netlistPath, &body);
    if (error.isEmpty())
        error = readResult(QLatin1String(YosysScript::cells), netlistPath, &cells);
    if (error.isEmpty())
        error = readResult(QLatin1String(YosysScript::outline), templatePath(), &outline);
    if (!error.isEmpty())
        return error;

    DesignPorts design;
    const VerilogOutline bodyOutline = scanVerilog(body);
    if (!bodyOutline.complete || !bodyOutline.defines(top))
        return notComplete(QLatin1String(m_tool.name), netlistPath);
    error = design.read(outline, cells);
    if (!error.isEmpty())
        return unusable(templatePath(), error);
    if (!design.contains(top))
        return notComplete(QLatin1String(m_tool.name), templatePath());

    const QVector<BlackBox> blackBoxes = design.blackBoxes(Library::primitives() << top);
    const QByteArray netlist = verilogNetlist(title("Netlist of"), body, blackBoxes);
    results->ports = design.ports(top);
    results->outputs = {Output{templatePath(), instantiationTemplate(design)},
                        Output{netlistPath, netlist}};
    results->instances = bodyOutline.leavesOf(top, &error);
    if (!error.isEmpty())
        return unusable(netlistPath, error);
    switch (language()) {
    case Language::Verilog:
        return {};
    case Language::Vhdl:
        return addVhdl(blackBoxes, results);
    }
    Q_UNREACHABLE();
}

QString YosysFlow::addVhdl(const QVector<BlackBox> &blackBoxes, Results *results) const
{
    const QString path = outputPath(m_tool.vhdlNetlist);
    QByteArray mapped;
    QString error = readResult(QLatin1String(YosysScript::mapped), path, &mapped);
    VhdlNetlist vhdl;
    if (error.isEmpty())
        error = vhdlNetlist(title("Netlist of"), mapped, topModule().toUtf8(), results->ports,
                            blackBoxes, &vhdl);
    if (!error.isEmpty())
        return error;
    results->outputs << Output{outputPath(m_tool.vhdlModel), vhdl.model}
                     << Output{path, vhdl.netlist};
    return {};
}

} // namespace Synthesis
