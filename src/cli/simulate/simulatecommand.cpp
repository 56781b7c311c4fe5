#include "simulatearguments.h"

#include "../environment.h"
#include "../ipcdocument.h"
#include "../output.h"
#include "buildcache.h"
#include "engine.h"
#include "livelistener.h"
#include "netlist.h"
#include "outside.h"
#include "reportforms.h"
#include "simulation.h"
#include "simulationreport.h"
#include "terminal.h"
#include "wavewindow.h"

#include <config/optionkeys.h>
#include <config/optionvalue.h>
#include <core/storagekinds.h>
#include <firmware/itcmfiles.h>
#include <reading/limits.h>
#include <reading/plainfile.h>
#include <rules/generationfolder.h>
#include <rules/itcmcontents.h>
#include <simulation/board.h>
#include <simulation/program.h>
#include <simulation/wavesview.h>
#include <utils/boundedfile.h>
#include <utils/fileutils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

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
        , m_listener(arguments.live ? std::unique_ptr<Listener>(std::make_unique<LiveListener>())
                                    : std::make_unique<Terminal>(shownUart()))
    {
    }

    int run()
    {
        Stop stop = prepare();
        if (stop.status == Done && !m_arguments.writeBoard.isEmpty())
            return writeBoard();
        if (stop.status == Done)
            stop = build();
        if (stop.status != Done)
            return giveUp(stop);
        m_listener->stageBegun(Stage::Run);
        m_end = m_simulation->play(*m_engine, plusArguments(), *m_listener);
        m_outside->close();
        m_end.isScript = isScript();
        explainEnd();
        readDetails();
        tellPlaces();
        const int status = writeResults();
        m_listener->ended(
            {m_end.result, status, reasonOf(m_end), m_end.cycles, summaryOf(report())});
        return status;
    }

