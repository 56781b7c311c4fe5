#include "commandline.h"
#include "commands.h"
#include "environment.h"
#include "output.h"
#include "simulate/livelistener.h"
#include "suggestion.h"
#include "sweep/sweepcommand.h"

#include <utils/utf8names.h>

#include <QCoreApplication>
#include <QTextCodec>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <fcntl.h>
#include <sstream>
#include <unistd.h>

namespace
{

using Declare = void (*)(Cli::CommandLine &);

// In the order in which the help lists them.
constexpr Declare commandTable[] = {
    Cli::declareNew,       Cli::declareGenerate,    Cli::declareProve,    Cli::declareCheck,
    Cli::declareEstimate,  Cli::declareSources,     Cli::declareRetarget, Cli::declarePins,
    Cli::declareRegisters, Cli::declareFirmware,    Cli::declareExport,   Cli::declareSimulate,
    Cli::declareSweep,     Cli::declareOptions,     Cli::declareDevices,  Cli::declarePresets,
    Cli::declareGet,       Cli::declareSet,         Cli::declareUnset,    Cli::declareMinimize,
    Cli::declareUpgrade,   Cli::declareShow,        Cli::declareDiff,     Cli::declareRandom,
    Cli::declareSchema,    Cli::declareCompletions,
};

bool isAsked(const char *option, int argc, char *argv[])
{
    return std::find(argv, argv + argc, std::string(option)) != argv + argc;
}

constexpr const char *footer = R"(Exit status:
  0  done
  1  the job failed, check found an error, or prove could not prove everything
  2  wrong usage
  3  unreadable or incompatible input
  124  the time limit of simulate
  130  cancelled)";

// Tells a program that follows a run live, and everybody else.
int refuse(const Cli::Problem &problem, bool live)
{
    if (live)
        Cli::tellLiveMistake(Cli::WrongUsage, Cli::sentenceOf(problem));
    else
        Cli::printProblem(problem);
    return Cli::WrongUsage;
}

int run(int argc, char *argv[])
{
    CLI::App app("Configures and generates the subsystem Tarvo_ORIX_M1 from an .ipc file, without "
                 "a display.",
                 "orixm1");
    app.set_version_flag("--version", std::string("orixm1 " ORIXM1_VERSION),
                         "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.set_help_all_flag("--help-all", "Print the help of every command and exit");
    app.fallthrough();
    // Behind a command its name is a word like others: a format or a file may have it.
    app.require_subcommand(0, 1);
    app.footer(footer);
    QString dataFolder;
    QString deviceFolder;
    Cli::CommandLine line(app);
    line.path(&app, "--data", dataFolder, "Data folder of the IP: descriptor and RTL", "DIR");
    line.path(&app, "--devices", deviceFolder,
              "Folder of device files instead of the built-in ones", "DIR");
    for (const Declare declare : commandTable)
        declare(line);

    const bool live = isAsked("--live", argc, argv);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        std::ostringstream help;
        std::ostringstream ignored;
        if (app.exit(error, help, ignored) == 0) {
            Cli::printText(stdout, help.str());
            return Cli::Done;
        }
        return refuse(Cli::problemOf(app, error), live);
    }
    if (!line.chosen())
        return refuse({QStringLiteral("A command is required; \"orixm1 --help\" lists them.")},
                      live);
    QString mistake = Utils::nonUtf8Argument(argc, argv);
    if (mistake.isEmpty())
        mistake = line.pathMistake();
    if (!mistake.isEmpty())
        return refuse({mistake}, live);
    Cli::Environment environment;
    environment.setDataFolder(dataFolder);
    environment.setDeviceFolder(deviceFolder);
    return line.chosen()(environment);
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
    // Who asked for an object gets one, whatever went wrong.
    if (isAsked("--json", argc, argv) && status != Cli::Done)
        Cli::printJsonOfProblems();
    // Whatever was printed, a help text too, must have got to where it goes.
    if (!Cli::flushOutput() && status == Cli::Done)
        return Cli::Failed;
    return status;
}
