#pragma once

#include "testsupport.h"

#include <QCryptographicHash>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QThread>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

// The tools that take exported files without a word, and what each is asked.
namespace Exported
{

using Files = QMap<QString, QByteArray>; // by the path below the folder

// Runs tools on sets of files. What a tool has taken once, it is not asked again.
class Checkers
{
public:
    // A complaint for each tool that says something or fails; empty if all is well.
    QStringList complaints(const Files &files, bool isBigEndian)
    {
        m_files = &files;
        m_tasks.clear();
        m_complaints.clear();
        m_isBigEndian = isBigEndian;
        const QTemporaryDir dir;
        m_folder = dir.path();
        for (auto it = files.begin(); it != files.end(); ++it)
            TestSupport::write(dir.filePath(it.key()), it.value());
        for (auto it = files.begin(); it != files.end(); ++it)
            addTasksFor(it.key());
        addHardware();
        runTasks();
        addLink();
        addSimulation();
        runTasks();
        return m_complaints;
    }

    // How many times a tool was run, and how many times it need not be.
    int runs() const { return m_runs; }
    int repeats() const { return m_repeats; }

private:
    struct Task {
        QString file; // what it is about
        QString program;
        QStringList arguments;
        QByteArray input;   // the sum of what it reads; empty: it is run each time
        QString silence;    // what it may say, as a regular expression
        QString mayFailFor; // with this text in its output a failure is as it should be
    };

    // Kinds of files that no tool is asked about one by one.
    const QStringList togetherOnly = words("ld x v vhd f play vlt");

    static QStringList words(const char *text)
    {
        return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
    }

    QByteArray sumOf(const std::function<bool(const QString &)> &counts) const
    {
        QCryptographicHash hash(QCryptographicHash::Sha256);
        for (auto it = m_files->begin(); it != m_files->end(); ++it) {
            if (!counts(it.key()))
                continue;
            hash.addData(it.key().toUtf8() + '\0' + QByteArray::number(it.value().size()) + '\0');
            hash.addData(it.value());
        }
        return hash.result();
    }

    void add(const QString &file, const QString &program, const QStringList &arguments,
             const QByteArray &input, const QString &silence = {})
    {
        m_tasks.push_back({file, program, arguments, input, silence, {}});
    }

    QStringList machine() const
    {
        return words("-mcpu=cortex-m1 -mthumb") +
               (m_isBigEndian ? words("-mbig-endian") : QStringList());
    }

    static QStringList strict() { return words("-Wall -Wextra -pedantic -Wconversion -Werror"); }

    static QStringList paths() { return words("-I. -Idrivers"); }

    static QString objectOf(const QString &source)
    {
        return QString(source).replace(u'/', u'_').chopped(2) + QLatin1String(".o");
    }

