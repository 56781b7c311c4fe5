#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

// The header of CLI11 takes a compiler longer than most commands: those that need no more than what
// is here do not include it.
namespace CLI
{
class App;
class Option;
} // namespace CLI

namespace Cli
{

class Environment;
struct DeviceChoice;

// The command line in the making. Each command declares itself in its own file, by a function that
// `commandTable` (main.cpp) lists; what it declares here is also what help texts and completions
// are made of.
class CommandLine
{
public:
    explicit CommandLine(CLI::App &app);

    // Runs a command that has been chosen, with its arguments read, and gives the exit status.
    using Run = std::function<int(Environment &)>;
    // A command. `example` is a whole line of a shell that shows it. The arguments that `run` reads
    // must live as long as it does.
    CLI::App *command(const char *name, const char *help, const char *example, Run run);

    // An option or, for a name in capitals, an argument; `value` keeps its text until it is given.
    static CLI::Option *text(CLI::App *command, const char *name, QString &value, const char *help,
                             const char *type);
    // The same for the name of a file or folder.
    CLI::Option *path(CLI::App *command, const char *name, QString &value, const char *help,
                      const char *type);
    // Options that may come several times, and arguments of which there may be several.
    static CLI::Option *texts(CLI::App *command, const char *name, QStringList &values,
                              const char *help, const char *type);
    CLI::Option *paths(CLI::App *command, const char *name, QStringList &values, const char *help,
                       const char *type);

    // Switches: the first sets the value to true, the second to false.
    static CLI::Option *flag(CLI::App *command, const char *name, bool &value, const char *help);
    static CLI::Option *noFlag(CLI::App *command, const char *name, bool &value, const char *help);
    // Whole numbers.
    static CLI::Option *number(CLI::App *command, const char *name, quint32 &value,
                               const char *help, const char *type);
    static CLI::Option *number(CLI::App *command, const char *name, quint64 &value,
                               const char *help, const char *type);
    static CLI::Option *number(CLI::App *command, const char *name, int &value, int least, int most,
                               const char *help, const char *type);

    // A text out of a few.
    CLI::Option *choice(CLI::App *command, const char *name, QString &value,
                        const QStringList &choices, const char *help, const char *type);
    // What a completion offers for an option or argument beside what is known from its type.
    void offer(const CLI::Option *option, std::function<QStringList()> values);

    // Paths that stand in texts which are not always paths.
    void alsoPaths(std::function<QStringList()> given) { m_paths.push_back(std::move(given)); }

    // What several commands have.
    CLI::Option *file(CLI::App *command, QString &value); // FILE, the configuration
    CLI::Option *outDir(CLI::App *command, QString &value);
    // --device, which has to be given, --package and --speed.
    CLI::Option *device(CLI::App *command, DeviceChoice &choice,
                        const char *help = "Device id, name or part number");
    static void json(CLI::App *command, bool &value);
    static void force(CLI::App *command, bool &value);

    // What holds between options, and whether one has to be given.
    static void require(CLI::Option *option, bool isRequired = true);
    static void exclude(CLI::Option *option, CLI::Option *other);
    static void need(CLI::Option *option, CLI::Option *other);
    // Lines at the end of a command's help.
    static void addHelp(CLI::App *command, const char *lines);

    // The command that was given; empty if there is none.
    const Run &chosen() const { return m_chosen; }
    // Why a path that was given cannot be used: it is relative, and the current folder's name is no
    // UTF-8. Empty if there is none.
    QString pathMistake() const;

    CLI::App &app() const { return m_app; }
    QStringList offersFor(const CLI::Option *option) const;
    bool isPath(const CLI::Option *option) const { return m_pathOptions.count(option) != 0; }

private:
    CLI::App &m_app;
    Run m_chosen;
    std::map<const CLI::Option *, std::function<QStringList()>> m_offers;
    std::vector<std::function<QStringList()>> m_paths; // that were given
    std::set<const CLI::Option *> m_pathOptions;
};

} // namespace Cli
