#include "projectflow.h"

#include "netlist/verilogoutputs.h"
#include "netlist/verilogscan.h"
#include "tr.h"
#include "yosysscript.h"

#include <reading/limits.h>
#include <utils/boundedfile.h>
#include <utils/fileutils.h>

#include <QFile>

#include <algorithm>

namespace Synthesis
{

QByteArray tclWord(const QString &text)
{
    QByteArray word = "\"";
    const QByteArray bytes = text.toUtf8();
    for (const char c : bytes) {
        if (c == '\n')
            word += "\\n";
        else if (c == '\r')
            word += "\\r";
        else if (c == '\\' || c == '"' || c == '$' || c == '[')
            word += QByteArray("\\") + c;
        else
            word += c;
    }
    return word + '"';
}

QString ProjectFlow::implementation() const
{
    return option("impl_name");
}

QString ProjectFlow::resultFile(const char *suffix) const
{
    return implementation() + u'/' + m_job.targetName + QLatin1String(suffix);
}

QByteArray ProjectFlow::projectFile() const
{
    QByteArray text = "# Project of " + topModule().toUtf8() + "\n\n";
    for (const QString &file : m_sources.originals())
        text += "add_file -verilog " + tclWord(file) + '\n';

    const QByteArray folder = tclWord(implementation());
    text += "\nimpl -add " + folder + " -type fpga\n";
    const auto set = [&](const char *name, const QString &value) {
        if (!value.isEmpty())
            text += QByteArray("set_option -") + name + ' ' + tclWord(value) + '\n';
    };
    set("technology", m_job.device.series());
    set("part", m_job.device.device());
    set("package", m_job.device.package());
    set("speed_grade", m_job.device.speed());
    set("top_module", topModule());
    // Every file is read as part of one whole: macros are known in all later files.
    set("vlog_std", QStringLiteral("sysv"));
    set("multi_file_compilation_unit", QStringLiteral("1"));
    const bool disableIo = m_job.options.value(QStringLiteral("disable_io")).toBool();
    set("disable_io_insertion", disableIo ? QStringLiteral("1") : QStringLiteral("0"));
    set("include_path", m_sources.originalDirs().join(u';'));
    set("write_verilog", QStringLiteral("1"));
    switch (language()) {
    case Language::Verilog:
        break;
    case Language::Vhdl:
        set("write_vhdl", QStringLiteral("1"));
        break;
    }
    text += "project -result_format verilog\nproject -result_file " +
            tclWord(ScratchFolder::relative(resultFile(m_tool.netlist))) + "\nimpl -active " +
            folder + '\n';
    return text;
}

QString ProjectFlow::prepareTool()
{
    const QString folder = implementation();
    if (folder.isEmpty() || folder.contains(u'/') || folder == QLatin1String(".") ||
        folder == QLatin1String(".."))
        return Tr::tr("\"%1\" cannot be the name of the result folder.").arg(folder);

    const QString project = m_job.targetName + QLatin1String(".prj");
    QString error =
        addCommand(m_tool, {QStringLiteral("-batch"), QString(QLatin1String("./") + project)});
    // The template comes from the elaborated sources.
    if (error.isEmpty())
        error =
            addCommand(toolRow(Tool::TarvoSynthesis), YosysScript::arguments(YosysScript::script));
    if (error.isEmpty())
        error = writeScratch(QLatin1String(YosysScript::script),
                             YosysScript::elaboration(m_sources, topModule()));
    if (error.isEmpty())
        Utils::FileUtils::makePath(m_scratch.absolute(folder), &error);
    if (error.isEmpty())
        Utils::FileUtils::writeFile(outputPath(".prj"), projectFile(), &error);
    return error;
}

QString ProjectFlow::stageOf(const QString &line)
{
    const auto reached = [this](int stage, const QString &phrase) {
        m_stage = std::max(m_stage, stage);
        return phrase;
    };
    if (line.contains(QLatin1String("Compiler")) && line.contains(QLatin1String("started")))
        return reached(0, Tr::tr("Reading sources"));
    if (line.contains(QLatin1String("Mapper")) && line.contains(QLatin1String("started")))
        return reached(1, Tr::tr("Mapping logic"));
    if (line.startsWith(QLatin1String("1. Executing Verilog")))
        return reached(2, Tr::tr("Writing template"));
    return {};
}

QStringList ProjectFlow::furtherLog() const
{
    const Utils::Result<QByteArray> text =
        Utils::readBoundedFile(m_scratch.absolute(resultFile(".srr")), Reading::Limits::toolLog);
    return text ? QString::fromUtf8(*text).split(u'\n') : QStringList();
}

QString ProjectFlow::addOutput(const char *suffix, Results *results) const
{
    const QString file = resultFile(suffix);
    const QString path = m_scratch.outputDir() + u'/' + file;
    if (!QFile::exists(m_scratch.absolute(file)))
        return notWritten(QLatin1String(m_tool.name), path);
    Output output{path, {}};
    QString error = readResult(file, path, &output.bytes);
    if (error.isEmpty())
        results->outputs << output;
    return error;
}

QString ProjectFlow::collect(Results *results)
{
    const QByteArray top = topModule().toUtf8();
    QByteArray outline;
    QString error = addOutput(m_tool.netlist, results);
    if (error.isEmpty())
        error = readResult(QLatin1String(YosysScript::outline), templatePath(), &outline);
    if (!error.isEmpty())
        return error;

    const Output &netlist = results->outputs.last();
    const VerilogOutline scanned = scanVerilog(netlist.bytes);
    if (!scanned.complete || !scanned.defines(top))
        return notComplete(QLatin1String(m_tool.name), netlist.path);
    results->instances = scanned.leavesOf(top, &error);
    if (!error.isEmpty())
        return unusable(netlist.path, error);
    DesignPorts design;
    error = design.read(outline, {});
    if (!error.isEmpty())
        return unusable(templatePath(), error);
    if (!design.contains(top))
        return notComplete(commands().last().name, templatePath());

    if (!Utils::FileUtils::makePath(m_scratch.outputDir() + u'/' + implementation(), &error))
        return error;
    results->ports = design.ports(top);
    results->outputs.prepend(Output{templatePath(), instantiationTemplate(design)});
    switch (language()) {
    case Language::Verilog:
        return {};
    case Language::Vhdl:
        return addOutput(m_tool.vhdlNetlist, results);
    }
    Q_UNREACHABLE();
}

} // namespace Synthesis