    void addTasksFor(const QString &file)
    {
        // What is compiled or simulated is looked at together.
        if (file.startsWith(QLatin1String("rtl/")))
            return;
        const QString kind = file.section(u'.', -1);
        const QByteArray own = sumOf([&file](const QString &path) { return path == file; });
        if (kind == QLatin1String("svd")) {
            add(file, QStringLiteral("xmllint"), words("--noout --nonet") + QStringList{file}, own);
            const QString schema = QStringLiteral(TARVO_SVD_SCHEMA);
            if (QFileInfo::exists(schema))
                add(file, QStringLiteral("xmllint"),
                    words("--noout --nonet --relaxng") + QStringList{schema, file}, own,
                    QRegularExpression::escape(file) + QLatin1String(" validates\\n"));
        } else if (kind == QLatin1String("core")) {
            addCore(file, own);
        } else if (kind == QLatin1String("h")) {
            addHeader(file);
        } else if (kind == QLatin1String("c")) {
            addSource(file);
        } else if (kind == QLatin1String("dts") || kind == QLatin1String("dtsi")) {
            addDeviceTree(file);
        } else if (kind == QLatin1String("md")) {
            add(file, QStringLiteral("cmark-gfm"),
                words("--validate-utf8 -e table --to xml") + QStringList{file}, own,
                QStringLiteral("(?s)<\\?xml .*</document>\\n"));
        } else if (kind == QLatin1String("html")) {
            add(file, QStringLiteral("xmllint"),
                words("--html --noout --nonet") + QStringList{file}, own);
        } else if (kind == QLatin1String("sdc")) {
            addConstraints(file, own);
        } else if (kind == QLatin1String("svg") || kind == QLatin1String("xml")) {
            add(file, QStringLiteral("xmllint"), words("--noout --nonet") + QStringList{file}, own);
        } else if (kind == QLatin1String("py")) {
            add(file, QStringLiteral("python3"), words("-m py_compile") + QStringList{file}, own);
        } else if (kind == QLatin1String("tcl")) {
            addPins(file, own);
        } else if (kind == QLatin1String("cmake")) {
            add(file, QStringLiteral("cmake"), {QStringLiteral("-P"), file}, own);
        } else if (kind == QLatin1String("mk")) {
            add(file, QStringLiteral("make"),
                words("-s tarvo_orix_m1_sources -f") + QStringList{file}, own);
        } else if (kind == QLatin1String("sv") || file.endsWith(QLatin1String("_bb.v"))) {
            add(file, QStringLiteral("verilator"), words("--lint-only -Wall") + QStringList{file},
                own);
            add(file, QStringLiteral("iverilog"), words("-g2012 -Wall -tnull") + QStringList{file},
                own);
            add(file, QStringLiteral("yosys"),
                {QStringLiteral("-q"), QStringLiteral("-p"),
                 QLatin1String("read_verilog -sv ") + file},
                own);
        } else if (!togetherOnly.contains(kind)) {
            m_complaints.append(file + QLatin1String(": nothing here checks such a file"));
        }
    }

    // Each line that waits for a pin is a command, and the file is none as long as all wait.
    void addPins(const QString &file, const QByteArray &own)
    {
        const QString reader = QString(file).replace(u'/', u'_') + QLatin1String(".reader");
        TestSupport::write(m_folder + u'/' + reader,
                           "source [lindex $argv 0]\n"
                           "proc tarvo_orix_m1_pin {port pin direction pull} {\n"
                           "    if {$pin ne \"PIN\"} { error $port }\n"
                           "    incr ::lines\n"
                           "}\n"
                           "set lines 0\n"
                           "set file [open [lindex $argv 0]]\n"
                           "while {[gets $file line] >= 0} {\n"
                           "    if {[string match {# tarvo_orix_m1_pin {*} *} $line]} {\n"
                           "        eval [string range $line 2 end]\n"
                           "    }\n"
                           "}\n"
                           "if {$lines < 3} { error \"no ports\" }\n");
        add(file, QStringLiteral("tclsh"), {reader, file}, own);
    }

    QStringList listed(const QString &list) const
    {
        return QString::fromUtf8(m_files->value(list))
            .split(u'\n')
            .filter(QRegularExpression(QStringLiteral("^[a-z].*\\.v$")));
    }