private:
    bool isScript() const { return !m_arguments.script.isEmpty(); }

    // What the summary says of places, for those who want to go there.
    void tellPlaces()
    {
        if (!m_details)
            return;
        const auto tell = [this](Severity severity, const QString &text, const RunPlace &place) {
            if (!place.source.file.isEmpty())
                m_listener->toldAt(severity, text, place.source.file, place.source.line);
        };
        for (const auto &error : qAsConst(m_details->errors))
            tell(Severity::Warning, QLatin1String("Bus error: ") + busErrorText(error),
                 error.place);
        for (const auto &fault : qAsConst(m_details->faults))
            tell(Severity::Warning, QLatin1String("Hard fault: ") + fault.cause, fault.place);
        if (const RunPlace *place = failurePlaceOf(report()))
            tell(Severity::Error, reasonOf(m_end), *place);
    }

    int giveUp(const Stop &stop)
    {
        Outcome outcome;
        outcome.status = stop.status;
        if (m_simulation && m_simulation->wasCancelled()) {
            outcome.result = SimulationEnd::Cancelled;
            outcome.status = Cancelled;
            outcome.lines = QStringList{QStringLiteral("Cancelled.")};
        } else if (!stop.message.isEmpty()) {
            tellFailure(stop.message);
        }
        m_listener->ended(outcome);
        return outcome.status;
    }

    // A failure may end in what a compiler has said.
    void tellFailure(const QString &text)
    {
        if (!m_arguments.live) {
            m_listener->told(Severity::Error, text);
            return;
        }
        const QStringList lines = text.split(u'\n');
        for (const QString &line : lines)
            m_listener->compilerSaid(line);
    }

    int writeBoard()
    {
        const QString path = fullPath(m_arguments.writeBoard);
        QString error = quoted(path) + QLatin1String(" exists already.");
        QByteArray text;
        if (const Stop stop = makeBoard(&text); stop.status != Done)
            return giveUp(stop);
        if (!QFileInfo::exists(path) && Utils::FileUtils::writeFile(path, text, &error)) {
            printLine(path);
            return Done;
        }
        return giveUp({Failed, error});
    }

    // The board of the configuration, with the devices that stand on it.
    Stop makeBoard(QByteArray *board) const
    {
        *board = boardOf(m_map);
        for (const char *name : {"i2c_memory.v", "spi_flash.v", "sd_card.v"}) {
            QByteArray text;
            QString error;
            const QString path = m_environment.dataFolder() + QLatin1String("/simulation/board/") +
                                 QLatin1String(name);
            if (!Utils::FileUtils::readFile(path, &text, &error))
                return {Failed, error};
            *board += '\n' + text;
        }
        return {};
    }

    // What only the command knows of the reason.
    void explainEnd()
    {
        if (m_end.brokenRule)
            m_end.reason = brokenRuleText(*m_end.brokenRule);
        if (!m_arguments.board.isEmpty() && m_end.hasEndedByItself)
            m_end.reason = QLatin1String("the board ") + quoted(fullPath(m_arguments.board)) +
                           QLatin1String(" has ended the simulation without telling \"end\" and "
                                         "the result");
    }

    // A clause with bus, block, rule and time.
    QString brokenRuleText(const BrokenRule &broken) const
    {
        const bool isProcessor = broken.bus == QLatin1String("processor");
        const QString bus = isProcessor ? QStringLiteral("AHB") : broken.bus;
        const Region *region = regionAt(m_map, broken.address);
        const QString place = isProcessor                    ? QStringLiteral("the processor")
                              : region && region->bus == bus ? region->name
                              : bus == QLatin1String("AHB")
                                  ? QStringLiteral("the bridge to the APB")
                                  : QStringLiteral("no block");
        QString text = QStringLiteral("at clock cycle %1 the %2 breaks a rule at %3")
                           .arg(m_end.cycles)
                           .arg(bus, place);
        if (!isProcessor)
            text += QLatin1String(" (0x") +
                    QString::number(broken.address, 16).toUpper().rightJustified(8, u'0') + u')';
        return text + QLatin1String(": ") + broken.rule;
    }

    // The number of the UART that is on the terminal; -1: none.
    int shownUart() const
    {
        return m_arguments.uart0 == QLatin1String("-")   ? 0
               : m_arguments.uart1 == QLatin1String("-") ? 1
                                                         : -1;
    }

    // The file that takes what a UART sends; empty: none.
    QString uartFile(int number) const
    {
        const QString &place = number == 0 ? m_arguments.uart0 : m_arguments.uart1;
        return place == QLatin1String("-") || place == QLatin1String("pty") ? QString() : place;
    }

    Stop checkUsage() const
    {
        const auto wrong = [](const char *text) {
            return Stop{WrongUsage, QString::fromUtf8(text)};
        };
        if (!m_arguments.writeBoard.isEmpty())
            return m_arguments.hasProgram || m_arguments.live
                       ? wrong(
                             "--write-board simulates nothing: it takes no program and no --live.")
                       : Stop{};
        if (!m_arguments.hasProgram && m_arguments.tcm != QLatin1String("rtl"))
            return wrong(
                "A program is needed: --c, --firmware or --script; or --tcm rtl, with which the "
                "program is what the instruction memory holds from the start.");
        if (m_arguments.gdbPort >= 0 && m_arguments.tcm == QLatin1String("rtl"))
            return wrong("--gdb needs the memories of the model: it does not go with --tcm rtl.");
        if (m_arguments.gdbPort >= 0 && isScript())
            return wrong("--gdb needs a program: it does not go with --script.");
        if (m_arguments.uart0 == QLatin1String("-") && m_arguments.uart1 == QLatin1String("-"))
            return wrong("--uart0 - and --uart1 -: only one UART can be on the terminal.");
        if (m_arguments.live && shownUart() >= 0)
            return wrong("--live tells the bytes of the UARTs on standard output itself: it does "
                         "not go with --uart0 - or --uart1 -.");
        return {};
    }

    QVector<Target> targets() const
    {
        QVector<Target> list;
        const auto add = [&list](const QString &option, const QString &path) {
            if (!path.isEmpty())
                list.append({option, fullPath(path)});
        };
        add(QStringLiteral("--uart0"), uartFile(0));
        add(QStringLiteral("--uart1"), uartFile(1));
        add(QStringLiteral("--write-board"), m_arguments.writeBoard);
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
        QStringList taken = {fullPath(m_arguments.file)};
        if (!m_arguments.firmware.isEmpty())
            taken.append(fullPath(m_arguments.firmware));
        if (!m_arguments.board.isEmpty())
            taken.append(fullPath(m_arguments.board));
        if (isScript())
            taken.append(fullPath(m_arguments.script));
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
        if (const Stop stop = checkUsage(); stop.status != Done)
            return stop;
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
        if (m_arguments.hasProgram || !m_arguments.writeBoard.isEmpty()) {
            // Its contents would count for nothing.
            m_document.options.insert(Key::initializeItcm, false);
        } else if (const Stop stop = checkContents(); stop.status != Done) {
            return stop;
        }
        m_map = systemMap(m_document.options, m_document.device, *description);
        if (m_map.processor.isBigEndian && !isScript())
            return {BadInput, quoted(m_document.path) +
                                  QLatin1String(" cannot be simulated: the model of the processor "
                                                "has no big-endian data.")};
        const auto window = waveArguments(m_arguments, m_map);
        if (!window)
            return {WrongUsage, window.reason()};
        m_waveArguments = *window;
        for (const auto &[name, place] : {std::pair(QStringLiteral("UART0"), m_arguments.uart0),
                                          std::pair(QStringLiteral("UART1"), m_arguments.uart1)}) {
            const bool isDefault = name == QLatin1String("UART0") && place == QLatin1String("-");
            if (!place.isEmpty() && !isDefault && !findRegion(m_map, name))
                return {BadInput,
                        quoted(m_document.path) + QLatin1String(" has no ") + name + u'.'};
        }
        if (!m_arguments.board.isEmpty()) {
            QString reason;
            const QString path = fullPath(m_arguments.board);
            if (!Reading::readPlainFile(path, Reading::Limits::anyFile, &m_board, &reason))
                return {BadInput,
                        quoted(path) + QLatin1String(" cannot be read: ") + reason + u'.'};
        }
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

    QString contentsFolder() const
    {
        const QString named =
            QDir::cleanPath(textOf(m_document.options, Key::itcmInitializationAbsolutePath));
        return QDir(generationFolder(m_document.folder())).absoluteFilePath(named);
    }

    // The instruction memory holds a program from the start.
    Stop checkContents() const
    {
        if (!isOn(m_document.options, Key::internalInstructionMemory) ||
            !isOn(m_document.options, Key::initializeItcm))
            return {BadInput, quoted(m_document.path) +
                                  QLatin1String(" has no program: no --c or --firmware is given, "
                                                "and \"Initialize ITCM\" is off.")};
        OptionMap options = m_document.options;
        options.insert(Key::itcmInitializationAbsolutePath, contentsFolder());
        QStringList lines;
        const QVector<ItcmMistake> mistakes =
            itcmMistakes(options, m_document.device.device(), m_document.folder());
        for (const ItcmMistake &mistake : mistakes)
            lines.append(mistake.text());
        return lines.isEmpty() ? Stop{} : Stop{BadInput, lines.join(u'\n')};
    }

    // Where the tools read it: paths without characters that they may stumble over.
    Stop placeContents(const QString &contents, const QString &generationFolder)
    {
        const QDir folder(contents);
        for (int lane = 0; lane < ItcmFiles::count; ++lane) {
            const QString name = ItcmFiles::fileName(lane);
            QString error;
            for (const QString &place : {m_simulation->folder(), generationFolder}) {
                const QString made = place + QLatin1String("/itcm");
                if (!Utils::FileUtils::makePath(made, &error) ||
                    !Utils::FileUtils::copyFile(folder.filePath(name), made + u'/' + name, &error))
                    return {BadInput, error};
            }
        }
        return {};
    }

    Stop build()
    {
        QByteArray image;
        if (isScript()) {
            if (const Stop stop = checkScript(); stop.status != Done)
                return stop;
        } else if (!m_arguments.firmware.isEmpty()) {
            if (const Stop stop = readProgram(m_arguments.firmware, &image); stop.status != Done)
                return stop;
        }
        if (const Stop stop = findTools(); stop.status != Done)
            return stop;
        m_simulation = std::make_unique<Simulation>();
        if (m_simulation->folder().isEmpty())
            return {Failed, m_simulation->problem()};
        if (auto *live = dynamic_cast<LiveListener *>(m_listener.get()))
            live->setFolder(m_simulation->folder(),
                            {{QStringLiteral("board.v"), fullPath(m_arguments.board)}});
        m_outside = std::make_unique<Outside>(*m_simulation, *m_listener);
        if (const auto opened = m_outside->open(m_arguments); !opened)
            return {Failed, opened.reason()};
        if (const Stop stop = linkBoardFiles(); stop.status != Done)
            return stop;
        m_listener->stageBegun(Stage::Program);
        Stop made;
        if (!m_arguments.sources.isEmpty())
            made = compileProgram();
        else if (!m_arguments.firmware.isEmpty())
            made = failedUnless(m_simulation->write(programFile(), image));
        if (made.status != Done)
            return made;
        m_places = SourcePlaces(programBytes());
        if (!m_arguments.waves.isEmpty()) {
            const auto written =
                m_simulation->write(namesFile(), wavesNames(m_map, m_places.functions()));
            if (!written)
                return {Failed, written.reason()};
        }
        if (m_arguments.gdbPort >= 0)
            m_simulation->expectDebugger(m_arguments.firmware.isEmpty()
                                             ? m_simulation->folder() + u'/' + programFile()
                                             : fullPath(m_arguments.firmware));
        m_listener->stageBegun(Stage::Simulator);
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
        QStringList arguments = {QStringLiteral("timeout=%1").arg(m_arguments.timeout),
                                 QLatin1String("tcm=") + m_arguments.tcm};
        if (!m_arguments.firmware.isEmpty() || !m_arguments.sources.isEmpty())
            arguments.append(QLatin1String("firmware=") + programFile());
        if (isScript())
            arguments.append(QLatin1String("script=") + fullPath(m_arguments.script));
        if (m_arguments.gdbPort >= 0)
            arguments.append(QStringLiteral("gdb=%1").arg(m_arguments.gdbPort));
        arguments += m_outside->plusArguments();
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
                                          "libunicorn-dev, libboost-context-dev, libelf-dev and "
                                          "iverilog are.")};
        }
        return {};
    }

    // What is exported, as one object: it is the same for every program of the configuration.
    Stop compileSoftware(const ProgramBuild &program)
    {
        // Under a debugger the sources have to be found where they stand.
        const bool isKept = m_arguments.gdbPort < 0;
        QStringList arguments = program.softwareArguments;
        QByteArray key =
            "software " + BuildCache::stampOf(m_compiler) + arguments.join(u'\n').toUtf8() + '\n';
        for (const char *variable : {"CPATH", "C_INCLUDE_PATH", "GCC_EXEC_PREFIX"})
            key += qgetenv(variable) + '\n';
        for (const ExportedFile &file : program.files)
            key += file.path.toUtf8() + '\0' + QByteArray::number(file.bytes.size()) + '\0' +
                   file.bytes;
        const QString object = QStringLiteral("software.o");
        const BuildCache cache(BuildCache::usersFolder());
        if (const QByteArray kept = isKept ? cache.find(key) : QByteArray(); !kept.isEmpty())
            return failedUnless(m_simulation->write(object, kept));
        if (isKept)
            arguments.append(QLatin1String("-fdebug-prefix-map=") + m_simulation->folder() + u'=' +
                             programFolder().chopped(1));
        const auto result =
            m_simulation->runTool({QStringLiteral("The compiler"), m_compiler, arguments},
                                  [&](const QString &line) { m_listener->compilerSaid(line); });
        if (!result)
            return {BadInput, result.reason()};
        if (isKept) {
            const auto made = Utils::readBoundedFile(m_simulation->folder() + u'/' + object,
                                                     Reading::Limits::firmwareImage);
            if (made)
                cache.keep(key, *made);
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
        if (const Stop stop = compileSoftware(program); stop.status != Done)
            return stop;
        bool lacksLibrary = false;
        const auto result = m_simulation->runTool(
            {QStringLiteral("The compiler"), m_compiler, program.arguments},
            [&](const QString &line) {
                lacksLibrary = lacksLibrary || line.contains(QLatin1String("cannot find -lc"));
                m_listener->compilerSaid(line);
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
        const QString contents = contentsFolder();
        if (!m_arguments.hasProgram)
            m_document.options.insert(Key::itcmInitializationAbsolutePath, QStringLiteral("itcm"));
        GenerationInput input = generationInput(m_document, m_info, m_simulation->folder());
        if (isNetlist()) {
            input.tool = TARVOORIXM1::Tool::TarvoSynthesis;
            input.language = Language::Verilog;
        }
        const GenerationPlan plan = generationPlan(input);
        if (!m_arguments.hasProgram) {
            if (const Stop stop = placeContents(contents, plan.folder); stop.status != Done)
                return stop;
        }
        QString error;
        const QDir scratch(m_simulation->folder());
        for (const IncludeFile &file : plan.includeFiles) {
            const QByteArray text = (file.lines + QStringList(QString())).join(u'\n').toUtf8();
            const auto written =
                m_simulation->write(scratch.relativeFilePath(plan.pathOf(file)), text);
            if (!written)
                return {Failed, written.reason()};
        }
        Design design;
        design.includeFolders.append(plan.folder);
        if (!m_arguments.board.isEmpty())
            design.includeFolders.append(QFileInfo(fullPath(m_arguments.board)).absolutePath());
        if (isNetlist()) {
            const QString model = m_simulation->folder() + QLatin1String("/netlist/model.v");
            if (!Utils::FileUtils::makePath(QFileInfo(model).absolutePath(), &error))
                return {Failed, error};
            if (const auto made = makeNetlist(*m_simulation, plan, model, *m_listener); !made)
                return {Failed, made.reason()};
            design.sources.append(model);
            design.defines.append(QStringLiteral("HAVE_CortexM1Core"));
        }
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
                if (!isNetlist())
                    design.sources.append(source);
                continue;
            }
            if (isNetlist()) {
                if (const QString folder = QFileInfo(source).absolutePath();
                    !design.includeFolders.contains(folder))
                    design.includeFolders.append(folder);
                static const QRegularExpression module(QStringLiteral("\\bmodule\\s+(\\w+)"));
                design.defines.append(QLatin1String("HAVE_") +
                                      module.match(QString::fromUtf8(text)).captured(1));
            }
            const QString made = QLatin1String("licensed/") + name;
            if (const auto written = m_simulation->write(made, answering); !written)
                return {Failed, written.reason()};
            design.sources.append(m_simulation->folder() + u'/' + made);
        }
        design.modelFolder = m_modelFolder;
        if (!m_arguments.leavesChecksOut) {
            if (const Stop stop = addBusWatch(&design); stop.status != Done)
                return stop;
        }
        if (m_arguments.board.isEmpty()) {
            if (const Stop stop = makeBoard(&design.board); stop.status != Done)
                return stop;
            return failedUnless(m_engine->build(*m_simulation, design));
        }
        design.board = m_board;
        design.hasForeignBoard = true;
        const auto built = m_engine->build(*m_simulation, design);
        if (built)
            return {};
        return {BadInput, quoted(fullPath(m_arguments.board)) +
                              QLatin1String(" does not compile with the subsystem:\n") +
                              built.reason()};
    }

    // The rules of the buses, in the top module. Of a netlist's only the processor's pins are
    // known.
    Stop addBusWatch(Design *design) const
    {
        for (QString &source : design->sources) {
            QByteArray text;
            QString error;
            if (!Utils::FileUtils::readFile(source, &text, &error))
                return {BadInput, error};
            const QByteArray watched = withBusWatch(text);
            if (watched == text)
                continue;
            // What it includes stands where it stood.
            if (const QString folder = QFileInfo(source).absolutePath();
                !design->includeFolders.contains(folder))
                design->includeFolders.append(folder);
            const QString made = QLatin1String("watched/") + QFileInfo(source).fileName();
            if (const auto written = m_simulation->write(made, watched); !written)
                return {Failed, written.reason()};
            source = m_simulation->folder() + u'/' + made;
        }
        const QString folder = m_environment.dataFolder() + QLatin1String("/simulation/checkers/");
        for (const char *name : {"ahb_lite_checker.v", "apb_checker.v", "bus_watch.v"}) {
            const QString path = folder + QLatin1String(name);
            if (!QFileInfo(path).isReadable())
                return {Failed, quoted(path) + QLatin1String(" cannot be read.")};
            design->sources.append(path);
        }
        design->defines +=
            {QStringLiteral("BUS_RULES_OF_BOARD"), QStringLiteral("WATCHED=board.dut")};
        if (isNetlist())
            design->defines.append(QStringLiteral("BUS_WATCH_NETLIST"));
        return {};
    }

    bool isNetlist() const { return m_arguments.model == QLatin1String("netlist"); }

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
        for (const int number : {0, 1}) {
            if (const QString file = uartFile(number); !file.isEmpty())
                check(Utils::FileUtils::writeFile(fullPath(file), m_end.uarts[number], &error));
        }
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
    std::unique_ptr<Listener> m_listener;
    QVariantMap m_info;
    IpcDocument m_document;
    SystemMap m_map;
    std::unique_ptr<Engine> m_engine;
    QString m_compiler;
    QString m_modelFolder;
    QByteArray m_board;
    std::unique_ptr<Simulation> m_simulation;
    std::unique_ptr<Outside> m_outside;
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
