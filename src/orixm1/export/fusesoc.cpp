#include "fusesoc.h"

#include "config/latin1literal.h"
#include "constraints.h"
#include "filledtext.h"
#include "lint.h"
#include "names.h"
#include "rtl.h"
#include "testbench.h"
#include "vlnv.h"

#include <QRegularExpression>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

const char generatorCore[] =
    R"(CAPI=2:
name: "tarvo:orixm1:@prefix@generator:1.0"
description: "Makes cores of configured Tarvo_ORIX_M1 subsystems"
generators:
  @prefix@orixm1:
    interpreter: python3
    command: @prefix@orixm1_generator.py
    cache_type: none
    description: "A core of the subsystem that a configuration (.ipc) describes"
    usage: |
      Parameters:
        ipc     the configuration, a path below the folder of the core that calls the generator
        orixm1  the program that makes the files; without it the environment variable ORIXM1 names
                it, or else it is "orixm1" on the search path
      Nothing is cached: making the files takes less time than finding out what they depend on.
)";

const char generatorScript[] =
    R"PY(#!/usr/bin/env python3
"""Makes a FuseSoC core of a subsystem from its configuration (.ipc).

usage: orixm1_generator.py FILE

FILE is the YAML file of FuseSoC's generator interface 1.0: "gapi", "files_root", "vlnv" and "parameters", which are "ipc",
the configuration, and "orixm1", the program. Relative paths start from "files_root". The core goes into the current folder;
where that cannot be done, nothing does, and standard error says why."""

import json
import os
import re
import shutil
import subprocess
import sys
import tempfile

FORMATS = ["rtl", "testbench", "lint", "sdc", "fusesoc"]
OTHERS = ["fusesoc", "@prefix@orixm1-export.json"]  # of what is written, these are no part of the core


class Failure(Exception):
    pass


def read_request(path):
    try:
        import yaml
    except ImportError:
        raise Failure("Python's yaml (python3-yaml) is missing")
    try:
        with open(path, encoding="utf-8") as file:
            request = yaml.safe_load(file)
    except (OSError, UnicodeDecodeError, yaml.YAMLError) as error:
        raise Failure('"%s" cannot be read: %s' % (path, error))
    if not isinstance(request, dict):
        raise Failure('"%s" is no request of FuseSoC' % path)
    if str(request.get("gapi")) != "1.0":
        raise Failure('gapi is "%s"; this generator knows "1.0"' % request.get("gapi"))
    for key in ("files_root", "vlnv"):
        if not isinstance(request.get(key), str) or not request[key]:
            raise Failure('"%s" has no "%s"' % (path, key))
    if not isinstance(request.get("parameters") or {}, dict):
        raise Failure('"parameters" is no mapping')
    return request


def parameters_of(request):
    parameters = request.get("parameters") or {}
    for key, value in parameters.items():
        if key not in ("ipc", "orixm1"):
            raise Failure('unknown parameter "%s"; there are: ipc, orixm1' % key)
        if not isinstance(value, str) or not value:
            raise Failure('parameter "%s" is no path' % key)
    if "ipc" not in parameters:
        raise Failure('parameter "ipc" is missing: the path of the configuration')
    return parameters


def program_of(parameters, root):
    named = parameters.get("orixm1")
    if named and os.path.dirname(named):
        named = os.path.join(root, named)
    wanted = named or os.environ.get("ORIXM1") or "orixm1"
    program = shutil.which(wanted)
    if not program:
        raise Failure('the program "%s" is not there; put orixm1 on the search path, or name it with the environment '
                      'variable ORIXM1 or the parameter "orixm1"' % wanted)
    return os.path.abspath(program)