    // The subsystem as tools for synthesis, lint and simulation take it.
    void addHardware()
    {
        const QString synthesis = QStringLiteral("tarvo_orix_m1_synthesis.f");
        const QString simulation = QStringLiteral("tarvo_orix_m1_simulation.f");
        const QByteArray input = sumOf([](const QString &path) {
            return path.startsWith(QLatin1String("rtl/")) ||
                   path.startsWith(QLatin1String("sim/")) || path.endsWith(QLatin1String(".f")) ||
                   path.endsWith(QLatin1String(".vlt")) || path.endsWith(QLatin1String("_pkg.vhd"));
        });
        if (m_files->contains(synthesis)) {
            add(synthesis, QStringLiteral("verilator"),
                words("--lint-only -Wall --top-module Tarvo_ORIX_M1_Top tarvo_orix_m1.vlt -f") +
                    QStringList{synthesis},
                input);
            add(synthesis, QStringLiteral("iverilog"),
                words("-g2005 -Wall -tnull -s Tarvo_ORIX_M1_Top -c") + QStringList{synthesis},
                input);
            add(synthesis, QStringLiteral("yosys"),
                {QStringLiteral("-q"), QStringLiteral("-p"),
                 QLatin1String("read_verilog -Irtl ") + listed(synthesis).join(u' ') +
                     QLatin1String("; hierarchy -check -top Tarvo_ORIX_M1_Top")},
                input,
                QStringLiteral("(Warning: Yosys has only limited support for tri-state.*\\n)*"));
        }
        if (m_files->contains(simulation)) {
            add(simulation, QStringLiteral("verilator"),
                words(
                    "--lint-only --timing -Wno-lint -Wno-style --top-module tarvo_orix_m1_tb -f") +
                    QStringList{simulation},
                input);
            add(simulation, QStringLiteral("iverilog"),
                words("-g2005-sv -Wall -Wno-timescale -s tarvo_orix_m1_tb -o simulation.vvp -c") +
                    QStringList{simulation},
                {});
        }
        const QString bench = QStringLiteral("sim/tarvo_orix_m1_tb.vhd");
        if (!m_files->contains(bench))
            return;
        // In place of the processor's model, which needs the netlist's.
        TestSupport::write(m_folder + QLatin1String("/model.vhd"),
                           "library ieee;\nuse ieee.std_logic_1164.all;\n"
                           "package cortex_m1_core_bfm is\n"
                           "    subtype script_name is string(1 to 1024);\n"
                           "    function script_of(name : string) return script_name;\n"
                           "    signal script : script_name;\n"
                           "    signal done : std_logic := '0';\n"
                           "end package;\n"
                           "package body cortex_m1_core_bfm is\n"
                           "    function script_of(name : string) return script_name is\n"
                           "        variable result : script_name := (others => NUL);\n"
                           "    begin\n"
                           "        return result;\n"
                           "    end function;\n"
                           "end package body;\n");
        add(bench, QStringLiteral("sh"),
            {QStringLiteral("-ec"),
             QStringLiteral("ghdl -a --std=93 model.vhd tarvo_orix_m1_pkg.vhd %1; "
                            "ghdl -e --std=93 -Wno-binding tarvo_orix_m1_tb")
                 .arg(bench)},
            input);
    }

    // The script's accesses to the RTL.
    void addSimulation()
    {
        if (m_files->contains(QStringLiteral("tarvo_orix_m1_simulation.f")) &&
            m_complaints.isEmpty())
            add(QStringLiteral("sim/tarvo_orix_m1_tb.play"), QStringLiteral("vvp"),
                words("-n simulation.vvp +script=sim/tarvo_orix_m1_tb.play"), {},
                QStringLiteral("PASS\\n([^\\n]*\\$finish called[^\\n]*\\n)?"));
    }

    // Public schemas, where a folder has them.
    static QString schemaPath(const QString &name)
    {
        const QString path = qEnvironmentVariable("TARVO_SCHEMAS_DIR") + u'/' + name;
        return QFileInfo(path).isFile() ? path : QString();
    }

    void addIpxactSchema(const QString &file, const QByteArray &own)
    {
        static const QRegularExpression root(
            QStringLiteral("<ipxact:(\\w+) xmlns:ipxact=\"[^\"]*/1685-(2014|2022)\""));
        const auto found = root.match(QString::fromUtf8(m_files->value(file)));
        const QString schema = schemaPath(QLatin1String("ieee-1685-") + found.captured(2) + u'/' +
                                          found.captured(1) + QLatin1String(".xsd"));
        if (found.hasMatch() && !schema.isEmpty())
            add(file, QStringLiteral("xmllint"),
                words("--noout --nonet --schema") + QStringList{schema, file}, own,
                QRegularExpression::escape(file) + QLatin1String(" validates\\n"));
    }

    // A core is YAML behind its first line.
    void addCore(const QString &file, const QByteArray &own)
    {
        static const char reader[] =
            "import json, sys, yaml\n"
            "line, text = open(sys.argv[1], encoding='utf-8').read().split('\\n', 1)\n"
            "core = yaml.safe_load(text)\n"
            "assert line == 'CAPI=2:' and core['name'].count(':') == 3\n"
            "if len(sys.argv) > 2:\n"
            "    import jsonschema\n"
            "    jsonschema.validate(core, json.load(open(sys.argv[2])))\n";
        QStringList arguments = {QStringLiteral("-c"), QString::fromLatin1(reader), file};
        if (const QString schema = schemaPath(QStringLiteral("capi2.schema.json"));
            !schema.isEmpty())
            arguments.append(schema);
        add(file, QStringLiteral("python3"), arguments, own);
    }

