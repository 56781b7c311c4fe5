// Runs the synthesis of "orixm1 generate" on one module, and prints what it takes of a device:
// "LUT4 …, flip-flops …, distributed RAM …, block RAM …, carry …, depth …" (numbers only, in this
// order, separated by blanks).
//
//   synthesizemodule MODULE OUTPUT-FOLDER [NAME=VALUE…] SOURCE…
//
// The first source is that of the module; its parameters have their default values, or VALUE.
// Leaves the netlists as OUTPUT-FOLDER/MODULE.vg and .vhg. LUT4 counts the tables alone;
// distributed RAM are the memories of 16 words of 4 bits in tables' cells (four each). The depth is
// the number of tables, reads of distributed RAM included, on the longest way between flip-flops,
// block RAMs and pins; carries within a chain count nothing.

#include <synthesis/runner.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace
{

[[noreturn]] void fail(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::exit(1);
}

Synthesis::RunReport synthesized(const QString &top, const QString &folder,
                                 const QStringList &sources)
{
    Synthesis::Job job;
    job.outputDir = folder;
    job.ipName = top;
    job.targetName = top;
    job.options = {{QStringLiteral("top_module"), top},
                   {QStringLiteral("source_files"), sources},
                   {QStringLiteral("write_vhdl"), true},
                   {QStringLiteral("disable_io"), true}};
    Synthesis::Runner runner;
    runner.setTool(Synthesis::Tool::TarvoSynthesis);
    runner.setJob(job);
    QObject::connect(&runner, &Synthesis::Runner::finished, qApp, &QCoreApplication::exit);
    runner.start();
    if (QCoreApplication::exec() != 0)
        fail(top + QStringLiteral(": ") + runner.errorMsg() + u'\n' +
             runner.detailErrorMsgs().join(u'\n'));
    return runner.report();
}

// What a way through a cell costs; nothing is a cell where ways end.
int weight(const QString &type)
{
    if (type.startsWith(QLatin1String("TV_LUT")) || type == QLatin1String("TV_RAMD"))
        return 1;
    return type == QLatin1String("TV_CARRY") || type == QLatin1String("TV_TBUF") ? 0 : -1;
}

// Only the address of a read goes through a distributed RAM at once.
bool isThrough(const QString &type, const QString &port)
{
    return type != QLatin1String("TV_RAMD") || port == QLatin1String("RADDR");
}

// A copy of the source in which a parameter has another default value.
QString withParameters(const QString &source, const QStringList &assignments, const QString &folder)
{
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly))
        fail(file.errorString());
    QString text = QString::fromUtf8(file.readAll());
    const int from = text.indexOf(QLatin1String("\nmodule ")) + 1;
    const int to = text.indexOf(QLatin1String(") ("), from);
    QString declarations = text.mid(from, to - from);
    for (const QString &assignment : assignments) {
        const QString name = assignment.section(u'=', 0, 0);
        const QRegularExpression declaration(QStringLiteral("(\\b%1\\s*=\\s*)[^,\\s]+").arg(name));
        if (declarations.count(declaration) != 1)
            fail(source + QStringLiteral(" has no parameter ") + name);
        declarations.replace(declaration, QStringLiteral("\\1") + assignment.section(u'=', 1));
    }
    text.replace(from, to - from, declarations);
    const QString path = QDir(folder).filePath(QFileInfo(source).fileName());
    QFile copy(path);
    if (!copy.open(QIODevice::WriteOnly) || copy.write(text.toUtf8()) < 0)
        fail(copy.errorString());
    return path;
}

class Depth
{
public:
    explicit Depth(const QJsonObject &cells)
    {
        for (const QJsonValue &value : cells) {
            const QJsonObject cell = value.toObject();
            const QString type = cell.value(QLatin1String("type")).toString();
            if (weight(type) < 0)
                continue;
            const int index = m_cells.size();
            m_cells << Cell{weight(type), {}, 0, Unseen};
            const QJsonObject directions = cell.value(QLatin1String("port_directions")).toObject();
            const QJsonObject ports = cell.value(QLatin1String("connections")).toObject();
            for (auto port = ports.begin(); port != ports.end(); ++port) {
                const bool isOutput =
                    directions.value(port.key()).toString() == QLatin1String("output");
                const QJsonArray bits = port.value().toArray();
                for (const QJsonValue &bit : bits) {
                    if (!bit.isDouble())
                        continue;
                    if (isOutput)
                        m_drivers.insert(bit.toInt(), index);
                    else if (isThrough(type, port.key()))
                        m_cells.last().inputs << bit.toInt();
                }
            }
        }
    }

