#include "prover.h"

#include "netlist/library.h"
#include "netlist/verilogscan.h"
#include "proof/counterexample.h"
#include "proof/proofscript.h"
#include "proof/prooftext.h"
#include "run/scratchfolder.h"
#include "run/sourcestage.h"
#include "run/toolprocess.h"

#include <utils/fileutils.h>

#include <QEventLoop>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTimer>

namespace Synthesis
{

using Utils::FileUtils;

namespace
{

constexpr int mostDifferences = 10;
constexpr int mostValues = 24;
constexpr int mostSaid = 20000; // lines of a tool that are kept

struct ToolRow {
    const char *name;
    const char *program;
    const char *package; // that has it
    const char *version; // the argument that shows it; null: the version is that of another one
};

constexpr ToolRow yosys{"Yosys", "yosys", "yosys", "-V"};
constexpr ToolRow abc{"ABC", "yosys-abc", "yosys", nullptr};
constexpr ToolRow ghdl{"GHDL", "ghdl", "ghdl", "--version"};

struct PartRow {
    const char *id;
    const char *name;
    const char *method;
    bool isVhdl;
    bool isAssumed;
};

constexpr PartRow partTable[] = {
    {"reading", "Yosys reads the sources as they are meant",
     "Not tried: one reader serves both sides. A simulation with another reader compares it.",
     false, true},
    {"memory-mapping", "Memories of the sources become block RAM and distributed RAM rightly",
     "Not tried: the sources' side of the proof maps its memories with the steps of the synthesis. "
     "A simulation of the netlist compares it.",
     false, true},
    {"ports", "The netlist has the ports of the sources",
     "Names, directions and widths are compared.", false, false},
    {"cells", "The netlist has the memories, tri-state drivers and black boxes of the sources",
     "Names, types and parameters are compared, cell by cell.", false, false},
    {"initial-values", "Memories and registers start with the same contents",
     "The initial values of each block RAM, each distributed RAM and each register that both have "
     "are compared bit by bit.",
     false, false},
    {"logic", "The netlist computes what the sources say",
     "Both are cut at the registers, memories, tri-state drivers and black boxes that they share "
     "by "
     "name; that the next value of each register, each pin of these cells and each output is the "
     "same function in both is proven by ABC, with induction over registers that only one has.",
     false, false},
    {"vhdl-cells", "The VHDL netlist has the cells of the Verilog netlist",
     "Names, types and parameters (tables, edges, initial contents) are compared, cell by cell.",
     true, false},
    {"vhdl-logic", "The VHDL netlist connects its cells as the Verilog netlist does",
     "Both are cut at every cell; that each input of each cell and each output is the same is "
     "proven by ABC.",
     true, false},
};

bool isInitialValue(const QByteArray &parameter)
{
    return parameter.startsWith("INIT") || parameter == "RD_INIT";
}

QString shortened(const QByteArray &value)
{
    return value.size() <= 40 ? QString::fromUtf8(value)
                              : QString(QString::fromUtf8(value.left(32)) + QLatin1String("…"));
}

// Where two texts of bits of the same form differ first: the bit's number, or -1.
int firstBit(const QByteArray &first, const QByteArray &second)
{
    const int quote = first.indexOf('\'');
    if (quote < 0 || first.size() != second.size() || first.left(quote) != second.left(quote))
        return -1;
    for (int i = first.size() - 1; i > quote; --i) {
        if (first.at(i) != second.at(i))
            return first.size() - 1 - i;
    }
    return -1;
}

void tell(ProofPart &part, const QString &difference)
{
    part.result = ProofPart::Refuted;
    if (part.differences.size() < mostDifferences)
        part.differences.append(difference);
    else
        part.reason = QStringLiteral("There are more differences than these.");
}

} // namespace

QString proofResultName(ProofPart::Result result)
{
    switch (result) {
    case ProofPart::Proven:
        return QStringLiteral("proven");
    case ProofPart::Refuted:
        return QStringLiteral("refuted");
    case ProofPart::NotDecided:
        return QStringLiteral("not decided");
    case ProofPart::NotTried:
        return QStringLiteral("not tried");
    case ProofPart::Assumed:
        return QStringLiteral("assumed");
    }
    Q_UNREACHABLE();
}

bool ProofReport::isProven() const
{
    bool anyProven = false;
    for (const ProofPart &part : parts) {
        if (part.isOpen())
            return false;
        anyProven = anyProven || part.result == ProofPart::Proven;
    }
    return anyProven;
}

class Prover::Private
{
public:
    Private(Prover *prover, const ProofJob &given)
        : q(prover)
        , job(given)
    {
    }