    // Read as Tcl, with the commands that tools have for such files and no others.
    void addConstraints(const QString &file, const QByteArray &own)
    {
        const QString reader = QString(file).replace(u'/', u'_') + QLatin1String(".reader");
        TestSupport::write(
            m_folder + u'/' + reader,
            "proc get_cells {pattern} { return [list $pattern] }\n"
            "proc get_ports {port} { return [list $port] }\n"
            "proc create_clock {name clock of ns ports} {\n"
            "    if {\"$name $of\" ne \"-name -period\" || $ns <= 0} { error $clock }\n"
            "}\n"
            "proc set_clock_groups {kind args} {\n"
            "    if {$kind ne \"-asynchronous\" || [llength $args] % 2} { error $kind }\n"
            "}\n"
            "proc set_false_path {option cells} {\n"
            "    if {$option ne \"-to\" && $option ne \"-from\"} { error $option }\n"
            "}\n"
            "proc set_max_delay {from cells to others ns} {\n"
            "    if {$from ne \"-from\" || $to ne \"-to\" || $ns <= 0} {\n"
            "        error \"set_max_delay $from $to $ns\"\n"
            "    }\n"
            "}\n"
            // as it is, and with all that a user may set
            "source [lindex $argv 0]\n"
            "set text [read [open [lindex $argv 0]]]\n"
            "foreach {line set} [regexp -all -line -inline {^#   (set .*)$} $text] {\n"
            "    eval $set\n"
            "}\n"
            "set tarvo_orix_m1_are_ports 1\n"
            "source [lindex $argv 0]\n");
        add(file, QStringLiteral("tclsh"), {reader, file}, own);
    }

    static bool isHeader(const QString &path) { return path.endsWith(QLatin1String(".h")); }

    void addHeader(const QString &file)
    {
        const QByteArray input =
            sumOf([&file](const QString &path) { return isHeader(path); }) + file.toUtf8();
        const QString user = QString(file).replace(u'/', u'_') + QLatin1String(".user");
        const QByteArray include = "#include \"" + file.toUtf8() + "\"\n";
        TestSupport::write(m_folder + u'/' + user, include + include + "extern int user;\n");
        const QStringList c = words("-std=c99 -fsyntax-only") + strict() + paths() +
                              QStringList{QStringLiteral("-x"), QStringLiteral("c"), user};
        const QStringList cpp = words("-std=c++11 -fsyntax-only") + strict() + paths() +
                                QStringList{QStringLiteral("-x"), QStringLiteral("c++"), user};
        add(file, QStringLiteral("arm-none-eabi-gcc"), machine() + c, input);
        add(file, QStringLiteral("arm-none-eabi-g++"), machine() + cpp, input);
        // Inline functions with instructions of the processor are for that alone.
        if (file != QLatin1String("tarvo_orix_m1.h"))
            return;
        add(file, QStringLiteral("gcc"), c, input);
        add(file, QStringLiteral("g++"), cpp, input);
        add(file, QStringLiteral("clang"), c, input);
        add(file, QStringLiteral("clang"), cpp, input);
    }

    void addSource(const QString &file)
    {
        const QByteArray input =
            sumOf([&file](const QString &path) { return path == file || isHeader(path); });
        const QStringList flags = words("-std=c99") + strict() + paths();
        // Its result is linked.
        add(file, QStringLiteral("arm-none-eabi-gcc"),
            machine() + flags + words("-Os -ffreestanding -ffunction-sections -fdata-sections -c") +
                QStringList{file, QStringLiteral("-o"), objectOf(file)},
            {});
        add(file, QStringLiteral("clang"),
            words("--target=arm-none-eabi -ffreestanding -fsyntax-only") + machine() + flags +
                QStringList{file},
            input);
    }

