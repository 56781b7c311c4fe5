#include "options.h"

#include "language/languages.h"

#include <CLI/CLI.hpp>

namespace Workbench
{

namespace
{

QString text(const std::string &utf8)
{
    return QString::fromStdString(utf8);
}

// The texts that the arguments are read into.
struct Arguments {
    std::vector<std::string> files;
    std::string newIp;
    std::string device;
    std::string dir;
    std::string renderDiagram;
    std::string output;
    std::vector<std::string> pluginDirs;
    std::string settings;
    bool isFresh = false;
    std::string language;
    unsigned timeLimit = 60;
};

void describe(CLI::App &app, Arguments &arguments)
{
    app.name("tarvo-workbench");
    app.description("Configures and generates IPs for FPGA designs: project, device, IP catalogue, "
                    "editor and synthesis in one window.");
    app.set_version_flag("--version", std::string("tarvo-workbench " TARVO_VERSION),
                         "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.footer("Exit status: 0 done, 1 the job failed, 2 wrong usage.\n"
               "Qt's own options, such as -style and -platform, are understood as well.");
    app.add_option("FILE", arguments.files,
                   "Project (.tvproj), IP configuration (.ipc) or text file to open; an .ipc file "
                   "opens in its IP's dialog")
        ->type_name("");
    CLI::Option *newIp = app.add_option("--new-ip", arguments.newIp,
                                        "Open the dialog of an IP, by name or id, for a new one")
                             ->type_name("NAME");
    app.add_option("--device", arguments.device,
                   "Device id or name of the new IP (default: the project's)")
        ->type_name("ID|NAME")
        ->needs(newIp);
    app.add_option("--dir", arguments.dir,
                   "Folder of the new IP (default: the current folder); a project there is opened")
        ->type_name("DIR")
        ->needs(newIp);
    CLI::Option *render = app.add_option("--render-diagram", arguments.renderDiagram,
                                         "Write the diagram of an IP and exit; needs no display")
                              ->type_name("FILE.ipc")
                              ->excludes(newIp);
    CLI::Option *output = app.add_option("-o,--output", arguments.output,
                                         "Picture of --render-diagram: .svg, .png or .pdf")
                              ->type_name("FILE")
                              ->needs(render);
    render->needs(output);
    app.add_option("--time-limit", arguments.timeLimit,
                   "Longest time for --render-diagram (default: 60)")
        ->type_name("SECONDS")
        ->check(CLI::Range(1u, 86400u))
        ->needs(render);
    app.add_option("--plugin-dir", arguments.pluginDirs,
                   "Search this folder for plug-ins too; may be repeated")
        ->type_name("DIR")
        ->take_all()
        ->allow_extra_args(false);
    app.add_flag("--no-restore", arguments.isFresh,
                 "Do not open the project of the last time; one that is named is opened instead of "
                 "it anyhow");
    app.add_option("--settings", arguments.settings,
                   "Keep window state, tabs and recent projects in this file")
        ->type_name("FILE");
    std::vector<std::string> codes;
    for (const Languages::Choice &language : Languages::available())
        codes.push_back(language.code.toStdString());
    app.add_option("--language", arguments.language,
                   "Language of the window (default: as in the settings, or else the system's)")
        ->type_name("CODE")
        ->check(CLI::IsMember(codes));
}

} // namespace

std::string Options::help()
{
    CLI::App app;
    Arguments arguments;
    describe(app, arguments);
    return app.help();
}

Options::Next Options::parse(int argc, char *argv[], int *status)
{
    CLI::App app;
    Arguments arguments;
    describe(app, arguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        *status = app.exit(error) == 0 ? 0 : 2;
        return Leave;
    }
    for (const std::string &file : arguments.files)
        files.append(text(file));
    for (const std::string &folder : arguments.pluginDirs)
        pluginDirs.append(text(folder));
    newIp = text(arguments.newIp);
    device = text(arguments.device);
    dir = text(arguments.dir);
    renderDiagram = text(arguments.renderDiagram);
    output = text(arguments.output);
    settings = text(arguments.settings);
    isFresh = arguments.isFresh;
    language = text(arguments.language);
    timeLimit = arguments.timeLimit;
    *status = 0;
    return Run;
}

} // namespace Workbench
