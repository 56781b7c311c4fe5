#include "../commands.h"

#include "../environment.h"
#include "../ipcdocument.h"
#include "../output.h"
#include "engine.h"
#include "simulation.h"
#include "simulationreport.h"
#include "terminal.h"
#include "wavewindow.h"

#include <config/optionkeys.h>
#include <core/storagekinds.h>
#include <firmware/itcmfiles.h>
#include <reading/limits.h>
#include <reading/plainfile.h>
#include <simulation/board.h>
#include <simulation/program.h>
#include <simulation/wavesview.h>
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
    QString option;
    QString path;
};

// A file that the board has a block read or write. It stands in the folder of the simulation under
// the name of its plusarg.
struct BoardFile {
    const char *name; // of the plusarg; of the option behind two dashes
    const char *region;
    const char *title; // of the region, for people
    QString SimulateArguments::*path;
    int storage; // number of a kind; -1: none
    bool isResult;
};

constexpr BoardFile boardFiles[] = {
    {"uart0-input", "UART0", "UART0", &SimulateArguments::uart0Input, -1, false},
    {"uart1-input", "UART1", "UART1", &SimulateArguments::uart1Input, -1, false},
    {"eeprom", "I2C", "I2C", &SimulateArguments::eeprom, 0, false},
    {"flash", "SPIFLASH", "SPI-Flash", &SimulateArguments::flash, 1, false},
    {"sd", "SD", "SD card", &SimulateArguments::sd, 2, false},
    {"eeprom-result", "I2C", "I2C", &SimulateArguments::eepromResult, 0, true},
    {"flash-result", "SPIFLASH", "SPI-Flash", &SimulateArguments::flashResult, 1, true},
    {"sd-result", "SD", "SD card", &SimulateArguments::sdResult, 2, true},
};

QString optionOf(const BoardFile &file)
{
    return QLatin1String("--") + QLatin1String(file.name);
}

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
        readDetails();
        const int status = writeResults();
        const QStringList summary = summaryOf(report());
        for (const QString &line : summary)
            printError(line);
        return status;
    }

