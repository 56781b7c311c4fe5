#include "suggestion.h"

#include <config/nearest.h>

#include <CLI/CLI.hpp>

#include <QStringList>

namespace Cli
{

namespace
{

void addOptions(const CLI::App &app, QStringList *names)
{
    for (const CLI::Option *option : app.get_options()) {
        for (const std::string &name : option->get_lnames())
            names->append(QLatin1String("--") + QString::fromStdString(name));
    }
    const auto isGroup = [](const CLI::App *sub) { return sub->get_name().empty(); };
    for (const CLI::App *group : app.get_subcommands(isGroup))
        addOptions(*group, names);
}

} // namespace

Problem problemOf(const CLI::App &app, const CLI::ParseError &error)
{
    const std::vector<std::string> words = app.remaining(true);
    if (error.get_exit_code() != int(CLI::ExitCodes::ExtrasError) || words.empty())
        return {QString::fromStdString(error.what())};
    const QString given = QString::fromStdString(words.front());
    const std::vector<CLI::App *> chosen = app.get_subcommands();
    const QString word = given.section(u'=', 0, 0);
    if (given.startsWith(u'-')) {
        QStringList known;
        addOptions(app, &known);
        for (const CLI::App *command : chosen)
            addOptions(*command, &known);
        return {QLatin1String("Unknown option \"") + word + QLatin1String("\"."),
                word,
                {},
                0,
                didYouMean(TARVOORIXM1::nearestText(word, known))};
    }
    if (chosen.empty()) {
        QStringList known;
        for (const CLI::App *command : app.get_subcommands([](const CLI::App *) { return true; }))
            known.append(QString::fromStdString(command->get_name()));
        const QString fix = didYouMean(TARVOORIXM1::nearestText(given, known));
        return {QLatin1String("Unknown command \"") + given + QLatin1String("\"."),
                given,
                {},
                0,
                fix.isEmpty() ? QStringLiteral("\"orixm1 --help\" lists them.") : fix};
    }
    return {QLatin1String("The argument \"") + given + QLatin1String("\" is not expected."), given};
}

} // namespace Cli
