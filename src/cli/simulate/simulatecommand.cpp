#include "../commands.h"

#include "../environment.h"
#include "../ipcdocument.h"
#include "../output.h"
#include "engine.h"
#include "simulation.h"
#include "simulationreport.h"
#include "terminal.h"

#include <config/optionkeys.h>
#include <firmware/itcmfiles.h>
#include <reading/limits.h>
#include <reading/plainfile.h>
#include <simulation/board.h>
#include <simulation/program.h>
#include <utils/fileutils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

QString quoted(const QString &path)
{
    return u'"' + path + u'"';
}

QString fullPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

// Ends the command with a message.
struct Stop {
    int status = Done;
    QString message;
};

// Files that the command writes, by the option that names them.
struct Target {
    const char *option;
    QString path;
};

class SimulateRun
{
public:
    SimulateRun(Environment &environment, const SimulateArguments &arguments)
        : m_environment(environment)
        , m_arguments(arguments)
    {
    }

    int run()
    {
        Stop stop = prepare();
        if (stop.status == Done)
            stop = build();
        if (stop.status != Done) {
            if (m_simulation && m_simulation->wasCancelled())
                stop = {Cancelled, QStringLiteral("Cancelled.")};
            if (!stop.message.isEmpty())
                printError(stop.message);
            return stop.status;
        }
        Terminal terminal(isOnTerminal());
        m_end = m_simulation->play(*m_engine, plusArguments(), terminal);
        m_end.isScript = isScript();
        readDetails();
        const int status = writeResults();
        const QStringList summary = summaryOf(report());
        for (const QString &line : summary)
            printError(line);
        return status;
    }

private:
    bool isScript() const { return !m_arguments.script.isEmpty(); }
    bool isOnTerminal() const { return m_arguments.uart0 == QLatin1String("-"); }

    QVector<Target> targets() const
    {
        QVector<Target> list;
        const auto add = [&list](const char *option, const QString &path) {
            if (!path.isEmpty())
                list.append({option, fullPath(path)});
        };
        add("--uart0", isOnTerminal() ? QString() : m_arguments.uart0);
        add("--waves", m_arguments.waves);
        for (const QString &report : m_arguments.reports)
            add("--report", report);
        return list;
    }

    // Nothing that is read is written, and nothing twice.
    Stop checkTargets() const
    {
        if (m_arguments.uart0.isEmpty())
            return {WrongUsage, QStringLiteral("--uart0 names no file.")};
        QStringList taken = {fullPath(m_arguments.file)};
        if (!m_arguments.firmware.isEmpty())
            taken.append(fullPath(m_arguments.firmware));
        if (isScript())
            taken.append(fullPath(m_arguments.script));
        for (const QString &source : m_arguments.sources)
            taken.append(fullPath(source));
        for (QString &path : taken) {
            if (const QString real = QFileInfo(path).canonicalFilePath(); !real.isEmpty())
                path = real;
        }
        const QVector<Target> list = targets();
        for (const Target &target : list) {
            const QFileInfo info(target.path);
            const QString real = info.canonicalFilePath();
            const QString path = real.isEmpty() ? target.path : real;
            const QString option = QLatin1String(target.option);
            if (taken.contains(path))
                return {WrongUsage, option + u' ' + quoted(target.path) +
                                        QLatin1String(" is read or written already.")};
            if (info.isDir())
                return {Failed,
                        option + u' ' + quoted(target.path) + QLatin1String(" is a folder.")};
            if (!QFileInfo(info.absolutePath()).isDir())
                return {Failed, option + QLatin1String(": there is no folder ") +
                                    quoted(info.absolutePath()) + u'.'};
            taken.append(path);
        }
        return {};
    }

    Stop prepare()
    {
        if (const Stop stop = checkTargets(); stop.status != Done)
            return stop;
        m_info = m_environment.ipInfo();
        if (m_info.isEmpty())
            return {BadInput, {}};
        const auto description = readSystemDescription(m_environment.dataFolder());
        if (!description)
            return {BadInput, description.reason()};
        if (!openForDevice(m_environment, m_arguments.file, &m_document))
            return {BadInput, {}};
        // The program is in the model's own memory.
        m_document.options.insert(Key::initializeItcm, false);
        m_map = systemMap(m_document.options, m_document.device, *description);
        if (m_map.processor.isBigEndian && !isScript())
            return {BadInput, quoted(m_document.path) +
                                  QLatin1String(" cannot be simulated: the model of the processor "
                                                "has no big-endian data.")};
        if (!isOnTerminal() && !findRegion(m_map, QStringLiteral("UART0")))
            return {BadInput, quoted(m_document.path) + QLatin1String(" has no UART0.")};
        for (const QString &source : m_arguments.sources) {
            const QFileInfo info(source);
            if (!info.isFile() || !info.isReadable())
                return {BadInput, quoted(fullPath(source)) + QLatin1String(" cannot be read.")};
        }
        return {};
    }