    void run();

    Prover *q;
    ProofJob job;
    ProofReport report;
    bool cancelled = false;
    ToolProcess *process = nullptr;

private:
    // A sentence on failure, and nothing on success.
    QString prepare();
    QString proveVerilog();
    QString proveVhdl();
    QString isolate(const QByteArray &first, const QByteArray &second,
                    const QSet<QByteArray> &shared);
    QString compareLogic(const QByteArray &first, const QByteArray &second, ProofPart &part);
    void explain(const QByteArray &first, const QByteArray &second, ProofPart &part);
    QString comparePorts(const QByteArray &first, const QByteArray &second, ProofPart &part);

    QString tool(const ToolRow &row, const QString &logName, const QStringList &arguments,
                 QStringList *said, bool isReport = true);
    QString yosysScript(const QByteArray &name, const QByteArray &text);
    QString version(const ToolRow &row);
    QString write(const QByteArray &name, const QByteArray &bytes);
    QString read(const QByteArray &name, QByteArray *bytes);
    void keep(const QString &name, const QByteArray &bytes);

    ProofPart &part(const char *id);
    // For the parts of one side that have no result yet.
    void close(bool isVhdl, ProofPart::Result result, const QString &reason);
    void stage(const char *text) { Q_EMIT q->stageChanged(QLatin1String(text)); }

