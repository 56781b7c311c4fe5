#include "simulation.h"

#include "terminal.h"

#include <synthesis/toolrun.h>
#include <utils/fileutils.h>

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUuid>

namespace Cli
{

namespace
{

constexpr int mostUartBytes = 16 << 20; // kept of each UART
constexpr QChar eventMark(0x1E);

// Reads what a board prints (boardOf()): events, and between them what the program says.
class BoardReader
{
public:
    BoardReader(const QString &mark, bool showsUart, Terminal &terminal, SimulationEnd &end)
        : m_begin(QString(eventMark) + mark + u' ')
        , m_showsUart(showsUart)
        , m_terminal(terminal)
        , m_end(end)
    {
    }

    void takeLine(const QString &line)
    {
        const int place = line.indexOf(m_begin);
        if (line.startsWith(QLatin1String("FST info: dumpfile ")))
            return;
        if (line.contains(QLatin1String("libunicorn.so")))
            m_lacksLibrary = true;
        if (place < 0) {
            takeText(line, true);
            return;
        }
        if (place > 0)
            takeText(line.left(place), false);
        takeEvent(line.mid(place + m_begin.size()).split(u' '));
    }

    // What is held back belongs to nobody else.
    void finish() { release(); }

    bool hasEnded() const { return m_hasEnded; }
    bool lacksLibrary() const { return m_lacksLibrary; }

private:
    // The model's verdict is a line like others, or the end of one: it is known as such only when
    // the board's event follows.
    void takeText(const QString &text, bool endsLine)
    {
        release();
        static const QRegularExpression verdict(QStringLiteral("(PASS|FAIL: .*)$"));
        if (endsLine && verdict.match(text).hasMatch()) {
            m_held = text;
            m_isHeld = true;
        } else {
            m_terminal.putText(text, endsLine);
        }
    }

    void release()
    {
        if (m_isHeld)
            m_terminal.putText(m_held, true);
        m_isHeld = false;
    }

    void takeVerdict()
    {
        if (!m_isHeld)
            return;
        const int failed = m_held.lastIndexOf(QLatin1String("FAIL: "));
        const int from = failed >= 0 ? failed : m_held.size() - 4;
        m_terminal.putText(m_held.left(from), from > 0);
        if (failed >= 0)
            m_end.reason = m_held.mid(failed + 6);
        m_isHeld = false;
    }

    void takeEvent(const QStringList &words)
    {
        const QString kind = words.first();
        const auto word = [&words](int i) { return i < words.size() ? words.at(i) : QString(); };
        if (kind == QLatin1String("done"))
            takeVerdict();
        release();
        if (kind == QLatin1String("uart")) {
            takeByte(word(1).toInt(), char(word(2).toUInt(nullptr, 16)));
        } else if (kind == QLatin1String("lockup")) {
            if (m_end.lockedUpAt < 0)
                m_end.lockedUpAt = word(1).toLongLong();
        } else if (kind == QLatin1String("empty")) {
            m_end.emptyBlocks.append(word(1).mid(int(sizeof "board.dut")));
        } else if (kind == QLatin1String("end")) {
            m_hasEnded = true;
            m_end.result = word(1) == QLatin1String("passed")    ? SimulationEnd::Passed
                           : word(1) == QLatin1String("timeout") ? SimulationEnd::TimeLimit
                                                                 : SimulationEnd::Failed;
            m_end.cycles = word(2).toULongLong();
        }
    }

    void takeByte(int uart, char byte)
    {
        ++m_end.uartBytes[uart];
        QByteArray &sent = m_end.uarts[uart];
        if (sent.size() < mostUartBytes)
            sent.append(byte);
        if (uart == 0 && m_showsUart)
            m_terminal.putUart(byte);
    }

