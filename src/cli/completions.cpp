#include "commandline.h"
#include "commands.h"
#include "output.h"

#include <CLI/CLI.hpp>

namespace Cli
{

namespace
{

// What may stand behind an option, or as an argument.
struct Value {
    enum Kind { None, Text, File, Folder, Configuration };
    Kind kind = None;
    QString type;
    QStringList offers;
};

struct OptionShape {
    QStringList shortNames; // without dashes
    QStringList longNames;
    QString help;
    Value value;
    bool isRepeated = false;
};

struct ArgumentShape {
    QString name;
    Value value;
    bool isRepeated = false;
};

// A command as the three shells see it; the first one is the program itself.
struct CommandShape {
    QString name;
    QString help;
    QVector<OptionShape> options;
    QVector<ArgumentShape> arguments;
};

QString qt(const std::string &text)
{
    return QString::fromStdString(text);
}

QStringList qt(const std::vector<std::string> &texts)
{
    QStringList list;
    for (const std::string &entry : texts)
        list.append(qt(entry));
    return list;
}

Value valueOf(const CommandLine &line, const CLI::Option *option)
{
    Value value;
    value.type = qt(option->get_type_name());
    value.offers = line.offersFor(option);
    if (option->get_items_expected_max() == 0)
        return value;
    const bool isPath = line.isPath(option);
    value.kind = isPath && option->get_positional() && option->get_name() == "FILE"
                     ? Value::Configuration
                 : isPath && value.type == QLatin1String("DIR") ? Value::Folder
                 : isPath                                       ? Value::File
                                                                : Value::Text;
    return value;
}

void collect(const CommandLine &line, const CLI::App &app, CommandShape *shape)
{
    for (const CLI::Option *option : app.get_options()) {
        const bool isRepeated = option->get_items_expected_max() > 1;
        if (option->nonpositional())
            shape->options.append({qt(option->get_snames()), qt(option->get_lnames()),
                                   qt(option->get_description()), valueOf(line, option),
                                   isRepeated});
        else
            shape->arguments.append({qt(option->get_name()), valueOf(line, option), isRepeated});
    }
    const auto isGroup = [](const CLI::App *sub) { return sub->get_name().empty(); };
    for (const CLI::App *group : app.get_subcommands(isGroup))
        collect(line, *group, shape);
}

QVector<CommandShape> shapesOf(const CommandLine &line)
{
    const CLI::App &app = line.app();
    QVector<CommandShape> shapes(1);
    collect(line, app, &shapes.first());
    const auto isCommand = [](const CLI::App *sub) { return !sub->get_name().empty(); };
    for (const CLI::App *command : app.get_subcommands(isCommand)) {
        CommandShape shape;
        shape.name = qt(command->get_name());
        shape.help = qt(command->get_description());
        collect(line, *command, &shape);
        shapes.append(shape);
    }
    return shapes;
}

QStringList commandNames(const QVector<CommandShape> &shapes)
{
    QStringList names;
    for (const CommandShape &shape : shapes.mid(1))
        names.append(shape.name);
    return names;
}

QStringList dashed(const OptionShape &option)
{
    QStringList names;
    for (const QString &name : option.shortNames)
        names.append(u'-' + name);
    for (const QString &name : option.longNames)
        names.append(QLatin1String("--") + name);
    return names;
}

// A word of a shell, whatever is in it.
QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', QLatin1String("'\\''")) + u'\'';
}

// Words of a list, in which a space ends one.
QString listed(QStringList words)
{
    for (QString &word : words)
        word.replace(u' ', QLatin1String("\\ "));
    return words.join(u' ');
}

QString bashAnswer(const Value &value)
{
    switch (value.kind) {
    case Value::Folder:
        return QStringLiteral("_orixm1_files -d");
    case Value::File:
        return QStringLiteral("_orixm1_files -f");
    case Value::Configuration:
        return QStringLiteral("_orixm1_files -f -X '!*.ipc'; _orixm1_files -d");
    case Value::Text:
    case Value::None:
        break;
    }
    return value.offers.isEmpty()
               ? QStringLiteral(":")
               : QLatin1String("_orixm1_words ") + quoted(value.offers.join(u'\n'));
}

QString bashScript(const QVector<CommandShape> &shapes)
{
    QString text =
        QStringLiteral(R"(# Completions of orixm1 for bash: source <(orixm1 completions bash)
_orixm1_words() {
    local IFS=$'\n' found
    mapfile -t found < <(compgen -W "$1" -- "${cur//[\\\"\']/}")
    ((${#found[@]} == 0)) || mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(printf '%q\n' "${found[@]}")
    [[ ${COMPREPLY[0]} != *= ]] || compopt -o nospace 2>/dev/null || :
}
_orixm1_files() {
    local found
    mapfile -t found < <(compgen "$@" -- "$cur")
    COMPREPLY+=("${found[@]}")
    compopt -o filenames 2>/dev/null || :
}
_orixm1() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]} command= word
    COMPREPLY=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case $word in
        %1)
            command=$word
            break
            ;;
        esac
    done
    case $command,$prev in
)")
            .arg(commandNames(shapes).join(u'|'));
    for (const CommandShape &shape : shapes) {
        for (const OptionShape &option : shape.options) {
            if (option.value.kind == Value::None)
                continue;
            QStringList patterns;
            const QStringList names = dashed(option);
            for (const QString &name : names)
                patterns.append((shape.name.isEmpty() ? QStringLiteral("*") : shape.name) + u',' +
                                name);
            text += QStringLiteral("    %1)\n        %2\n        return\n        ;;\n")
                        .arg(patterns.join(QLatin1String(" | ")), bashAnswer(option.value));
        }
    }
    text += QLatin1String("    esac\n    case $command,$cur in\n");
    QStringList common;
    for (const OptionShape &option : shapes.first().options)
        common += dashed(option);
    for (const CommandShape &shape : shapes) {
        QStringList options;
        for (const OptionShape &option : shape.options)
            options += dashed(option);
        if (!shape.name.isEmpty())
            options += common;
        options.removeDuplicates();
        text += QStringLiteral("    %1,-*)\n        _orixm1_words %2\n        ;;\n")
                    .arg(shape.name, quoted(options.join(u'\n')));
        QString answers = shape.name.isEmpty() ? QLatin1String("_orixm1_words ") +
                                                     quoted(commandNames(shapes).join(u'\n'))
                                               : QString();
        for (const ArgumentShape &argument : shape.arguments)
            answers +=
                (answers.isEmpty() ? QString() : QStringLiteral("; ")) + bashAnswer(argument.value);
        text += QStringLiteral("    %1,*)\n        %2\n        ;;\n")
                    .arg(shape.name, answers.isEmpty() ? QStringLiteral(":") : answers);
    }
    return text + QLatin1String("    esac\n}\ncomplete -F _orixm1 orixm1\n");
}

// Within an argument of zsh's _arguments.
QString zshText(QString text)
{
    for (const QChar special : {QChar(u'\\'), QChar(u'['), QChar(u']'), QChar(u':')})
        text.replace(special, QString(u'\\') + special);
    return text;
}

QStringList zshTexts(QStringList texts)
{
    for (QString &text : texts)
        text = zshText(text);
    return texts;
}

QString zshAction(const Value &value)
{
    switch (value.kind) {
    case Value::Folder:
        return QStringLiteral("_files -/");
    case Value::File:
        return QStringLiteral("_files");
    case Value::Configuration:
        return QStringLiteral("_files -g \"*.ipc(-.)\"");
    case Value::Text:
    case Value::None:
        break;
    }
    return value.offers.isEmpty() ? QStringLiteral(" ")
                                  : u'(' + listed(zshTexts(value.offers)) + u')';
}

QStringList zshArguments(const CommandShape &shape)
{
    QStringList words;
    for (const OptionShape &option : shape.options) {
        const QStringList names = dashed(option);
        for (const QString &name : names) {
            QString word = (option.isRepeated ? QStringLiteral("*") : QString()) + name + u'[' +
                           zshText(option.help) + u']';
            if (option.value.kind != Value::None)
                word += u':' + zshText(option.value.type) + u':' + zshAction(option.value);
            words.append(quoted(word));
        }
    }
    for (const ArgumentShape &argument : shape.arguments)
        words.append(quoted((argument.isRepeated ? QStringLiteral("*:") : QStringLiteral(":")) +
                            zshText(argument.name) + u':' + zshAction(argument.value)));
    return words;
}

QString zshScript(const QVector<CommandShape> &shapes)
{
    const QString next = QStringLiteral(" \\\n            ");
    QStringList descriptions;
    for (const CommandShape &shape : shapes.mid(1))
        descriptions.append(quoted(shape.name + u':' + zshText(shape.help)));
    QString text = QStringLiteral(R"(#compdef orixm1
# Completions of orixm1 for zsh: a file _orixm1 in a folder of $fpath, or source <(orixm1 completions zsh)
_orixm1() {
    local curcontext=$curcontext state line
    local -a commands=(
        %1
    )
    _arguments -C \
        %2 \
        '1:command:->command' '*::argument:->argument'
    case $state in
    command)
        _describe command commands
        ;;
    argument)
        case $line[1] in
)")
                       .arg(descriptions.join(QLatin1String("\n        ")),
                            zshArguments(shapes.first()).join(QLatin1String(" \\\n        ")));
    for (const CommandShape &shape : shapes.mid(1))
        text += QStringLiteral("        %1)\n            _arguments%2%3\n            ;;\n")
                    .arg(shape.name, next, zshArguments(shape).join(next));
    return text + QLatin1String("        esac\n        ;;\n    esac\n}\n"
                                "if [[ $zsh_eval_context[-1] == loadautofunc ]]; then\n"
                                "    _orixm1 \"$@\"\nelse\n    compdef _orixm1 orixm1\nfi\n");
}