    ScratchFolder m_scratch;
    SourceStage m_sources;
};

ProofPart &Prover::Private::part(const char *id)
{
    for (ProofPart &entry : report.parts) {
        if (entry.id == QLatin1String(id))
            return entry;
    }
    Q_UNREACHABLE();
}

void Prover::Private::close(bool isVhdl, ProofPart::Result result, const QString &reason)
{
    for (const PartRow &row : partTable) {
        if (row.isVhdl != isVhdl || row.isAssumed)
            continue;
        for (ProofPart &entry : report.parts) {
            if (entry.id == QLatin1String(row.id) && entry.result == ProofPart::NotTried) {
                entry.result = result;
                entry.reason = reason;
            }
        }
    }
}

void Prover::Private::keep(const QString &name, const QByteArray &bytes)
{
    report.files.append({name, bytes});
}

QString Prover::Private::write(const QByteArray &name, const QByteArray &bytes)
{
    QString error;
    FileUtils::writePassingFile(m_scratch.absolute(QString::fromLatin1(name)), bytes, &error);
    return error;
}

QString Prover::Private::read(const QByteArray &name, QByteArray *bytes)
{
    const QString path = m_scratch.absolute(QString::fromLatin1(name));
    if (!QFileInfo(path).isFile())
        return QLatin1String("A tool reported success but did not write \"") +
               QString::fromLatin1(name) + QLatin1String("\".");
    QString error;
    FileUtils::readFile(path, bytes, &error);
    return error;
}

QString Prover::Private::tool(const ToolRow &row, const QString &logName,
                              const QStringList &arguments, QStringList *said, bool isReport)
{
    const QString name = QLatin1String(row.name);
    const QString path = QStandardPaths::findExecutable(QLatin1String(row.program));
    if (path.isEmpty())
        return QStringLiteral("%1 is not installed: no program \"%2\" was found on PATH; the "
                              "Debian package %3 has it.")
            .arg(name, QLatin1String(row.program), QLatin1String(row.package));
    if (cancelled)
        return QStringLiteral("The proof was cancelled.");
    Command command{name, QFileInfo(path).absoluteFilePath(), arguments};
    command.doomedFolder = m_scratch.outputDir() + u'/' + ScratchFolder::name();
    ToolProcess run(command, m_scratch.outputDir(), ScratchFolder::relative(QStringLiteral("tmp")),
                    m_scratch.descriptor());
    QEventLoop loop;
    QTimer timer;
    bool isLate = false;
    QStringList lines;
    connect(&run, &ToolProcess::lineReceived, &loop, [&](const QString &line) {
        if (lines.size() < mostSaid || !isReport)
            lines.append(line);
    });
    connect(&run, &ToolProcess::ended, &loop, &QEventLoop::quit);
    connect(&timer, &QTimer::timeout, &run, [&] {
        isLate = true;
        run.stop();
    });
    timer.setSingleShot(true);
    if (job.stepSeconds > 0)
        timer.start(job.stepSeconds * 1000);
    process = &run;
    run.start();
    loop.exec();
    process = nullptr;
    if (isReport) {
        QByteArray log;
        for (const QString &line : qAsConst(lines))
            log += ProofText::withoutTimes(line).toUtf8() + '\n';
        keep(logName, log);
    }
    if (said)
        *said = lines;
    if (cancelled)
        return QStringLiteral("The proof was cancelled.");
    if (isLate)
        return QStringLiteral("%1 did not end within %2 s (%3).")
            .arg(name)
            .arg(job.stepSeconds)
            .arg(logName);
    if (run.failure().isEmpty())
        return {};
    QString reason = run.failure();
    for (const QString &line : qAsConst(lines)) {
        if (line.contains(QLatin1String("ERROR:")) || line.contains(QLatin1String(":error:")))
            reason = name + QLatin1String(" says: ") + m_sources.restored(line);
    }
    return reason;
}

QString Prover::Private::yosysScript(const QByteArray &name, const QByteArray &text)
{
    const QByteArray script = name + ".ys";
    if (const QString error = write(script, text); !error.isEmpty())
        return error;
    keep(QString::fromLatin1(script), text);
    return tool(yosys, QString::fromLatin1(name + ".log"), ProofScript::arguments(script), nullptr);
}

QString Prover::Private::version(const ToolRow &row)
{
    QStringList said;
    const QString error = tool(row, QString(), {QLatin1String(row.version)}, &said, false);
    if (error.isEmpty())
        report.tools.append(said.value(0).section(QLatin1String(" ("), 0, 0).trimmed());
    return error;
}

QString Prover::Private::prepare()
{
    QString error = m_scratch.create(job.outputDir, nullptr);
    if (error.isEmpty())
        error = m_sources.prepare(job.sources, m_scratch);
    for (const char *name :
         {"primitives.v", "memories.txt", "map_tristate.v", "map_memories.v", "map_cells.v",
          "proof_boundary.v", "proof_cut.v", "proof_own_state.v"}) {
        if (error.isEmpty())
            error = write(name, Library::file(QLatin1String(name)));
    }
    QByteArray netlist;
    if (error.isEmpty())
        FileUtils::readFile(job.netlist, &netlist, &error);
    if (error.isEmpty())
        error = write(ProofScript::netlist, netlist);
    if (error.isEmpty())
        error = write(ProofScript::blackBoxes, ProofText::blackBoxes(netlist));
    if (error.isEmpty() && !scanVerilog(netlist).defines(job.topModule.toUtf8()))
        error = QLatin1String("\"") + job.netlist + QLatin1String("\" has no module \"") +
                job.topModule + QLatin1String("\".");
    return error;
}

QString Prover::Private::isolate(const QByteArray &first, const QByteArray &second,
                                 const QSet<QByteArray> &shared)
{
    for (const QByteArray &name : {first, second}) {
        QByteArray whole;
        QByteArray pins;
        QString error = read(name + ".whole", &whole);
        if (error.isEmpty())
            error = read(name + ".pins", &pins);
        if (error.isEmpty())
            error = write(name + ".cut", ProofText::cut(whole, shared, ProofText::listed(pins)));
        if (!error.isEmpty())
            return error;
    }
    return yosysScript(first + "-isolate", ProofScript::isolate(first, second));
}

// Ports of what is left of both designs. Empty: they can be compared, or a difference is told.
QString Prover::Private::comparePorts(const QByteArray &first, const QByteArray &second,
                                      ProofPart &part)
{
    QByteArray texts[2];
    for (int i = 0; i < 2; ++i) {
        const QString error = read((i == 0 ? first : second) + ".logic", &texts[i]);
        if (!error.isEmpty())
            return error;
    }
    const auto one = ProofText::portsOf(texts[0], first);
    const auto two = ProofText::portsOf(texts[1], second);
    QString open;
    const auto look = [&](const QMap<QByteArray, QByteArray> &from,
                          const QMap<QByteArray, QByteArray> &other, const QByteArray &has,
                          const QByteArray &lacks) {
        for (auto it = from.begin(); it != from.end(); ++it) {
            if (other.value(it.key()) == it.value())
                continue;
            const QString place = ProofText::placeOf(it.key());
            const QByteArray direction = it.value().left(it.value().indexOf(' '));
            if (other.contains(it.key()) && !other.value(it.key()).startsWith(direction)) {
                if (has == first)
                    tell(part,
                         QStringLiteral("%1: driven in \"%2\" only")
                             .arg(place, QString::fromLatin1(direction == "output" ? has : lacks)));
            } else if (open.isEmpty()) {
                // Ports and cells are the same, so that this need not be a difference: an end that
                // nothing drives or reads, or a width that the declaration leaves to a parameter.
                open = QStringLiteral("%1 is not connected alike in \"%2\" and \"%3\".")
                           .arg(place, QString::fromLatin1(first), QString::fromLatin1(second));
            }
        }
    };
    look(one, two, first, second);
    look(two, one, second, first);
    return part.result == ProofPart::Refuted ? QString() : open;
}

QString Prover::Private::compareLogic(const QByteArray &first, const QByteArray &second,
                                      ProofPart &part)
{
    QString error = comparePorts(first, second, part);
    if (!error.isEmpty() || part.result == ProofPart::Refuted)
        return error;
    error = yosysScript(second + "-miter", ProofScript::compare(first, second));
    if (!error.isEmpty())
        return error;
    QStringList said;
    error = tool(abc, QString::fromLatin1(second + "-abc.log"),
                 {QStringLiteral("-c"), ProofScript::decide()}, &said);
    if (cancelled || said.isEmpty())
        return error;
    switch (ProofScript::verdictOf(said)) {
    case ProofScript::Verdict::Equal:
        part.result = ProofPart::Proven;
        return {};
    case ProofScript::Verdict::Different:
        part.result = ProofPart::Refuted;
        explain(first, second, part);
        return {};
    case ProofScript::Verdict::Unknown:
        break;
    }
    return error.isEmpty() ? QStringLiteral("ABC decided nothing.") : error;
}

// The first places that differ, and with which values.
void Prover::Private::explain(const QByteArray &first, const QByteArray &second, ProofPart &part)
{
    stage("Looking for a counterexample");
    QByteArray circuitText;
    QByteArray found;
    AndCircuit circuit;
    read(ProofScript::counterexample, &found);
    if (!yosysScript(second + "-places", ProofScript::compareEach(first, second)).isEmpty() ||
        !read(ProofScript::outputs, &circuitText).isEmpty() || !circuit.read(circuitText)) {
        part.reason = QStringLiteral("They differ; where could not be told.");
        return;
    }
    const Counterexample example = counterexampleOf(circuit, found);
    for (const QByteArray &place : example.places)
        tell(part, ProofText::placeOf(place));
    if (example.steps == 0) {
        part.reason = QStringLiteral("They differ; a counterexample was not found.");
        return;
    }
    for (const auto &value : example.values) {
        if (part.counterexample.size() == mostValues) {
            part.counterexample.append(
                QStringLiteral("and %1 more").arg(example.values.size() - mostValues));
            break;
        }
        part.counterexample.append(ProofText::placeOf(value.first) +
                                   QLatin1String(value.second ? " = 1" : " = 0"));
    }
}

namespace
{

// Compares cells that are taken out. Initial values are told in a part of their own, unless that
// is null.
void compareCells(const ProofText::Cells &one, const ProofText::Cells &two, const QString &first,
                  const QString &second, ProofPart &cells, ProofPart *initialValues)
{
    for (auto it = one.begin(); it != one.end(); ++it) {
        const auto other = two.constFind(it.key());
        const QString place = ProofText::placeOf(it.key());
        const QString type = QString::fromUtf8(it->type);
        if (other == two.constEnd()) {
            tell(cells, QStringLiteral("%1 (%2): only in %3").arg(place, type, first));
            continue;
        }
        if (other->type != it->type) {
            tell(cells, QStringLiteral("%1: %2 in %3, %4 in %5")
                            .arg(place, type, first, QString::fromUtf8(other->type), second));
            continue;
        }
        QMap<QByteArray, QByteArray> names = it->parameters;
        for (auto parameter = other->parameters.begin(); parameter != other->parameters.end();
             ++parameter)
            names.insert(parameter.key(), {});
        for (auto parameter = names.begin(); parameter != names.end(); ++parameter) {
            const QByteArray &name = parameter.key();
            const QByteArray is = it->parameters.value(name);
            const QByteArray shall = other->parameters.value(name);
            if (is == shall && it->parameters.contains(name) == other->parameters.contains(name))
                continue;
            ProofPart &part = initialValues && isInitialValue(name) ? *initialValues : cells;
            const int bit = firstBit(is, shall);
            QString text = QStringLiteral("%1 (%2): parameter %3 differs")
                               .arg(place, type, QString::fromUtf8(name));
            if (bit >= 0)
                text +=
                    QStringLiteral(", first in bit %1: %2 in %3, %4 in %5")
                        .arg(QString::number(bit), QString(QLatin1Char(is.at(is.size() - 1 - bit))),
                             first, QString(QLatin1Char(shall.at(shall.size() - 1 - bit))), second);
            else
                text +=
                    QStringLiteral(": %1 in %2, %3 in %4")
                        .arg(is.isEmpty() ? QStringLiteral("its default") : shortened(is), first,
                             shall.isEmpty() ? QStringLiteral("its default") : shortened(shall),
                             second);
            tell(part, text);
        }
    }
    for (auto it = two.begin(); it != two.end(); ++it) {
        if (!one.contains(it.key()))
            tell(cells,
                 QStringLiteral("%1 (%2): only in %3")
                     .arg(ProofText::placeOf(it.key()), QString::fromUtf8(it->type), second));
    }
}

} // namespace

QString Prover::Private::proveVerilog()
{
    stage("Reading the netlist");
    QString error = yosysScript("declarations", ProofScript::declare());
    if (error.isEmpty())
        error = yosysScript("netlist", ProofScript::netlistWhole(job.topModule));
    if (!error.isEmpty())
        return error;
    stage("Reading the sources");
    error = yosysScript("sources", ProofScript::sourcesWhole(m_sources, job.topModule));
    QByteArray texts[7];
    const char *const names[] = {"sources.states",         "netlist.states", "sources.whole",
                                 "netlist.whole",          "sources.cut",    "netlist.cut",
                                 ProofScript::declarations};
    const auto take = [&](int from, int to) {
        for (int i = from; i < to && error.isEmpty(); ++i)
            error = read(names[i], &texts[i]);
        return error;
    };
    if (!take(0, 4).isEmpty())
        return error;

    stage("Comparing ports and cells");
    ProofPart &ports = part("ports");
    const auto shown = [](const QByteArray &port) { return QString::fromLatin1(port); };
    const auto one = ProofText::portsOf(texts[2], "sources");
    const auto two = ProofText::portsOf(texts[3], "netlist");
    for (auto it = one.begin(); it != one.end(); ++it) {
        if (!two.contains(it.key()))
            tell(ports, QString::fromUtf8(it.key()) + QLatin1String(": only in the sources"));
        else if (two.value(it.key()) != it.value())
            tell(ports, QStringLiteral("%1: %2 in the sources, %3 in the netlist")
                            .arg(QString::fromUtf8(it.key()), shown(it.value()),
                                 shown(two.value(it.key()))));
    }
    for (auto it = two.begin(); it != two.end(); ++it) {
        if (!one.contains(it.key()))
            tell(ports, QString::fromUtf8(it.key()) + QLatin1String(": only in the netlist"));
    }
    if (ports.result != ProofPart::Refuted && !one.isEmpty())
        ports.result = ProofPart::Proven;

    const QSet<QByteArray> shared = ProofText::listed(texts[0]) & ProofText::listed(texts[1]);
    error = isolate("sources", "netlist", shared);
    if (!error.isEmpty() || !take(4, 7).isEmpty())
        return error;
    ProofPart &cells = part("cells");
    ProofPart &initialValues = part("initial-values");
    const ProofText::Cells ofSources = ProofText::cellsOf(texts[6], texts[4]);
    const ProofText::Cells ofNetlist = ProofText::cellsOf(texts[6], texts[5]);
    compareCells(ofSources, ofNetlist, QStringLiteral("the sources"), QStringLiteral("the netlist"),
                 cells, &initialValues);
    const bool haveSameCells = cells.result != ProofPart::Refuted;
    if (haveSameCells)
        cells.result = ProofPart::Proven;
    if (initialValues.result != ProofPart::Refuted) {
        initialValues.result = haveSameCells ? ProofPart::Proven : ProofPart::NotDecided;
        if (!haveSameCells)
            initialValues.reason =
                QStringLiteral("Where both have the cell the values are the same.");
    }
    if (ports.result != ProofPart::Proven || !haveSameCells) {
        part("logic").reason =
            QStringLiteral("With other ports or cells there is no logic to compare.");
        return {};
    }
    ProofPart &logic = part("logic");
    logic.reason = QStringLiteral("%1 registers are matched by name; %2 are in the sources only, "
                                  "%3 in the netlist only.")
                       .arg(shared.size())
                       .arg((ProofText::listed(texts[0]) - shared).size())
                       .arg((ProofText::listed(texts[1]) - shared).size());
    stage("Proving the netlist equal to the sources");
    return compareLogic("sources", "netlist", logic);
}

QString Prover::Private::proveVhdl()
{
    stage("Reading the VHDL netlist");
    if (const QString error = version(ghdl); !error.isEmpty())
        return error;
    QByteArray text;
    QString error;
    if (!FileUtils::readFile(job.vhdlNetlist, &text, &error))
        return error;
    error = write(ProofScript::vhdlNetlist, text);
    if (!error.isEmpty())
        return error;
    QStringList said;
    error = tool(ghdl, QStringLiteral("ghdl.log"), ProofScript::ghdlArguments(job.topModule), &said,
                 false);
    if (!error.isEmpty())
        return error;
    QByteArray netlist;
    error = read(ProofScript::netlist, &netlist);
    if (!error.isEmpty())
        return error;
    ProofPart &cells = part("vhdl-cells");
    QString mistake;
    const QByteArray renamed =
        ProofText::calledAsInVerilog(said.join(u'\n').toUtf8(), ProofText::unnamedCells(netlist),
                                     job.topModule.toUtf8(), &mistake);
    if (!mistake.isEmpty()) {
        tell(cells, mistake);
        part("vhdl-logic").reason =
            QStringLiteral("With other cells there is no logic to compare.");
        return {};
    }
    error = write(ProofScript::readByGhdl, renamed);
    if (error.isEmpty())
        error = yosysScript("as-written", ProofScript::netlistsAsWritten(job.topModule));
    if (error.isEmpty())
        error = isolate("verilog", "vhdl", {});
    QByteArray texts[3];
    const char *const names[] = {"verilog.cut", "vhdl.cut", ProofScript::declarations};
    for (int i = 0; i < 3 && error.isEmpty(); ++i)
        error = read(names[i], &texts[i]);
    if (!error.isEmpty())
        return error;
    compareCells(ProofText::cellsOf(texts[2], texts[0]), ProofText::cellsOf(texts[2], texts[1]),
                 QStringLiteral("the Verilog netlist"), QStringLiteral("the VHDL netlist"), cells,
                 nullptr);
    const bool haveSameNames = ProofText::cellsOf(texts[2], texts[0]).keys() ==
                               ProofText::cellsOf(texts[2], texts[1]).keys();
    if (cells.result != ProofPart::Refuted)
        cells.result = ProofPart::Proven;
    if (!haveSameNames) {
        part("vhdl-logic").reason =
            QStringLiteral("With other cells there is no logic to compare.");
        return {};
    }
    stage("Proving the VHDL netlist equal to the Verilog netlist");
    return compareLogic("verilog", "vhdl", part("vhdl-logic"));
}

void Prover::Private::run()
{
    const bool isVhdl = !job.vhdlNetlist.isEmpty() || !job.noVhdl.isEmpty();
    for (const PartRow &row : partTable) {
        if (!row.isVhdl || isVhdl)
            report.parts.append({QLatin1String(row.id),
                                 QLatin1String(row.name),
                                 QLatin1String(row.method),
                                 row.isAssumed ? ProofPart::Assumed : ProofPart::NotTried,
                                 {}});
    }
    report.assumptions = QStringList{
        QStringLiteral("Both sides are read by the same Yosys, and its passes simplify both. A "
                       "fault of its Verilog reader or of one of these passes would be common to "
                       "both, and stay unseen."),
        QStringLiteral("The memories of the sources are brought to block RAM and distributed RAM "
                       "by the steps that the synthesis takes. What is proven is that the netlist "
                       "has the same RAMs, with the same contents, pins and modes; that a RAM does "
                       "what the array of the sources does is not."),
        QStringLiteral("The primitives do what their installed Verilog models say: tables, "
                       "flip-flops and carry chains are opened and compared as logic, block RAMs "
                       "and distributed RAMs are taken out and only compared by parameters and "
                       "pins."),
        QStringLiteral("Black boxes, the processor among them, are the same on both sides. They "
                       "may drive any values, the same on both; their inputs are proven to be the "
                       "same. What is inside is not looked at."),
        QStringLiteral("Registers are matched by name, and may have any value, whether it can be "
                       "reached or not; no reset is presumed, and none of the matched ones is "
                       "said to start at 0. Registers that only one side has (merged or found "
                       "constant) start at 0 where no initial value is given, and follow by "
                       "induction."),
        QStringLiteral("What the sources leave undefined counts as 0: nets that nothing drives, "
                       "and what is left of \"x\" behind Yosys's passes, which may have made use "
                       "of it."),
        QStringLiteral("A flip-flop takes its value in a step in which its clock is active, and a "
                       "step may have any mixture of clocks, the same on both sides; an "
                       "asynchronous reset acts at once. There is no other time: no set-up and "
                       "hold, no glitches, no metastability."),
        QStringLiteral("Of tri-states, data and enable of each driver are compared, not what "
                       "several drivers make of a pin; what is read from a pin may be any value, "
                       "the same on both sides."),
        QStringLiteral("Not covered: timing and constraints, place and route, what the licensed "
                       "blocks do, and the simulation models made of the netlist.")};
    if (isVhdl)
        report.assumptions.append(
            QStringLiteral("The VHDL netlist is read by GHDL; unnamed cells are matched in the "
                           "order in which both netlists have them. That a primitive's VHDL model "
                           "does what its Verilog model does is assumed; simulations of this "
                           "program's tests compare them."));
    QString error = prepare();
    if (error.isEmpty())
        error = version(yosys);
    if (error.isEmpty()) {
        report.tools.append(QStringLiteral("ABC as yosys-abc of this Yosys"));
        error = proveVerilog();
        if (!error.isEmpty())
            close(false, ProofPart::NotDecided, error);
        if (isVhdl && !cancelled) {
            const QString reason = job.vhdlNetlist.isEmpty() ? job.noVhdl : QString();
            if (!reason.isEmpty())
                close(true, ProofPart::NotTried, reason);
            else if (QStandardPaths::findExecutable(QLatin1String(ghdl.program)).isEmpty())
                close(true, ProofPart::NotTried, version(ghdl));
            else if (const QString problem = proveVhdl(); !problem.isEmpty())
                close(true, ProofPart::NotDecided, problem);
        }
    } else {
        close(false, ProofPart::NotTried, error);
        close(true, ProofPart::NotTried, error);
    }
}

Prover::Prover(const ProofJob &job, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, job))
{
}

Prover::~Prover() = default;

bool Prover::run()
{
    d->run();
    return !d->cancelled;
}

void Prover::cancel()
{
    d->cancelled = true;
    if (d->process)
        d->process->stop();
}

ProofReport Prover::report() const
{
    return d->report;
}

} // namespace Synthesis