    void addDeviceTree(const QString &file)
    {
        const QByteArray input = sumOf([](const QString &path) {
            return path.endsWith(QLatin1String(".dts")) || path.endsWith(QLatin1String(".dtsi"));
        });
        QString source = file;
        if (file.endsWith(QLatin1String(".dtsi"))) {
            source = file + QLatin1String(".user.dts");
            TestSupport::write(m_folder + u'/' + source,
                               "/dts-v1/;\n/include/ \"" + file.toUtf8() + "\"\n");
        }
        add(file, QStringLiteral("dtc"),
            words("-@ -I dts -O dtb -o /dev/null") + QStringList{source}, input + file.toUtf8());
    }

    // Start-up code and drivers with the linker script. A script may say why nothing can start.
    void addLink()
    {
        const QString script = QStringLiteral("tarvo_orix_m1.ld");
        if (!m_files->contains(script) || !m_complaints.isEmpty())
            return;
        TestSupport::write(m_folder + QLatin1String("/main.c"),
                           "int main(void);\nint main(void)\n{\n    return 0;\n}\n");
        QStringList arguments = machine() +
                                words("-std=c99 -Os -ffreestanding -nostdlib -nostartfiles -L . "
                                      "-Wl,--fatal-warnings -Wl,--gc-sections -T") +
                                QStringList{script} + words("-o program.elf main.c");
        if (m_isBigEndian)
            arguments.append(QStringLiteral("-Wl,--be8"));
        for (auto it = m_files->begin(); it != m_files->end(); ++it) {
            if (it.key().endsWith(QLatin1String(".c")))
                arguments.append(objectOf(it.key()));
        }
        add(script, QStringLiteral("arm-none-eabi-gcc"), arguments, {});
        static const QRegularExpression never(QStringLiteral("^ASSERT\\(0, \"([^\"]+)\"\\)"),
                                              QRegularExpression::MultilineOption);
        m_tasks.back().mayFailFor =
            never.match(QString::fromUtf8(m_files->value(script))).captured(1);
    }

    void runTasks()
    {
        std::vector<std::pair<Task, std::unique_ptr<QProcess>>> running;
        const size_t most = size_t(qMax(1, QThread::idealThreadCount()));
        for (const Task &task : std::exchange(m_tasks, {})) {
            const QByteArray key = task.input.isEmpty() ? QByteArray()
                                                        : task.program.toUtf8() + '\0' +
                                                              task.arguments.join(u'\0').toUtf8() +
                                                              '\0' + task.input;
            if (m_taken.contains(key)) {
                ++m_repeats;
                continue;
            }
            if (running.size() == most) {
                finish(running.front().first, *running.front().second);
                running.erase(running.begin());
            }
            auto process = std::make_unique<QProcess>();
            process->setWorkingDirectory(m_folder);
            process->setProcessChannelMode(QProcess::MergedChannels);
            process->setStandardInputFile(QProcess::nullDevice());
            process->start(task.program, task.arguments);
            running.emplace_back(task, std::move(process));
            if (!key.isEmpty())
                m_taken.insert(key);
        }
        for (auto &entry : running)
            finish(entry.first, *entry.second);
    }

    void finish(const Task &task, QProcess &process)
    {
        ++m_runs;
        const bool ended = process.waitForFinished(60000);
        const QString said = QString::fromUtf8(process.readAll());
        const bool failed =
            !ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
        const bool mayFail = !task.mayFailFor.isEmpty();
        const bool isSilent =
            said.isEmpty() || (!task.silence.isEmpty() &&
                               QRegularExpression(QRegularExpression::anchoredPattern(task.silence))
                                   .match(said)
                                   .hasMatch());
        if (mayFail ? failed && said.contains(task.mayFailFor) : !failed && isSilent)
            return;
        m_complaints.append(task.file + QLatin1String(": ") + task.program + u' ' +
                            task.arguments.join(u' ') +
                            (ended ? QString() : u'\n' + process.errorString()) + u'\n' + said);
    }

    const Files *m_files = nullptr;
    QString m_folder;
    bool m_isBigEndian = false;
    std::vector<Task> m_tasks;
    QStringList m_complaints;
    QSet<QByteArray> m_taken;
    int m_runs = 0;
    int m_repeats = 0;
};

} // namespace Exported