private:
    bool isOnTerminal() const { return m_arguments.uart0 == QLatin1String("-"); }

    QVector<Target> targets() const
    {
        QVector<Target> list;
        const auto add = [&list](const QString &option, const QString &path) {
            if (!path.isEmpty())
                list.append({option, fullPath(path)});
        };
        add(QStringLiteral("--uart0"), isOnTerminal() ? QString() : m_arguments.uart0);
        add(QStringLiteral("--waves"), m_arguments.waves);
        add(QStringLiteral("--waves"), viewFile());
        for (const QString &report : m_arguments.reports)
            add(QStringLiteral("--report"), report);
        for (const BoardFile &file : boardFiles) {
            if (file.isResult)
                add(optionOf(file), m_arguments.*file.path);
        }
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
        for (const QString &source : m_arguments.sources)
            taken.append(fullPath(source));
        for (const BoardFile &file : boardFiles) {
            if (!file.isResult && !(m_arguments.*file.path).isEmpty())
                taken.append(fullPath(m_arguments.*file.path));
        }
        for (QString &path : taken) {
            if (const QString real = QFileInfo(path).canonicalFilePath(); !real.isEmpty())
                path = real;
        }
        const QVector<Target> list = targets();
        for (const Target &target : list) {
            const QFileInfo info(target.path);
            const QString real = info.canonicalFilePath();
            const QString path = real.isEmpty() ? target.path : real;
            const QString option = target.option;
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
        if (m_map.processor.isBigEndian)
            return {BadInput, quoted(m_document.path) +
                                  QLatin1String(" cannot be simulated: the model of the processor "
                                                "has no big-endian data.")};
        if (!isOnTerminal() && !findRegion(m_map, QStringLiteral("UART0")))
            return {BadInput, quoted(m_document.path) + QLatin1String(" has no UART0.")};
        const auto window = waveArguments(m_arguments, m_map);
        if (!window)
            return {WrongUsage, window.reason()};
        m_waveArguments = *window;
        for (const QString &source : m_arguments.sources) {
            const QFileInfo info(source);
            if (!info.isFile() || !info.isReadable())
                return {BadInput, quoted(fullPath(source)) + QLatin1String(" cannot be read.")};
        }
        return checkBoardFiles();
    }

    Stop checkBoardFiles() const
    {
        for (const BoardFile &file : boardFiles) {
            if ((m_arguments.*file.path).isEmpty())
                continue;
            if (!findRegion(m_map, QLatin1String(file.region)))
                return {BadInput, optionOf(file) + QLatin1String(": ") + quoted(m_document.path) +
                                      QLatin1String(" has no ") + QLatin1String(file.title) + u'.'};
            if (file.isResult)
                continue;
            const QString path = fullPath(m_arguments.*file.path);
            const QFileInfo info(path);
            if (!info.isFile() || !info.isReadable())
                return {BadInput, optionOf(file) + u' ' + quoted(path) +
                                      QLatin1String(" cannot be read, or is no plain file.")};
            if (file.storage < 0)
                continue;
            const std::string mistake = CortexM1::storageMistake(
                CortexM1::storageKinds[file.storage], quint64(info.size()));
            if (!mistake.empty())
                return {BadInput, optionOf(file) + u' ' + quoted(path) + u' ' +
                                      QString::fromStdString(mistake) + u'.'};
        }
        if (!m_arguments.sdResult.isEmpty() && m_arguments.sd.isEmpty())
            return {WrongUsage, QStringLiteral("--sd-result needs --sd: there is no card else.")};
        for (const char *name : {"UART0", "UART1"}) {
            if (m_arguments.crossesUarts && !findRegion(m_map, QLatin1String(name)))
                return {BadInput, QLatin1String("--uarts crossed: ") + quoted(m_document.path) +
                                      QLatin1String(" has no ") + QLatin1String(name) + u'.'};
        }
        return {};
    }

    // The board reads the user's own files, by links that every tool can name.
    Stop linkBoardFiles() const
    {
        for (const BoardFile &file : boardFiles) {
            const QString path = m_arguments.*file.path;
            if (!file.isResult && !path.isEmpty() &&
                !QFile::link(fullPath(path),
                             m_simulation->folder() + u'/' + QLatin1String(file.name)))
                return {Failed, QLatin1String("A link in \"") + m_simulation->folder() +
                                    QLatin1String("\" could not be made.")};
        }
        return {};
    }

    Stop build()
    {
        QByteArray image;
        if (m_arguments.sources.isEmpty()) {
            if (const Stop stop = readProgram(m_arguments.firmware, &image); stop.status != Done)
                return stop;
        }
        if (const Stop stop = findTools(); stop.status != Done)
            return stop;
        m_simulation = std::make_unique<Simulation>();
        if (m_simulation->folder().isEmpty())
            return {Failed, m_simulation->problem()};
        if (const Stop stop = linkBoardFiles(); stop.status != Done)
            return stop;
        const auto made = m_arguments.sources.isEmpty()
                              ? failedUnless(m_simulation->write(programFile(), image))
                              : compileProgram();
        if (made.status != Done)
            return made;
        m_places = SourcePlaces(programBytes());
        if (!m_arguments.waves.isEmpty()) {
            const auto written =
                m_simulation->write(namesFile(), wavesNames(m_map, m_places.functions()));
            if (!written)
                return {Failed, written.reason()};
        }
        return compileDesign();
    }

    static QString programFile() { return QStringLiteral("program.elf"); }

    static QString namesFile() { return QStringLiteral("names.txt"); }

    // Beside the waves; empty without them.
    QString viewFile() const
    {
        const QFileInfo info(m_arguments.waves);
        const QString name =
            info.suffix() == QLatin1String("fst") ? info.completeBaseName() : info.fileName();
        return m_arguments.waves.isEmpty() ? QString()
                                           : info.path() + u'/' + name + QLatin1String(".gtkw");
    }

    static QString statisticsFile() { return QStringLiteral("statistics.txt"); }

    static Stop failedUnless(const Utils::Result<void> &result)
    {
        return result ? Stop{} : Stop{Failed, result.reason()};
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
        QStringList arguments = {QLatin1String("firmware=") + programFile(),
                                 QStringLiteral("timeout=%1").arg(m_arguments.timeout)};
        arguments.append(QLatin1String("statistics=") + statisticsFile());
        if (!m_arguments.waves.isEmpty())
            arguments += {QStringLiteral("waves=waves.fst"), QLatin1String("names=") + namesFile()};
        arguments += m_waveArguments;
        if (m_arguments.crossesUarts)
            arguments.append(QStringLiteral("uarts=crossed"));
        for (const BoardFile &file : boardFiles) {
            if (!(m_arguments.*file.path).isEmpty())
                arguments.append(QLatin1String(file.name) + u'=' + QLatin1String(file.name));
        }
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
        for (const char *name : {"i2c_memory.v", "spi_flash.v", "sd_card.v"}) {
            QByteArray text;
            const QString path = m_environment.dataFolder() + QLatin1String("/simulation/board/") +
                                 QLatin1String(name);
            if (!Utils::FileUtils::readFile(path, &text, &error))
                return {Failed, error};
            design.board += '\n' + text;
        }
        return failedUnless(m_engine->build(*m_simulation, design));
    }

    // A simulator that was stopped has written none.
    void readDetails()
    {
        const QString folder = m_simulation->folder() + u'/';
        QByteArray bytes;
        QString error;
        if (!Reading::readPlainFile(folder + statisticsFile(), Reading::Limits::toolLog, &bytes,
                                    &error))
            return;
        const auto run = readRunStatistics(bytes);
        if (!run)
            return;
        m_details = runDetails(m_map, *run, m_places, m_simulation->folder());
    }

    // What stands in the simulation's folder; nothing if it is not there.
    QByteArray programBytes() const
    {
        QByteArray bytes;
        QString error;
        return Reading::readPlainFile(m_simulation->folder() + u'/' + programFile(),
                                      Reading::Limits::firmwareImage, &bytes, &error)
                   ? bytes
                   : QByteArray();
    }

    bool writeWaves(QString *error) const
    {
        const QString waves = m_simulation->folder() + QLatin1String("/waves.fst");
        const QString file = fullPath(m_arguments.waves);
        if (!m_waveArguments.isEmpty() && !QFileInfo::exists(waves)) {
            printError(quoted(file) + QLatin1String(" is not written: the part of the run that "
                                                    "was asked for has not begun."));
            return true;
        }
        if (!Utils::FileUtils::copyFile(waves, file, error))
            return false;
        // One that somebody has saved from GTKWave is left as it is.
        const QString view = fullPath(viewFile());
        QByteArray old;
        QString reason;
        const bool isOurs =
            !QFileInfo::exists(view) ||
            (Reading::readPlainFile(view, Reading::Limits::memoryFile, &old, &reason) &&
             isWavesView(old));
        return !isOurs || Utils::FileUtils::writeFile(view, wavesView(m_map, file, view), error);
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
        if (!m_arguments.waves.isEmpty() && m_end.result != SimulationEnd::Cancelled)
            check(writeWaves(&error));
        for (const BoardFile &file : boardFiles) {
            const QString path = m_arguments.*file.path;
            if (file.isResult && !path.isEmpty() && m_end.result != SimulationEnd::Cancelled)
                check(Utils::FileUtils::copyFile(m_simulation->folder() + u'/' +
                                                     QLatin1String(file.name),
                                                 fullPath(path), &error));
        }
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
    QStringList m_waveArguments; // of a part of the run
    SourcePlaces m_places;
    std::optional<RunDetails> m_details;
};

} // namespace

int runSimulate(Environment &environment, const SimulateArguments &arguments)
{
    return SimulateRun(environment, arguments).run();
}

} // namespace Cli