    int longest()
    {
        int result = 0;
        for (int cell = 0; cell < m_cells.size(); ++cell)
            result = std::max(result, behind(cell));
        return result;
    }

private:
    enum State { Unseen, Open, Known };
    struct Cell {
        int weight;
        QVector<int> inputs;
        int depth;
        State state;
    };

    int behind(int index)
    {
        if (m_cells.at(index).state == Open)
            fail(QStringLiteral("a loop of logic"));
        if (m_cells.at(index).state == Unseen) {
            m_cells[index].state = Open;
            int deepest = 0;
            for (const int bit : qAsConst(m_cells.at(index).inputs)) {
                const auto driver = m_drivers.constFind(bit);
                if (driver != m_drivers.constEnd())
                    deepest = std::max(deepest, behind(*driver));
            }
            m_cells[index].depth = deepest + m_cells.at(index).weight;
            m_cells[index].state = Known;
        }
        return m_cells.at(index).depth;
    }

    QVector<Cell> m_cells;
    QHash<int, int> m_drivers;
};

QJsonObject cellsOf(const QString &netlist, const QString &top)
{
    const QTemporaryDir dir;
    const QString json = dir.filePath(QStringLiteral("netlist.json"));
    QProcess yosys;
    yosys.start(QStringLiteral("yosys"),
                {QStringLiteral("-q"), QStringLiteral("-p"),
                 QStringLiteral("read_verilog -lib %1; read_verilog %2; hierarchy -top %3; "
                                "write_json %4")
                     .arg(QStringLiteral(PRIMITIVES), netlist, top, json)});
    if (!yosys.waitForFinished(-1) || yosys.exitCode() != 0)
        fail(QString::fromUtf8(yosys.readAllStandardError()));
    QFile file(json);
    if (!file.open(QIODevice::ReadOnly))
        fail(file.errorString());
    return QJsonDocument::fromJson(file.readAll())
        .object()
        .value(QLatin1String("modules"))
        .toObject()
        .value(top)
        .toObject()
        .value(QLatin1String("cells"))
        .toObject();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() < 4)
        fail(QStringLiteral("synthesizemodule MODULE OUTPUT-FOLDER [NAME=VALUE...] SOURCE..."));
    const QString top = arguments.at(1);
    const QString folder = QFileInfo(arguments.at(2)).absoluteFilePath();
    if (!QDir().mkpath(folder))
        fail(folder + QStringLiteral(" cannot be made"));
    QStringList sources, assignments;
    for (const QString &argument : arguments.mid(3)) {
        if (argument.contains(u'='))
            assignments << argument;
        else
            sources << QFileInfo(argument).absoluteFilePath();
    }
    const QTemporaryDir copies;
    if (!assignments.isEmpty() && !sources.isEmpty())
        sources[0] = withParameters(sources[0], assignments, copies.path());

    const Synthesis::RunReport report = synthesized(top, folder, sources);
    const auto used = [&report](const char *resource) {
        for (const Synthesis::ResourceUse &use : report.resources) {
            if (use.resource == QLatin1String(resource))
                return use.used;
        }
        fail(QStringLiteral("the report has no ") + QLatin1String(resource));
    };
    int distributed = 0;
    for (const Synthesis::CellCount &cell : report.cells) {
        if (cell.cell == QLatin1String("TV_RAMD"))
            distributed = cell.count;
    }
    const QJsonObject cells = cellsOf(folder + u'/' + top + QStringLiteral(".vg"), top);
    std::printf("%d %d %d %d %d %d\n", used("LUT4") - 4 * distributed, used("Flip-flops"),
                distributed, used("Block RAM"), used("Carry"), Depth(cells).longest());
    return 0;
}