    const QString m_begin;
    const bool m_showsUart;
    Terminal &m_terminal;
    SimulationEnd &m_end;
    QString m_held;
    bool m_isHeld = false;
    bool m_hasEnded = false;
    bool m_lacksLibrary = false;
};

} // namespace

Simulation::Simulation()
    : m_folder(QDir(QDir::tempPath()).absolutePath() + QLatin1String("/orixm1-simulate-XXXXXX"))
{
    connect(&m_interrupt, &Utils::Interrupt::received, this, [this] { m_isCancelled = true; });
    if (!m_folder.isValid())
        m_problem = QLatin1String("A folder in \"") + QDir::tempPath() +
                    QLatin1String("\" could not be made: ") + m_folder.errorString() + u'.';
    else if (!QDir(m_folder.path()).mkdir(QStringLiteral("tmp")))
        m_problem = QLatin1String("A folder in \"") + m_folder.path() +
                    QLatin1String("\" could not be made.");
}

QString Simulation::folder() const
{
    return m_problem.isEmpty() ? m_folder.path() : QString();
}

Utils::Result<QString> Simulation::findTool(const char *program, const char *package)
{
    const QString name = QLatin1String(program);
    const QString path = QStandardPaths::findExecutable(name);
    if (path.isEmpty())
        return Utils::Failure{QLatin1String("No program \"") + name +
                              QLatin1String("\" was found on PATH; the Debian package ") +
                              QLatin1String(package) + QLatin1String(" has it.")};
    return QFileInfo(path).absoluteFilePath();
}

Utils::Result<void> Simulation::runTool(const QString &name, const QString &path,
                                        const QStringList &arguments, const LineTaker &takeLine)
{
    Synthesis::ToolRun run({name, path, arguments, folder()});
    QEventLoop loop;
    connect(&run, &Synthesis::ToolRun::lineReceived, &loop, takeLine);
    connect(&run, &Synthesis::ToolRun::ended, &loop, &QEventLoop::quit);
    connect(&m_interrupt, &Utils::Interrupt::received, &run, &Synthesis::ToolRun::stop);
    run.start();
    loop.exec();
    if (m_isCancelled)
        return Utils::Failure{QString()};
    if (!run.failure().isEmpty())
        return Utils::Failure{run.failure()};
    return {};
}

Utils::Result<void> Simulation::write(const QString &path, const QByteArray &bytes) const
{
    const QString full = folder() + u'/' + path;
    QString error;
    if (!Utils::FileUtils::makePath(QFileInfo(full).absolutePath(), &error) ||
        !Utils::FileUtils::writeFile(full, bytes, &error))
        return Utils::Failure{error};
    return {};
}

Utils::Result<void> Simulation::compile(const QString &iverilog, const Design &design)
{
    // The compiler gets plain names, whatever the folders are called.
    QStringList folders;
    const auto staged = [&](const QString &source) {
        const QFileInfo info(source);
        int index = folders.indexOf(info.absolutePath());
        if (index < 0) {
            index = folders.size();
            folders.append(info.absolutePath());
        }
        return QStringLiteral("sources%1/%2").arg(QString::number(index), info.fileName());
    };
    QStringList files;
    for (const QString &source : design.sources)
        files.append(staged(source));
    QStringList arguments = {
        QStringLiteral("-g2012"),    QStringLiteral("-s"),
        QStringLiteral("board"),     QStringLiteral("-o"),
        QStringLiteral("board.vvp"), QLatin1String("-I") + design.includeFolder};
    for (int i = 0; i < folders.size(); ++i) {
        const QString link = QStringLiteral("sources%1").arg(i);
        if (!QFile::link(folders.at(i), folder() + u'/' + link))
            return Utils::Failure{QLatin1String("A link in \"") + folder() +
                                  QLatin1String("\" could not be made.")};
        arguments.append(QLatin1String("-I") + link);
    }
    if (!QFile::link(design.modelFolder, folder() + QLatin1String("/model")))
        return Utils::Failure{QLatin1String("A link in \"") + folder() +
                              QLatin1String("\" could not be made.")};
    if (const auto written = write(QStringLiteral("board.v"), design.board); !written)
        return Utils::Failure{written.reason()};
    arguments += files;
    arguments += {QStringLiteral("model/cortex_m1_core_isa.v"), QStringLiteral("board.v")};

    QString said;
    const auto result = runTool(QStringLiteral("Icarus Verilog"), iverilog, arguments,
                                [&said](const QString &line) {
                                    if (said.size() < 1 << 16)
                                        said += line + u'\n';
                                });
    if (!result)
        return Utils::Failure{m_isCancelled ? QString() : QString(said + result.reason())};
    return {};
}

SimulationEnd Simulation::play(const QString &vvp, quint64 timeout, bool waves, bool showsUart,
                               Terminal &terminal)
{
    SimulationEnd end;
    const QString mark = QUuid::createUuid().toString(QUuid::Id128).left(16);
    BoardReader reader(mark, showsUart, terminal, end);
    QStringList arguments = {QStringLiteral("-n"),       QStringLiteral("-i"),
                             QStringLiteral("-M"),       QStringLiteral("model"),
                             QStringLiteral("-m"),       QStringLiteral("cortexm1core"),
                             QStringLiteral("board.vvp")};
    if (waves)
        arguments += {QStringLiteral("-fst"), QStringLiteral("+waves=waves.fst")};
    arguments += {QStringLiteral("+firmware=program.elf"), QLatin1String("+mark=") + mark,
                  QStringLiteral("+timeout=%1").arg(timeout)};
    const auto result = runTool(QStringLiteral("The simulation"), vvp, arguments,
                                [&reader](const QString &line) { reader.takeLine(line); });
    reader.finish();
    if (wasCancelled()) {
        end.result = SimulationEnd::Cancelled;
    } else if (!result || !reader.hasEnded()) {
        end.result = SimulationEnd::Failed;
        end.reason = result ? QStringLiteral("the simulation has ended by itself")
                            : result.reason().chopped(1);
        if (reader.lacksLibrary())
            end.reason += QLatin1String("; the Debian package libunicorn2 has the library");
    }
    return end;
}

} // namespace Cli
