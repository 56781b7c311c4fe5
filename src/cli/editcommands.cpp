#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "findings.h"
#include "ipcdocument.h"
#include "output.h"

#include <preview/meanings.h>
#include <rules/settings.h>

#include <algorithm>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct EditArguments {
    QString file;
    QStringList keys; // or settings
    bool dryRun = false;
    bool json = false;
};

// What the check finds now and did not find before.
QVector<Finding> newFindings(const IpcDocument &document, const OptionMap &options)
{
    const QVector<Finding> before =
        checkOptions(document.options, document.device, document.folder());
    QVector<Finding> findings = checkOptions(options, document.device, document.folder());
    const auto isOld = [&before](const Finding &finding) {
        return std::any_of(before.begin(), before.end(), [&finding](const Finding &old) {
            return old.key == finding.key && old.message == finding.message;
        });
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), isOld), findings.end());
    return findings;
}

// Keys whose entries differ, whatever they mean.
QStringList changedKeys(const OptionMap &before, const OptionMap &after)
{
    OptionMap all = before;
    for (auto it = after.cbegin(); it != after.cend(); ++it)
        all.insert(it.key(), it.value());
    QStringList keys;
    for (auto it = all.cbegin(); it != all.cend(); ++it) {
        const auto old = before.constFind(it.key());
        const auto now = after.constFind(it.key());
        const bool isSame =
            old != before.cend() && now != after.cend() && valueText(*old) == valueText(*now);
        if (!isSame)
            keys.append(it.key());
    }
    return keys;
}

int finishEdit(const IpcDocument &document, const OptionMap &options,
               const EditArguments &arguments)
{
    const QStringList keys = changedKeys(document.options, options);
    const bool writes = !keys.isEmpty() && !arguments.dryRun;
    const Utils::Result<void> written =
        writes ? writeEdited(document, document.path, document.frame, options)
               : Utils::Result<void>();
    if (!written) {
        printProblem({written.reason(), {}, arguments.file});
        return Failed;
    }
    QJsonArray changes;
    QStringList lines;
    for (const QString &key : keys) {
        const OptionDifference change = {meaningOf(document.options, key, document.device),
                                         meaningOf(options, key, document.device)};
        changes.append(jsonOf(change));
        lines.append(shownDifference(change));
    }
    QJsonArray findings;
    for (const Finding &finding : newFindings(document, options)) {
        findings.append(jsonOf(finding));
        printError(finding.key + QLatin1String(": ") + severityName(finding) + QLatin1String(": ") +
                   finding.message);
    }
    if (arguments.json) {
        printJson({{QStringLiteral("file"), arguments.file},
                   {QStringLiteral("changes"), changes},
                   {QStringLiteral("findings"), findings},
                   {QStringLiteral("written"), writes}});
        return Done;
    }
    if (lines.isEmpty())
        printLine(QStringLiteral("Nothing changes."));
    for (const QString &line : qAsConst(lines))
        printLine(line);
    return Done;
}

int runSet(Environment &environment, const EditArguments &arguments)
{
    IpcDocument document;
    if (!openDocument(environment, arguments.file, &document))
        return BadInput;
    QVector<Setting> settings;
    for (const QString &text : arguments.keys) {
        const Utils::Result<Setting> setting = settingFromText(text);
        if (setting)
            settings.append(*setting);
        else
            printProblem({setting.reason(), text.section(u'=', 0, 0), arguments.file});
    }
    if (settings.size() < arguments.keys.size())
        return WrongUsage;
    OptionMap options = document.options;
    for (const Setting &setting : qAsConst(settings))
        applySetting(setting, document.folder(), &options);
    // What is said outright counts, wherever it stands.
    for (const Setting &setting : qAsConst(settings))
        options.insert(setting.key, setting.value);
    return finishEdit(document, options, arguments);
}

int runUnset(Environment &environment, const EditArguments &arguments)
{
    IpcDocument document;
    if (!openDocument(environment, arguments.file, &document))
        return BadInput;
    OptionMap options = document.options;
    bool allKnown = true;
    for (const QString &key : arguments.keys) {
        // Entries that nobody knows can be removed, too.
        if (!findOption(key) && !document.options.contains(key)) {
            printProblem({unknownKeyText(key), key, arguments.file});
            allKnown = false;
        }
        options.remove(key);
    }
    return allKnown ? finishEdit(document, options, arguments) : WrongUsage;
}

int runMinimize(Environment &environment, const EditArguments &arguments)
{
    IpcDocument document;
    if (!openForDevice(environment, arguments.file, &document))
        return BadInput;
    return finishEdit(document, minimized(document.options, document.device), arguments);
}

using Run = int (*)(Environment &, const EditArguments &);

std::function<int(Environment &)> running(Run run, const std::shared_ptr<EditArguments> &arguments)
{
    return [run, arguments](Environment &environment) { return run(environment, *arguments); };
}

} // namespace

QStringList knownKeys()
{
    QStringList keys;
    for (const Option &option : optionTable())
        keys.append(option.key);
    return keys;
}

void declareSet(CommandLine &line)
{
    auto arguments = std::make_shared<EditArguments>();
    CLI::App *command = line.command("set", "Set options in a configuration file",
                                     "orixm1 set tarvo_orix_m1.ipc \"Enable UART0=true\"",
                                     running(runSet, arguments));
    line.file(command, arguments->file);
    CLI::Option *settings = CommandLine::texts(command, "KEY=VALUE", arguments->keys,
                                               "Options, as listed by \"orixm1 options\"", "");
    CommandLine::require(settings);
    line.offer(settings, [] {
        QStringList offers;
        for (const QString &key : knownKeys())
            offers.append(key + u'=');
        return offers;
    });
    CommandLine::json(command, arguments->json);
}

void declareUnset(CommandLine &line)
{
    auto arguments = std::make_shared<EditArguments>();
    CLI::App *command = line.command("unset", "Remove options from a configuration file",
                                     "orixm1 unset tarvo_orix_m1.ipc ITCM_Size DTCM_Size",
                                     running(runUnset, arguments));
    line.file(command, arguments->file);
    CLI::Option *keys =
        CommandLine::texts(command, "KEY", arguments->keys, "Options to remove", "");
    CommandLine::require(keys);
    line.offer(keys, knownKeys);
    CommandLine::json(command, arguments->json);
}

void declareMinimize(CommandLine &line)
{
    auto arguments = std::make_shared<EditArguments>();
    CLI::App *command = line.command(
        "minimize", "Remove from a configuration file what says no more than its absence",
        "orixm1 minimize tarvo_orix_m1.ipc", running(runMinimize, arguments));
    line.file(command, arguments->file);
    CommandLine::flag(command, "--dry-run", arguments->dryRun, "Only tell; write nothing");
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
