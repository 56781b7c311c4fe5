#include "../commandline.h"
#include "../commands.h"
#include "../output.h"
#include "engine.h"
#include "livelistener.h"
#include "simulatearguments.h"

#include <CLI/CLI.hpp>

#include <unistd.h>

namespace Cli
{

namespace
{

// A UART is a file, the terminal or a pseudo-terminal.
bool isFile(const QString &uart)
{
    return uart != QLatin1String("-") && uart != QLatin1String("pty");
}

int refuse(const QString &mistake, bool live)
{
    if (live)
        tellLiveMistake(WrongUsage, mistake);
    else
        printError(mistake);
    return WrongUsage;
}

} // namespace

void declareSimulate(CommandLine &line)
{
    struct Given : SimulateArguments {
        CLI::Option *uart0Option = nullptr;
        CLI::Option *uart1Option = nullptr;
        quint64 from = 0;
        quint64 to = 0;
        QString at;
        QString lines = QStringLiteral("apart");
        CLI::Option *fromOption = nullptr;
        CLI::Option *toOption = nullptr;
        CLI::Option *atOption = nullptr;
        CLI::Option_group *programs = nullptr;
    };
    auto given = std::make_shared<Given>();
    given->timeout = 10000000;
    given->engine = engineNames().first();
    CLI::App *command = line.command(
        "simulate", "Run a program for the processor on the subsystem's RTL or netlist",
        "orixm1 simulate tarvo_orix_m1.ipc --c main.c --waves run.fst",
        [given](Environment &environment) {
            for (const CLI::Option *option : {given->uart0Option, given->uart1Option}) {
                if (option->count() > 0 && option->as<std::string>().empty())
                    return refuse(QString::fromStdString(option->get_name()) +
                                      QLatin1String(" names no file."),
                                  given->live);
            }
            const bool namesTerminal =
                given->uart0 == QLatin1String("-") || given->uart1 == QLatin1String("-");
            if (given->uart0Option->count() == 0 && !given->live &&
                given->uart1 != QLatin1String("-"))
                given->uart0 = QStringLiteral("-");
            // The terminal of the default is read only if somebody sits there.
            given->readsStandardInput =
                namesTerminal || (given->uart0 == QLatin1String("-") && ::isatty(STDIN_FILENO));
            if (given->fromOption->count() != 0)
                given->wavesFrom = given->from;
            if (given->toOption->count() != 0)
                given->wavesTo = given->to;
            if (given->atOption->count() != 0)
                given->wavesAt = given->at;
            const std::vector<CLI::Option *> programs = given->programs->get_options();
            given->hasProgram =
                std::any_of(programs.begin(), programs.end(),
                            [](const CLI::Option *option) { return option->count() > 0; });
            given->crossesUarts = given->lines == QLatin1String("crossed");
            return runSimulate(environment, *given);
        });
    line.file(command, given->file);
    given->programs = command->add_option_group("Program");
    line.path(given->programs, "--firmware", given->firmware, "Program: ELF", "FILE");
    line.paths(given->programs, "--c", given->sources,
               "C files, compiled with what is exported for the configuration; returning from "
               "main() ends the run: 0 has passed",
               "FILE ...")
        ->allow_extra_args();
    line.path(given->programs, "--script", given->script,
              "Script of bus transfers, played in place of a program; it has passed if all of its "
              "checks have",
              "FILE");
    given->programs->require_option(0, 1);
    given->uart0Option = CommandLine::text(
        command, "--uart0", given->uart0,
        "Where the bytes of UART0 go: a file; - for the terminal, which is the default (named, "
        "standard input goes to the UART too); or pty for a pseudo-terminal, in both directions",
        "FILE|-|pty");
    given->uart1Option = CommandLine::text(command, "--uart1", given->uart1,
                                           "The same for UART1 (default: nowhere)", "FILE|-|pty");
    Given *arguments = given.get();
    line.alsoPaths([arguments] {
        QStringList files;
        for (const QString &uart : {arguments->uart0, arguments->uart1}) {
            if (isFile(uart))
                files.append(uart);
        }
        return files;
    });
    line.choice(command, "--engine", given->engine, engineNames(),
                "Simulator: icarus (the default) starts at once, verilator compiles the design "
                "first and then runs it fast",
                "NAME");
    line.choice(command, "--model", given->model,
                {QStringLiteral("rtl"), QStringLiteral("netlist")},
                "What is simulated: rtl (the default), or netlist, which is synthesised for it and "
                "much slower",
                "MODEL");
    line.choice(command, "--tcm", given->tcm, {QStringLiteral("model"), QStringLiteral("rtl")},
                "Where instruction and data memory are: in the model (the default), or rtl; then "
                "what the configuration initialises is a program, too",
                "PLACE");
    command
        ->add_option("--gdb", given->gdbPort,
                     "Wait for gdb at this port of this machine; 0 takes a free one")
        ->check(CLI::Range(0, 65535))
        ->type_name("PORT");
    line.path(command, "--board", given->board, "Board in Verilog instead of the one that is made",
              "FILE");
    line.path(command, "--write-board", given->writeBoard,
              "Only write the board that is made, as a start for one's own", "FILE");
    command->add_flag("--live", given->live,
                      "For programs: tell everything in JSON objects, a line each, and take such "
                      "from standard input");
    command
        ->add_option("--timeout", given->timeout,
                     "Clock cycles after which a program that has not ended is stopped, with exit "
                     "status 124 (default: 10000000)")
        ->check(CLI::Range(quint64(1), quint64(1000000000000)))
        ->type_name("CYCLES");
    command->add_flag("--no-checks", given->leavesChecksOut,
                      "Leave out the rules of the buses (AHB-Lite, APB), of which else the first "
                      "that is broken ends the run as failed; it is faster without them");
    line.path(command, "--waves", given->waves,
              "Write all signals (FST), and beside them a view for GTKWave (.gtkw)", "FILE");
    given->fromOption =
        command->add_option("--waves-from", given->from, "Clock cycle at which the waves begin")
            ->check(CLI::Range(quint64(0), quint64(1000000000000)))
            ->type_name("CYCLE");
    given->toOption =
        command->add_option("--waves-to", given->to, "Clock cycle with which they end")
            ->check(CLI::Range(quint64(0), quint64(1000000000000)))
            ->type_name("CYCLE");
    given->atOption = CommandLine::text(
        command, "--waves-at", given->at,
        "Event at which they begin: address:0x40000000[-0x400000FF], interrupt:NAME or its number, "
        "message:TEXT",
        "EVENT");
    line.paths(command, "--report", given->reports,
               "Write what happened: text (.txt), JUnit (.xml), otherwise JSON; may be repeated",
               "FILE");
    const auto boardFile = [&line, command](const char *name, QString &value, const char *help) {
        line.path(command, name, value, help, "FILE");
    };
    boardFile("--uart0-input", given->uart0Input,
              "Bytes that UART0 receives once its receiver is on");
    boardFile("--uart1-input", given->uart1Input, "The same for UART1, which else hears itself");
    line.choice(command, "--uarts", given->lines,
                {QStringLiteral("apart"), QStringLiteral("crossed")},
                "apart (the default), or crossed: each receives what the other one sends", "LINES");
    boardFile("--eeprom", given->eeprom, "What the I2C memory holds first; else it is blank");
    boardFile("--flash", given->flash, "What the serial flash holds first; else it is blank");
    boardFile("--sd", given->sd, "Image of the SD card; without one there is no card");
    boardFile("--eeprom-result", given->eepromResult, "Write what the I2C memory holds at the end");
    boardFile("--flash-result", given->flashResult, "Write what the serial flash holds at the end");
    boardFile("--sd-result", given->sdResult, "Write what the SD card holds at the end");
}

} // namespace Cli