    Stop build()
    {
        QByteArray image;
        if (isScript()) {
            if (const Stop stop = checkScript(); stop.status != Done)
                return stop;
        } else if (m_arguments.sources.isEmpty()) {
            if (const Stop stop = readProgram(m_arguments.firmware, &image); stop.status != Done)
                return stop;
        }
        if (const Stop stop = findTools(); stop.status != Done)
            return stop;
        m_simulation = std::make_unique<Simulation>();
        if (m_simulation->folder().isEmpty())
            return {Failed, m_simulation->problem()};
        const auto made = isScript() ? Stop{}
                          : m_arguments.sources.isEmpty()
                              ? failedUnless(m_simulation->write(programFile(), image))
                              : compileProgram();
        if (made.status != Done)
            return made;
        return compileDesign();
    }

    static QString programFile() { return QStringLiteral("program.elf"); }

    static QString statisticsFile() { return QStringLiteral("statistics.txt"); }

    static Stop failedUnless(const Utils::Result<void> &result)
    {
        return result ? Stop{} : Stop{Failed, result.reason()};
    }

    // It is read where it stands, as is what it includes.
    Stop checkScript() const
    {
        const QString path = fullPath(m_arguments.script);
        QByteArray bytes;
        QString reason;
        if (!Reading::readPlainFile(path, Reading::Limits::script, &bytes, &reason))
            return {BadInput, quoted(path) + QLatin1String(" cannot be read: ") + reason + u'.'};
        return {};
    }

    // A program that the instruction memory takes.
    Stop readProgram(const QString &file, QByteArray *bytes) const
    {
        const QString path = fullPath(file);
        QString reason;
        if (!Reading::readPlainFile(path, Reading::Limits::firmwareImage, bytes, &reason))
            return {BadInput, quoted(path) + QLatin1String(" cannot be read: ") + reason + u'.'};
        const Utils::Result<FirmwareImage> image = readImage(*bytes, ImageForm::Elf);
        if (!image)
            return {BadInput,
                    quoted(path) + QLatin1String(" cannot be used: ") + image.reason() + u'.'};
        if (const auto files = itcmFiles(*image, m_map); !files)
            return {BadInput,
                    quoted(path) + QLatin1String(" does not fit: ") + files.reason() + u'.'};
        return {};
    }

    QStringList plusArguments() const
    {
        QStringList arguments = {isScript()
                                     ? QLatin1String("script=") + fullPath(m_arguments.script)
                                     : QLatin1String("firmware=") + programFile(),
                                 QStringLiteral("timeout=%1").arg(m_arguments.timeout)};
        arguments.append(QLatin1String("statistics=") + statisticsFile());
        if (!m_arguments.waves.isEmpty())
            arguments.append(QStringLiteral("waves=waves.fst"));
        return arguments;
    }