def run(program, *arguments):
    try:
        ended = subprocess.run([program, *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.PIPE, encoding="utf-8", errors="replace")
    except OSError as error:
        raise Failure('"%s" cannot be run: %s' % (program, error.strerror))
    return ended.returncode, ended.stdout, ended.stderr


def remove(path):
    if os.path.isdir(path) and not os.path.islink(path):
        shutil.rmtree(path)
    elif os.path.lexists(path):
        os.remove(path)


def make_core(request):
    parameters = parameters_of(request)
    root = os.path.abspath(request["files_root"])
    program = program_of(parameters, root)
    ipc = os.path.join(root, parameters["ipc"])
    if not os.path.isfile(ipc):
        raise Failure('there is no configuration "%s"' % ipc)
    status, findings, said = run(program, "check", ipc)
    if status != 0:
        raise Failure('the configuration "%s" is wrong:\n%s' % (ipc, (findings + said).strip()))
    folder = tempfile.mkdtemp(prefix=".orixm1-", dir=".")
    try:
        status, _, said = run(program, "export", ipc, *FORMATS, @option@"--out", folder)
        if status != 0:
            raise Failure('"%s" could not be exported:\n%s' % (ipc, said.strip()))
        sys.stderr.write(findings + said)
        cores = [name for name in os.listdir(folder) if name.endswith(".core")]
        if len(cores) != 1:
            raise Failure('"%s" gives %d cores, not one' % (ipc, len(cores)))
        path = os.path.join(folder, cores[0])
        with open(path, encoding="utf-8", newline="") as file:
            text = file.read()
        line = "name: " + json.dumps(request["vlnv"])
        text, count = re.subn(r"^name: .*$", lambda _: line, text, count=1, flags=re.MULTILINE)
        if count != 1:
            raise Failure('"%s" has no name' % cores[0])
        with open(path, "w", encoding="utf-8", newline="") as file:
            file.write(text)
        # The core last: where it stands, its files do.
        for name in sorted(os.listdir(folder), key=lambda name: (name in cores, name)):
            if name not in OTHERS:
                remove(name)
                os.rename(os.path.join(folder, name), name)
    finally:
        shutil.rmtree(folder, ignore_errors=True)


def main(arguments):
    if len(arguments) != 2 or arguments[1] in ("-h", "--help"):
        print(__doc__, file=sys.stdout if len(arguments) == 2 else sys.stderr)
        return 0 if len(arguments) == 2 else 2
    try:
        make_core(read_request(arguments[1]))
    except Failure as failure:
        print("orixm1_generator: %s" % failure, file=sys.stderr)
        return 1
    except OSError as error:
        print("orixm1_generator: %s" % error, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
)PY";

// As a scalar of YAML: plain where nothing can be taken otherwise.
QString scalar(const QString &text)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z_][A-Za-z0-9_./-]*\\z"));
    if (plain.match(text).hasMatch())
        return text;
    QString quoted = text;
    quoted.replace(u'\\', "\\\\"_l1).replace(u'"', "\\\""_l1);
    return u'"' + quoted + u'"';
}

QString listed(const QStringList &items)
{
    QStringList scalars;
    for (const QString &item : items)
        scalars.append(scalar(item));
    return u'[' + scalars.join(", "_l1) + u']';
}

struct FileSet {
    QLatin1String name;
    QLatin1String type;
    QStringList files;
    bool isIncluded = false;
    bool isCopied = false; // to the same place below the folder in which tools run
};

QString textOf(const FileSet &set)
{
    QString text = "  "_l1 + set.name + ":\n    file_type: "_l1 + set.type + "\n    files:\n"_l1;
    for (const QString &file : set.files) {
        text += "      - "_l1 + scalar(file);
        if (set.isIncluded)
            text += ": {is_include_file: true}"_l1;
        else if (set.isCopied)
            text += ": {copyto: "_l1 + scalar(file) + u'}';
        text += u'\n';
    }
    return text;
}

struct Target {
    QLatin1String name;
    QLatin1String description;
    QStringList sets;
    QString topLevel;
    QString options = {}; // "flow" and "flow_options"; empty: whoever takes the target chooses
};

QString textOf(const Target &target)
{
    return "  "_l1 + target.name + ":\n    description: "_l1 + scalar(target.description) +
           "\n    filesets: "_l1 + listed(target.sets) + "\n    toplevel: "_l1 +
           scalar(target.topLevel) + u'\n' + target.options;
}

QStringList pathsOf(const QVector<ExportedFile> &files)
{
    QStringList paths;
    for (const ExportedFile &file : files)
        paths.append(file.path);
    return paths;
}

// What belongs to the declaration of the processor alone: a simulation has a model in its place.
QStringList declarations(const SystemMap &map)
{
    QStringList paths = RtlPath::compiled(map);
    const QStringList simulated = RtlPath::simulated(map);
    paths.erase(
        std::remove_if(paths.begin(), paths.end(),
                       [&simulated](const QString &path) { return simulated.contains(path); }),
        paths.end());
    return paths;
}

QVector<FileSet> fileSetsOf(const SystemMap &map)
{
    const QStringList bench = BenchName::verilogSources(map);
    QVector<FileSet> sets = {
        {"include"_l1, "verilogSource-2005"_l1, RtlPath::included(map), true},
        {"rtl"_l1, "verilogSource-2005"_l1, RtlPath::simulated(map)},
        {"processor"_l1, "verilogSource-2005"_l1, declarations(map)},
        {"contents"_l1, "user"_l1, RtlPath::initialContents(map), false, true},
        {"constraints"_l1, "SDC"_l1, pathsOf(constraintFiles(map))},
        {"waivers"_l1, "vlt"_l1, pathsOf(lintFiles(map))},
        {"testbench"_l1, "systemVerilogSource"_l1, bench},
        {"script"_l1, "user"_l1,
         bench.isEmpty() ? QStringList() : QStringList{BenchName::script(map)}, false, true},
    };
    sets.erase(std::remove_if(sets.begin(), sets.end(),
                              [](const FileSet &set) { return set.files.isEmpty(); }),
               sets.end());
    return sets;
}