// Within single quotes of fish.
QString fishQuoted(QString text)
{
    return u'\'' + text.replace(u'\\', QLatin1String("\\\\")).replace(u'\'', QLatin1String("\\'")) +
           u'\'';
}

QString fishAnswer(const Value &value)
{
    switch (value.kind) {
    case Value::Folder:
        return QStringLiteral("-x -a '(__fish_complete_directories)'");
    case Value::File:
        return QStringLiteral("-r -F");
    case Value::Configuration:
        return QStringLiteral("-a '(__fish_complete_suffix .ipc)'");
    case Value::Text:
        break;
    case Value::None:
        return {};
    }
    return value.offers.isEmpty() ? QStringLiteral("-x")
                                  : QLatin1String("-x -a ") + fishQuoted(listed(value.offers));
}

QString fishScript(const QVector<CommandShape> &shapes)
{
    QString text =
        QStringLiteral("# Completions of orixm1 for fish: orixm1 completions fish | source\n"
                       "complete -c orixm1 -f\n");
    for (const CommandShape &shape : shapes) {
        const QString condition =
            shape.name.isEmpty()
                ? QString()
                : QLatin1String(" -n ") +
                      fishQuoted(QLatin1String("__fish_seen_subcommand_from ") + shape.name);
        if (!shape.name.isEmpty())
            text += QLatin1String("complete -c orixm1 -n __fish_use_subcommand -a ") + shape.name +
                    QLatin1String(" -d ") + fishQuoted(shape.help) + u'\n';
        for (const OptionShape &option : shape.options) {
            QString names;
            for (const QString &name : option.shortNames)
                names += QLatin1String(" -s ") + name;
            for (const QString &name : option.longNames)
                names += QLatin1String(" -l ") + name;
            const QString answer = fishAnswer(option.value);
            text += QLatin1String("complete -c orixm1") + condition + names +
                    (answer.isEmpty() ? QString() : u' ' + answer) + QLatin1String(" -d ") +
                    fishQuoted(option.help) + u'\n';
        }
        for (const ArgumentShape &argument : shape.arguments) {
            QString answer = fishAnswer(argument.value);
            if (argument.value.kind == Value::Text)
                answer.remove(QLatin1String("-x "));
            if (answer.startsWith(QLatin1String("-a")) || answer == QLatin1String("-r -F"))
                text += QLatin1String("complete -c orixm1") + condition + u' ' +
                        (answer == QLatin1String("-r -F") ? QStringLiteral("-F") : answer) + u'\n';
        }
    }
    return text;
}

struct Shell {
    QLatin1String name;
    QString (*script)(const QVector<CommandShape> &shapes);
};

constexpr Shell shells[] = {
    {QLatin1String("bash"), bashScript},
    {QLatin1String("zsh"), zshScript},
    {QLatin1String("fish"), fishScript},
};

QStringList shellNames()
{
    QStringList names;
    for (const Shell &shell : shells)
        names.append(shell.name);
    return names;
}

} // namespace

void declareCompletions(CommandLine &line)
{
    auto name = std::make_shared<QString>();
    CLI::App *command = line.command(
        "completions", "Print what a shell needs to complete commands, options and values",
        "source <(orixm1 completions bash)", [name, &line](Environment &) {
            for (const Shell &shell : shells) {
                if (shell.name == *name)
                    printText(stdout, shell.script(shapesOf(line)).toStdString());
            }
            return Done;
        });
    CommandLine::require(
        line.choice(command, "SHELL", *name, shellNames(), "bash, zsh or fish", ""));
}

} // namespace Cli