    Stop findTools()
    {
        m_engine = makeEngine(m_arguments.engine);
        if (const auto found = m_engine->findTools(); !found)
            return {Failed, found.reason()};
        if (!m_arguments.sources.isEmpty()) {
            const auto compiler = Simulation::findTool("arm-none-eabi-gcc", "gcc-arm-none-eabi");
            if (!compiler)
                return {Failed, compiler.reason()};
            m_compiler = *compiler;
        }
        // The build tree and an installation are laid out alike.
        m_modelFolder = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                        QLatin1String("/" ORIXM1_MODEL_FOLDER));
        for (const char *name : {"cortexm1core.vpi", "cortexm1core.so", "cortex_m1_core_isa.v"}) {
            const QString path = m_modelFolder + u'/' + QLatin1String(name);
            if (!QFileInfo(path).isFile())
                return {Failed,
                        QLatin1String("The model of the processor is missing: there is no ") +
                            quoted(path) +
                            QLatin1String("; it is built where the Debian packages "
                                          "libunicorn-dev, libelf-dev and iverilog are.")};
        }
        return {};
    }

    Stop compileProgram()
    {
        QStringList sources;
        for (const QString &source : m_arguments.sources)
            sources.append(fullPath(source));
        const ProgramBuild program = programBuild(m_map, sources);
        for (const ExportedFile &file : program.files) {
            if (const auto written = m_simulation->write(file.path, file.bytes); !written)
                return {Failed, written.reason()};
        }
        bool lacksLibrary = false;
        qint64 said = 0;
        const auto result = m_simulation->runTool(
            {QStringLiteral("The compiler"), m_compiler, program.arguments},
            [&](const QString &line) {
                lacksLibrary = lacksLibrary || line.contains(QLatin1String("cannot find -lc"));
                said += line.size();
                if (said < 1 << 20)
                    printText(stderr, line.toStdString() + '\n');
            });
        if (lacksLibrary)
            return {Failed, QStringLiteral("The compiler has no C library; the Debian package "
                                           "libnewlib-arm-none-eabi has one.")};
        if (!result)
            return {BadInput, result.reason()};
        QByteArray image;
        return readProgram(m_simulation->folder() + u'/' + programFile(), &image);
    }

    Stop compileDesign()
    {
        const GenerationPlan plan =
            generationPlan(generationInput(m_document, m_info, m_simulation->folder()));
        QString error;
        if (!Utils::FileUtils::makePath(plan.folder, &error))
            return {Failed, error};
        for (const IncludeFile &file : plan.includeFiles) {
            if (!Utils::FileUtils::writeLines(plan.pathOf(file), file.lines, &error))
                return {Failed, error};
        }
        Design design;
        design.includeFolders.append(plan.folder);
        design.hasWaves = !m_arguments.waves.isEmpty();
        for (const QString &source : plan.sources) {
            const QString name = QFileInfo(source).fileName();
            if (name == QLatin1String("cortex_m1_core.v"))
                continue;
            QByteArray text;
            if (!Utils::FileUtils::readFile(source, &text, &error))
                return {BadInput, error};
            const QByteArray answering = withAnswers(text);
            if (answering == text) {
                design.sources.append(source);
                continue;
            }
            const QString made = QLatin1String("licensed/") + name;
            if (const auto written = m_simulation->write(made, answering); !written)
                return {Failed, written.reason()};
            design.sources.append(m_simulation->folder() + u'/' + made);
        }
        design.modelFolder = m_modelFolder;
        design.board = boardOf(m_map);
        return failedUnless(m_engine->build(*m_simulation, design));
    }

    // A simulator that was stopped has written none.
    void readDetails()
    {
        const QString folder = m_simulation->folder() + u'/';
        QByteArray bytes;
        QByteArray program;
        QString error;
        if (!Reading::readPlainFile(folder + statisticsFile(), Reading::Limits::toolLog, &bytes,
                                    &error))
            return;
        const auto run = readRunStatistics(bytes);
        if (!run)
            return;
        if (!Reading::readPlainFile(folder + programFile(), Reading::Limits::firmwareImage,
                                    &program, &error))
            program.clear();
        m_details = runDetails(m_map, *run, SourcePlaces(program), m_simulation->folder());
    }

    int writeResults() const
    {
        int status = statusOf(m_end);
        QString error;
        const auto check = [&](bool isWritten) {
            if (isWritten)
                return;
            printError(error);
            if (status == Done)
                status = Failed;
        };
        if (!isOnTerminal())
            check(Utils::FileUtils::writeFile(fullPath(m_arguments.uart0), m_end.uarts[0], &error));
        // What a simulator that was stopped has written is no whole file.
        const QString waves = m_simulation->folder() + QLatin1String("/waves.fst");
        if (!m_arguments.waves.isEmpty() && m_end.result != SimulationEnd::Cancelled)
            check(Utils::FileUtils::copyFile(waves, fullPath(m_arguments.waves), &error));
        for (const QString &file : m_arguments.reports)
            check(Utils::FileUtils::writeFile(fullPath(file), documentOf(report(), file), &error));
        return status;
    }

    SimulationReport report() const { return {m_arguments, m_map, m_end, m_details}; }

    Environment &m_environment;
    const SimulateArguments &m_arguments;
    QVariantMap m_info;
    IpcDocument m_document;
    SystemMap m_map;
    std::unique_ptr<Engine> m_engine;
    QString m_compiler;
    QString m_modelFolder;
    std::unique_ptr<Simulation> m_simulation;
    SimulationEnd m_end;
    std::optional<RunDetails> m_details;
};

} // namespace

int runSimulate(Environment &environment, const SimulateArguments &arguments)
{
    return SimulateRun(environment, arguments).run();
}

} // namespace Cli