const char simulationOptions[] = R"(    parameters: [@argument@]
    flow: sim
    flow_options:
      tool: icarus
      iverilog_options: [-g2005-sv]
)";

// The widths are those of the models, which are Verilog-2005 and not for synthesis.
const char compiledSimulationOptions[] = R"(    parameters: [@argument@]
    flow: sim
    flow_options:
      tool: verilator
      mode: binary
      verilator_options: [--timing, -Wno-WIDTH]
)";

const char lintOptions[] = R"(    flow: lint
    flow_options:
      tool: verilator
      verilator_options: [-Wall]
)";

QByteArray coreOf(const SystemMap &map)
{
    const QVector<FileSet> sets = fileSetsOf(map);
    // The sets of these names that are there, in this order.
    const auto chosen = [&sets](const char *names) {
        QStringList found;
        const QStringList all = QString::fromLatin1(names).split(u' ');
        for (const QString &name : all) {
            if (std::any_of(sets.begin(), sets.end(),
                            [&name](const FileSet &set) { return set.name == name; }))
                found.append(name);
        }
        return found;
    };
    const QString top = topModuleName(map);
    QVector<Target> targets = {
        {"default"_l1, "the subsystem in a design"_l1, chosen("include rtl processor contents"),
         top},
        {"synth"_l1, "synthesis, with the tool that is named"_l1,
         chosen("include rtl processor contents constraints"), top},
        {"lint"_l1, "lint with Verilator"_l1, chosen("waivers include rtl processor"), top,
         QString::fromLatin1(lintOptions)},
    };
    const bool hasBench = !BenchName::verilogSources(map).isEmpty();
    if (hasBench) {
        // The bench first, since it sets the time scale.
        const QString bench = BenchName::verilogModule(map);
        const auto optionsOf = [&map](const char *text) {
            return filledText(text, {{QStringLiteral("argument"), BenchName::scriptArgument(map)}});
        };
        targets.append({"sim"_l1, "first accesses, with Icarus Verilog"_l1,
                        chosen("include testbench rtl contents script"), bench,
                        optionsOf(simulationOptions)});
        targets.append({"sim_verilator"_l1, "the same with Verilator"_l1,
                        chosen("include testbench rtl contents script"), bench,
                        optionsOf(compiledSimulationOptions)});
    }
    const Vlnv vlnv = subsystemVlnv(map);
    QString text =
        "CAPI=2:\nname: "_l1 +
        scalar(QStringList{vlnv.vendor, vlnv.library, vlnv.name, vlnv.version}.join(u':')) +
        "\ndescription: "_l1 +
        scalar("Subsystem with a Cortex-M1 processor on "_l1 + map.device.device()) +
        "\nfilesets:\n"_l1;
    for (const FileSet &set : sets)
        text += textOf(set);
    text += "targets:\n"_l1;
    for (const Target &target : qAsConst(targets))
        text += textOf(target);
    if (hasBench)
        text += "parameters:\n  "_l1 + BenchName::scriptArgument(map) +
                ":\n    datatype: str\n    paramtype: plusarg\n    default: "_l1 +
                scalar(BenchName::script(map)) +
                "\n    description: \"accesses of the processor, in the folder in which the "
                "simulation runs\"\n"_l1;
    return text.toUtf8();
}

// A generator with a prefix makes cores with it.
QByteArray generatorText(const SystemMap &map, const char *text)
{
    const QString option =
        map.prefix.isEmpty() ? QString() : "\"--prefix\", \""_l1 + map.prefix + "\", "_l1;
    return filledText(text,
                      {{QStringLiteral("prefix"), map.prefix}, {QStringLiteral("option"), option}})
        .toUtf8();
}

} // namespace

QVector<ExportedFile> fusesocFiles(const SystemMap &map)
{
    if (RtlPath::compiled(map).isEmpty())
        return {};
    return {{fileName(map, ".core"_l1), coreOf(map)},
            {"fusesoc/"_l1 + ownName(map, QStringLiteral("orixm1_generator.core")),
             generatorText(map, generatorCore)},
            {"fusesoc/"_l1 + ownName(map, QStringLiteral("orixm1_generator.py")),
             generatorText(map, generatorScript)}};
}

} // namespace TARVOORIXM1
