#include "commands.h"
#include "environment.h"
#include "output.h"
#include "simulate/engine.h"
#include "simulate/livelistener.h"

#include <utils/utf8names.h>

#include <CLI/CLI.hpp>

#include <QCoreApplication>
#include <QTextCodec>

#include <algorithm>
#include <fcntl.h>
#include <functional>
#include <sstream>
#include <unistd.h>

namespace
{

QString text(const std::string &utf8)
{
    return QString::fromStdString(utf8);
}

QStringList texts(const std::vector<std::string> &list)
{
    QStringList result;
    for (const std::string &entry : list)
        result.append(text(entry));
    return result;
}

bool isAsked(const char *option, int argc, char *argv[])
{
    return std::find(argv, argv + argc, std::string(option)) != argv + argc;
}

constexpr const char *footer = R"(Exit status:
  0  done
  1  the job failed, or check found an error
  2  wrong usage
  3  unreadable or incompatible input
  124  the time limit of simulate
  130  cancelled)";

int run(int argc, char *argv[])
{
    Cli::Environment environment;
    std::function<int()> command;

    CLI::App app("Configures and generates the subsystem Tarvo_ORIX_M1 from an .ipc file, without "
                 "a display.",
                 "orixm1");
    app.set_version_flag("--version", std::string("orixm1 " ORIXM1_VERSION),
                         "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.set_help_all_flag("--help-all", "Print the help of every command and exit");
    app.fallthrough();
    app.footer(footer);
    std::string dataFolder;
    std::string deviceFolder;
    app.add_option("--data", dataFolder, "Data folder of the IP: descriptor and RTL")
        ->type_name("DIR");
    app.add_option("--devices", deviceFolder, "Folder of device files instead of the built-in ones")
        ->type_name("DIR");

    std::string file;
    std::string outDir;
    bool json = false;
    const auto addFile = [&file](CLI::App *sub) {
        sub->add_option("FILE", file, "Configuration file (.ipc)")->required()->type_name("");
    };
    const auto addJson = [&json](CLI::App *sub) {
        sub->add_flag("--json", json, "Print one JSON object");
    };

    CLI::App *newCommand = app.add_subcommand("new", "Write a configuration file");
    std::string device;
    std::string package;
    std::string speed;
    std::string language;
    std::vector<std::string> settings;
    bool force = false;
    const auto addDevice = [&](CLI::App *sub) {
        sub->add_option("--device", device, "Device id, name or part number")
            ->required()
            ->type_name("ID|NAME|PART");
        sub->add_option("--package", package, "Package, if the device is a name")->type_name("P");
        sub->add_option("--speed", speed, "Speed grade, if the device is a name")->type_name("S");
    };
    addDevice(newCommand);
    newCommand->add_option("--language", language, "Language of the outputs: verilog or vhdl")
        ->type_name("LANGUAGE");
    newCommand
        ->add_option("--set", settings,
                     "Set an option, as listed by \"orixm1 options\"; may be repeated")
        ->type_name("KEY=VALUE")
        ->take_all()
        ->allow_extra_args(false);
    newCommand->add_option("--out", outDir, "Folder that the file is written to")
        ->required()
        ->type_name("DIR");
    const auto addForce = [&](CLI::App *sub) {
        sub->add_flag("--force", force, "Replace an existing file");
    };
    addForce(newCommand);
    addJson(newCommand);
    newCommand->callback([&] {
        command = [&] {
            return Cli::runNew(environment,
                               {text(device), text(package), text(speed), text(language),
                                texts(settings), text(outDir), force, json});
        };
    });

    CLI::App *generateCommand =
        app.add_subcommand("generate", "Write include files, synthesise and collect the outputs");
    bool noSynth = false;
    bool verbose = false;
    addFile(generateCommand);
    const auto addOutDir = [&outDir](CLI::App *sub) {
        sub->add_option("--out", outDir, "Output folder (default: the file's folder)")
            ->type_name("DIR");
    };
    addOutDir(generateCommand);
    generateCommand->add_flag("--no-synth", noSynth, "Stop after include files and source list");
    generateCommand->add_flag(
        "-v,--verbose", verbose,
        "Print the tool's log to standard error; with --check, the differences");
    bool checkFiles = false;
    bool noCache = false;
    CLI::Option *checkFilesFlag = generateCommand->add_flag(
        "--check", checkFiles,
        "Only tell whether the files are fresh, stale, edited, missing or foreign, with exit "
        "status 1 unless all are fresh; writes nothing");
    generateCommand
        ->add_flag("--force", force, "Run the tool even if everything is fresh, or in the cache")
        ->excludes(checkFilesFlag);
    generateCommand->add_flag("--no-cache", noCache,
                              "Neither take results from the user's cache nor put them there");
    addJson(generateCommand);
    generateCommand->callback([&] {
        command = [&] {
            const Cli::GenerateArguments arguments = {text(file), text(outDir), !noSynth, json,
                                                      verbose,    checkFiles,   force,    !noCache};
            return checkFiles ? Cli::runGenerateCheck(environment, arguments)
                              : Cli::runGenerate(environment, arguments);
        };
    });

    CLI::App *checkCommand = app.add_subcommand(
        "check", "List what is wrong or doubtful in a configuration; changes nothing");
    addFile(checkCommand);
    addJson(checkCommand);
    checkCommand->callback(
        [&] { command = [&] { return Cli::runCheck(environment, text(file), json); }; });

    CLI::App *sourcesCommand =
        app.add_subcommand("sources", "List the files that synthesis compiles, in order");
    addFile(sourcesCommand);
    addOutDir(sourcesCommand);
    addJson(sourcesCommand);
    sourcesCommand->callback([&] {
        command = [&] { return Cli::runSources(environment, text(file), text(outDir), json); };
    });

    CLI::App *retargetCommand = app.add_subcommand(
        "retarget", "Move a configuration to another device and tell what it loses");
    bool dryRun = false;
    std::string outFile;
    addFile(retargetCommand);
    addDevice(retargetCommand);
    retargetCommand
        ->add_option("--out", outFile, "Write this file (default: the configuration itself)")
        ->type_name("FILE");
    addForce(retargetCommand);
    retargetCommand->add_flag("--dry-run", dryRun, "Only tell; write nothing");
    addJson(retargetCommand);
    retargetCommand->callback([&] {
        command = [&] {
            return Cli::runRetarget(environment, {text(file), text(device), text(package),
                                                  text(speed), text(outFile), force, dryRun, json});
        };
    });

    CLI::App *pinsCommand =
        app.add_subcommand("pins", "List the pins that the core has in a configuration");
    addFile(pinsCommand);
    addJson(pinsCommand);
    pinsCommand->callback(
        [&] { command = [&] { return Cli::runPins(environment, text(file), json); }; });

    CLI::App *registersCommand =
        app.add_subcommand("registers", "List the registers of the sample subsystem's peripherals");
    bool markdown = false;
    bool cHeader = false;
    registersCommand->add_option("FILE", file, "Only what this configuration (.ipc) switches on")
        ->type_name("");
    CLI::Option_group *form = registersCommand->add_option_group("Form");
    form->add_flag("--json", json, "Print one JSON object");
    form->add_flag("--markdown", markdown, "Print a document with all fields");
    form->add_flag("--c-header", cHeader, "Print a C header for firmware");
    form->require_option(0, 1);
    registersCommand->callback([&] {
        command = [&] {
            return Cli::runRegisters(environment, text(file),
                                     json       ? Cli::RegistersForm::Json
                                     : markdown ? Cli::RegistersForm::Markdown
                                     : cHeader  ? Cli::RegistersForm::CHeader
                                                : Cli::RegistersForm::Table);
        };
    });

    CLI::App *firmwareCommand = app.add_subcommand(
        "firmware", "Turn a program into the files that initialise the instruction memory");
    std::string image;
    std::string imageForm;
    quint32 imageBase = 0;
    bool initialise = false;
    firmwareCommand->add_option("IMAGE", image, "Program: ELF, Intel HEX or binary")
        ->required()
        ->type_name("");
    addFile(firmwareCommand);
    firmwareCommand
        ->add_option("--out", outDir,
                     "Folder of itcm0 to itcm3 (default: the one that FILE initialises the memory "
                     "from, else \"itcm\" beside FILE)")
        ->type_name("DIR");
    firmwareCommand->add_option("--format", imageForm, "elf, hex or bin (default: found out)")
        ->type_name("FORMAT");
    firmwareCommand
        ->add_option("--base", imageBase,
                     "Address of the first byte of a binary image (default: 0)")
        ->type_name("ADDRESS");
    firmwareCommand->add_flag("--initialize", initialise,
                              "Set the \"Initialize ITCM\" options of FILE to these files");
    addJson(firmwareCommand);
    firmwareCommand->callback([&] {
        command = [&] {
            return Cli::runFirmware(environment, {text(image), text(file), text(outDir),
                                                  text(imageForm), imageBase, initialise, json});
        };
    });

    CLI::App *exportCommand = app.add_subcommand(
        "export", "Write what software needs of a configuration: a set of files, whole or not at "
                  "all; a file that somebody has edited is kept");
    std::vector<std::string> formats;
    bool list = false;
    bool onlyCheck = false;
    exportCommand->add_option("FILE", file, "Configuration file (.ipc)")->type_name("");
    exportCommand
        ->add_option("FORMAT", formats,
                     "What to write, as \"orixm1 export --list\" names it (default: everything; "
                     "with --check, what was written last)")
        ->type_name("");
    exportCommand->add_option("--out", outDir, "Folder that the files are written to")
        ->type_name("DIR");
    std::string netlist;
    exportCommand
        ->add_option("--netlist", netlist,
                     "Netlist or simulation model in Verilog that a run of this configuration has "
                     "left: the datasheet tells what it uses of the device")
        ->type_name("FILE");
    CLI::Option *listFlag =
        exportCommand->add_flag("--list", list, "List the formats; needs no FILE");
    exportCommand
        ->add_flag("--check", onlyCheck,
                   "Only tell which files are missing, stale, edited or left over, with exit "
                   "status 1 if any is; writes nothing")
        ->excludes(listFlag);
    addJson(exportCommand);
    exportCommand->callback([&] {
        command = [&] {
            return Cli::runExport(environment, {text(file), texts(formats), text(outDir), list,
                                                onlyCheck, json, text(netlist)});
        };
    });

    CLI::App *simulateCommand = app.add_subcommand(
        "simulate", "Run a program for the processor on the subsystem's RTL or netlist");
    std::string program;
    std::vector<std::string> cFiles;
    std::string script;
    std::string uart0;
    std::string uart1;
    quint64 timeout = 10000000;
    std::string waves;
    std::vector<std::string> reportFiles;
    const QStringList engines = Cli::engineNames();
    std::string engine = engines.first().toStdString();
    std::string model = "rtl";
    std::string tcm = "model";
    int gdbPort = -1;
    std::string board;
    std::string writeBoard;
    bool live = false;
    addFile(simulateCommand);
    CLI::Option_group *programGroup = simulateCommand->add_option_group("Program");
    programGroup->add_option("--firmware", program, "Program: ELF")->type_name("FILE");
    programGroup
        ->add_option("--c", cFiles,
                     "C files, compiled with what is exported for the configuration; returning "
                     "from main() ends the run: 0 has passed")
        ->type_name("FILE ...");
    programGroup
        ->add_option("--script", script,
                     "Script of bus transfers, played in place of a program; it has passed if all "
                     "of its checks have")
        ->type_name("FILE");
    programGroup->require_option(0, 1);
    CLI::Option *uart0Option =
        simulateCommand
            ->add_option("--uart0", uart0,
                         "Where the bytes of UART0 go: a file; - for the terminal, which is the "
                         "default (named, standard input goes to the UART too); or pty for a "
                         "pseudo-terminal, in both directions")
            ->type_name("FILE|-|pty");
    CLI::Option *uart1Option =
        simulateCommand->add_option("--uart1", uart1, "The same for UART1 (default: nowhere)")
            ->type_name("FILE|-|pty");
    std::vector<std::string> engineTexts;
    for (const QString &name : engines)
        engineTexts.push_back(name.toStdString());
    simulateCommand
        ->add_option("--engine", engine,
                     "Simulator: icarus (the default) starts at once, verilator compiles the "
                     "design first and then runs it fast")
        ->check(CLI::IsMember(engineTexts))
        ->type_name("NAME");
    simulateCommand
        ->add_option("--model", model,
                     "What is simulated: rtl (the default), or netlist, which is synthesised for "
                     "it and much slower")
        ->check(CLI::IsMember({"rtl", "netlist"}))
        ->type_name("MODEL");
    simulateCommand
        ->add_option("--tcm", tcm,
                     "Where instruction and data memory are: in the model (the default), or rtl; "
                     "then what the configuration initialises is a program, too")
        ->check(CLI::IsMember({"model", "rtl"}))
        ->type_name("PLACE");
    simulateCommand
        ->add_option("--gdb", gdbPort,
                     "Wait for gdb at this port of this machine; 0 takes a free one")
        ->check(CLI::Range(0, 65535))
        ->type_name("PORT");
    simulateCommand
        ->add_option("--board", board, "Board in Verilog instead of the one that is made")
        ->type_name("FILE");
    simulateCommand
        ->add_option("--write-board", writeBoard,
                     "Only write the board that is made, as a start for one's own")
        ->type_name("FILE");
    simulateCommand->add_flag("--live", live,
                              "For programs: tell everything in JSON objects, a line each, and "
                              "take such from standard input");
    simulateCommand
        ->add_option("--timeout", timeout,
                     "Clock cycles after which a program that has not ended is stopped, with exit "
                     "status 124 (default: 10000000)")
        ->check(CLI::Range(quint64(1), quint64(1000000000000)))
        ->type_name("CYCLES");
    quint64 wavesFrom = 0;
    quint64 wavesTo = 0;
    std::string wavesAt;
    simulateCommand
        ->add_option("--waves", waves,
                     "Write all signals (FST), and beside them a view for GTKWave (.gtkw)")
        ->type_name("FILE");
    const CLI::Option *wavesFromOption =
        simulateCommand
            ->add_option("--waves-from", wavesFrom, "Clock cycle at which the waves begin")
            ->check(CLI::Range(quint64(0), quint64(1000000000000)))
            ->type_name("CYCLE");
    const CLI::Option *wavesToOption =
        simulateCommand->add_option("--waves-to", wavesTo, "Clock cycle with which they end")
            ->check(CLI::Range(quint64(0), quint64(1000000000000)))
            ->type_name("CYCLE");
    const CLI::Option *wavesAtOption =
        simulateCommand
            ->add_option("--waves-at", wavesAt,
                         "Event at which they begin: address:0x40000000[-0x400000FF], "
                         "interrupt:NAME or its number, message:TEXT")
            ->type_name("EVENT");
    simulateCommand
        ->add_option("--report", reportFiles,
                     "Write what happened: text (.txt), JUnit (.xml), otherwise JSON; may be "
                     "repeated")
        ->type_name("FILE")
        ->take_all()
        ->allow_extra_args(false);
    std::string uart0Input;
    std::string uart1Input;
    std::string uartLines = "apart";
    std::string eeprom;
    std::string flash;
    std::string card;
    std::string eepromResult;
    std::string flashResult;
    std::string cardResult;
    const auto addBoardFile = [&](const char *name, std::string &value, const char *help) {
        simulateCommand->add_option(name, value, help)->type_name("FILE");
    };
    addBoardFile("--uart0-input", uart0Input, "Bytes that UART0 receives once its receiver is on");
    addBoardFile("--uart1-input", uart1Input, "The same for UART1, which else hears itself");
    simulateCommand
        ->add_option("--uarts", uartLines,
                     "apart (the default), or crossed: each receives what the other one sends")
        ->check(CLI::IsMember({"apart", "crossed"}))
        ->type_name("LINES");
    addBoardFile("--eeprom", eeprom, "What the I2C memory holds first; else it is blank");
    addBoardFile("--flash", flash, "What the serial flash holds first; else it is blank");
    addBoardFile("--sd", card, "Image of the SD card; without one there is no card");
    addBoardFile("--eeprom-result", eepromResult, "Write what the I2C memory holds at the end");
    addBoardFile("--flash-result", flashResult, "Write what the serial flash holds at the end");
    addBoardFile("--sd-result", cardResult, "Write what the SD card holds at the end");
    simulateCommand->callback([&, wavesFromOption, wavesToOption, wavesAtOption] {
        command = [&] {
            Cli::SimulateArguments arguments;
            arguments.file = text(file);
            arguments.firmware = text(program);
            arguments.sources = texts(cFiles);
            arguments.engine = text(engine);
            arguments.uart0 = text(uart0);
            arguments.timeout = timeout;
            arguments.waves = text(waves);
            arguments.reports = texts(reportFiles);
            if (wavesFromOption->count() != 0)
                arguments.wavesFrom = wavesFrom;
            if (wavesToOption->count() != 0)
                arguments.wavesTo = wavesTo;
            if (wavesAtOption->count() != 0)
                arguments.wavesAt = text(wavesAt);
            const std::vector<CLI::Option *> programs = programGroup->get_options();
            arguments.hasProgram =
                std::any_of(programs.begin(), programs.end(),
                            [](const CLI::Option *option) { return option->count() > 0; });
            arguments.model = text(model);
            arguments.tcm = text(tcm);
            arguments.gdbPort = gdbPort;
            arguments.board = text(board);
            arguments.writeBoard = text(writeBoard);
            arguments.uart1 = text(uart1);
            arguments.live = live;
            if (uart0Option->count() == 0 && !live && uart1 != "-")
                arguments.uart0 = QStringLiteral("-");
            // The terminal of the default is read only if somebody sits there.
            arguments.readsStandardInput =
                uart0 == "-" || uart1 == "-" ||
                (arguments.uart0 == QLatin1String("-") && ::isatty(STDIN_FILENO));
            arguments.uart0Input = text(uart0Input);
            arguments.uart1Input = text(uart1Input);
            arguments.eeprom = text(eeprom);
            arguments.flash = text(flash);
            arguments.sd = text(card);
            arguments.eepromResult = text(eepromResult);
            arguments.flashResult = text(flashResult);
            arguments.sdResult = text(cardResult);
            arguments.crossesUarts = uartLines == "crossed";
            arguments.script = text(script);
            return Cli::runSimulate(environment, arguments);
        };
    });

    CLI::App *optionsCommand =
        app.add_subcommand("options", "List all option keys with type, default and domain");
    addJson(optionsCommand);
    optionsCommand->callback([&] { command = [&] { return Cli::runOptions(json); }; });

    CLI::App *devicesCommand = app.add_subcommand("devices", "List the known devices");
    std::string series;
    devicesCommand->add_option("--series", series, "Only this series, such as TV2KR")
        ->type_name("S");
    addJson(devicesCommand);
    devicesCommand->callback(
        [&] { command = [&] { return Cli::runDevices(environment, text(series), json); }; });

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        std::ostringstream output;
        std::ostringstream errors;
        const bool isHelp = app.exit(error, output, errors) == 0;
        if (!isHelp && simulateCommand->parsed() && isAsked("--live", argc, argv)) {
            Cli::tellLiveMistake(Cli::WrongUsage, text(errors.str()));
            return Cli::WrongUsage;
        }
        Cli::printText(stdout, output.str());
        Cli::printText(stderr, errors.str());
        return isHelp ? Cli::Done : Cli::WrongUsage;
    }
    if (!command) {
        Cli::printError(QStringLiteral("A command is required; \"orixm1 --help\" lists them."));
        return Cli::WrongUsage;
    }
    QString mistake = Utils::nonUtf8Argument(argc, argv);
    std::vector<const std::string *> paths;
    for (const std::string *path : {&file, &image, &netlist, &outDir, &dataFolder, &deviceFolder})
        paths.push_back(path);
    for (const std::string *path : {&program, &script, &waves})
        paths.push_back(path);
    for (const std::string *path : {&board, &writeBoard})
        paths.push_back(path);
    for (const std::string *path : {&uart0, &uart1}) {
        if (*path != "-" && *path != "pty")
            paths.push_back(path);
    }
    for (const std::string &cFile : cFiles)
        paths.push_back(&cFile);
    for (const std::string &reportFile : reportFiles)
        paths.push_back(&reportFile);
    for (const std::string *path : paths) {
        if (mistake.isEmpty() && !path->empty() && path->front() != '/')
            mistake = Utils::nonUtf8CurrentFolder();
    }
    for (const CLI::Option *option : {uart0Option, uart1Option}) {
        if (mistake.isEmpty() && option->count() > 0 && option->as<std::string>().empty())
            mistake = text(option->get_name()) + QLatin1String(" names no file.");
    }
    if (!mistake.isEmpty() && live) {
        Cli::tellLiveMistake(Cli::WrongUsage, mistake);
        return Cli::WrongUsage;
    }
    if (!mistake.isEmpty()) {
        Cli::printError(mistake);
        return Cli::WrongUsage;
    }
    environment.setDataFolder(text(dataFolder));
    environment.setDeviceFolder(text(deviceFolder));
    return command();
}

} // namespace

int main(int argc, char *argv[])
{
    // File names and arguments are UTF-8 in every locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // Else the first file that is opened would be standard input.
    if (::fcntl(STDIN_FILENO, F_GETFD) < 0)
        ::open("/dev/null", O_RDONLY);
    QCoreApplication application(argc, argv);

    const int status = run(argc, argv);
    // Whatever was printed, a help text too, must have got to where it goes.
    if (!Cli::flushOutput() && status == Cli::Done)
        return Cli::Failed;
    return status;
}
