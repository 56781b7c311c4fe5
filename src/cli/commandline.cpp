#include "commandline.h"

#include "environment.h"

#include <utils/utf8names.h>

#include <CLI/CLI.hpp>

namespace Cli
{

CommandLine::CommandLine(CLI::App &app)
    : m_app(app)
{
}

CLI::App *CommandLine::command(const char *name, const char *help, const char *example, Run run)
{
    CLI::App *command = m_app.add_subcommand(name, help);
    command->footer(std::string("Example:\n  ") + example);
    command->callback([this, run = std::move(run)] { m_chosen = run; });
    return command;
}

CLI::Option *CommandLine::text(CLI::App *command, const char *name, QString &value,
                               const char *help, const char *type)
{
    return command
        ->add_option_function<std::string>(
            name, [&value](const std::string &given) { value = QString::fromStdString(given); },
            help)
        ->type_name(type);
}

CLI::Option *CommandLine::path(CLI::App *command, const char *name, QString &value,
                               const char *help, const char *type)
{
    m_paths.emplace_back([&value] { return QStringList{value}; });
    CLI::Option *option = text(command, name, value, help, type);
    m_pathOptions.insert(option);
    return option;
}

CLI::Option *CommandLine::texts(CLI::App *command, const char *name, QStringList &values,
                                const char *help, const char *type)
{
    CLI::Option *option = command->add_option_function<std::vector<std::string>>(
        name,
        [&values](const std::vector<std::string> &given) {
            values.clear();
            for (const std::string &entry : given)
                values.append(QString::fromStdString(entry));
        },
        help);
    option->type_name(type);
    if (!option->get_positional())
        option->take_all()->allow_extra_args(false);
    return option;
}

CLI::Option *CommandLine::paths(CLI::App *command, const char *name, QStringList &values,
                                const char *help, const char *type)
{
    m_paths.emplace_back([&values] { return values; });
    CLI::Option *option = texts(command, name, values, help, type);
    m_pathOptions.insert(option);
    return option;
}

CLI::Option *CommandLine::flag(CLI::App *command, const char *name, bool &value, const char *help)
{
    return command->add_flag(name, value, help);
}

CLI::Option *CommandLine::noFlag(CLI::App *command, const char *name, bool &value, const char *help)
{
    return command->add_flag(
        name, [&value](qint64) { value = false; }, help);
}

CLI::Option *CommandLine::number(CLI::App *command, const char *name, quint32 &value,
                                 const char *help, const char *type)
{
    return command->add_option(name, value, help)->type_name(type);
}

CLI::Option *CommandLine::number(CLI::App *command, const char *name, quint64 &value,
                                 const char *help, const char *type)
{
    return command->add_option(name, value, help)->type_name(type);
}

CLI::Option *CommandLine::number(CLI::App *command, const char *name, int &value, int least,
                                 int most, const char *help, const char *type)
{
    return command->add_option(name, value, help)
        ->check(CLI::Range(least, most).description(""))
        ->type_name(type);
}

void CommandLine::require(CLI::Option *option, bool isRequired)
{
    option->required(isRequired);
}

void CommandLine::exclude(CLI::Option *option, CLI::Option *other)
{
    option->excludes(other);
}

void CommandLine::need(CLI::Option *option, CLI::Option *other)
{
    option->needs(other);
}

void CommandLine::addHelp(CLI::App *command, const char *lines)
{
    command->footer(command->get_footer() + "\n\n" + lines);
}

CLI::Option *CommandLine::choice(CLI::App *command, const char *name, QString &value,
                                 const QStringList &choices, const char *help, const char *type)
{
    std::vector<std::string> members;
    for (const QString &entry : choices)
        members.push_back(entry.toStdString());
    CLI::Option *option = text(command, name, value, help, type);
    option->check(CLI::IsMember(members).description(""));
    offer(option, [choices] { return choices; });
    return option;
}

void CommandLine::offer(const CLI::Option *option, std::function<QStringList()> values)
{
    m_offers[option] = std::move(values);
}

QStringList CommandLine::offersFor(const CLI::Option *option) const
{
    const auto found = m_offers.find(option);
    return found == m_offers.end() ? QStringList() : found->second();
}

CLI::Option *CommandLine::file(CLI::App *command, QString &value)
{
    return path(command, "FILE", value, "Configuration file (.ipc)", "")->required();
}

CLI::Option *CommandLine::outDir(CLI::App *command, QString &value)
{
    return path(command, "--out", value, "Output folder (default: the file's folder)", "DIR");
}

CLI::Option *CommandLine::device(CLI::App *command, DeviceChoice &choice, const char *help)
{
    CLI::Option *device = text(command, "--device", choice.device, help, "ID|NAME|PART");
    device->required();
    offer(device, [] {
        QStringList ids;
        const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
        for (const DEV::DeviceArg &entry : devices)
            ids.append(entry.id());
        return ids;
    });
    text(command, "--package", choice.package, "Package, if the device is a name", "P");
    text(command, "--speed", choice.speed, "Speed grade, if the device is a name", "S");
    return device;
}

void CommandLine::json(CLI::App *command, bool &value)
{
    command->add_flag("--json", value, "Print one JSON object");
}

void CommandLine::force(CLI::App *command, bool &value)
{
    command->add_flag("--force", value, "Replace an existing file");
}

QString CommandLine::pathMistake() const
{
    for (const auto &given : m_paths) {
        for (const QString &path : given()) {
            if (!path.isEmpty() && !path.startsWith(u'/'))
                return Utils::nonUtf8CurrentFolder();
        }
    }
    return {};
}

} // namespace Cli
