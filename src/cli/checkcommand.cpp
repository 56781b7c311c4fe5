#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "estimates.h"
#include "findings.h"
#include "ipcdocument.h"
#include "output.h"

#include <config/optionkeys.h>
#include <registers/interrupts.h>

#include <QDir>

#include <algorithm>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

// What is wrong with the file around its options.
QVector<Finding> checkFrame(const IpcDocument &document, const QVariantMap &ipInfo)
{
    QVector<Finding> findings;
    if (const QString problem = document.deviceProblem(); !problem.isEmpty())
        findings.append({Finding::Error, QStringLiteral("target_device"), problem});
    const QString id = ipInfo.value(InfoKey::id).toString();
    if (document.type != id)
        findings.append({Finding::Warning, QStringLiteral("type"),
                         QLatin1String("is \"") + document.type +
                             QLatin1String("\", but this IP is \"") + id + u'"'});
    for (const QString &entry : document.unknownEntries)
        findings.append({Finding::Warning, entry, QStringLiteral("unknown entry")});
    for (const Reading::IniEntry &entry : document.oddEntries)
        findings.append(
            {entry.bytes == Reading::IniEntry::Utf8 ? Finding::Error : Finding::Warning, entry.key,
             QLatin1String("line ") + QString::number(entry.line) +
                 QLatin1String(" holds bytes that are not ASCII, which are read as Latin-1: \"") +
                 entry.values.join(QLatin1String(", ")) +
                 QLatin1String("\"; write such a character as \\x and its number in hexadecimal")});
    return findings;
}

// Data without register descriptions has no interrupts to tell of.
Utils::Result<QVector<InterruptSource>> readInterrupts(const QString &dataFolder)
{
    const bool described = !QDir(dataFolder + QLatin1String("/registers")).isEmpty(QDir::Files);
    const auto peripherals =
        described ? readRegisterMap(dataFolder) : Utils::Result(QVector<Peripheral>());
    if (!peripherals)
        return Utils::Failure{peripherals.reason()};
    const auto others = readOtherInterrupts(dataFolder);
    if (!others)
        return others;
    return interruptSources(*peripherals, *others);
}

// Where a key is in doubt already, its interrupt adds nothing.
QVector<Finding> withInterrupts(QVector<Finding> findings, const QVector<Finding> &interrupts)
{
    const QVector<Finding> told = findings;
    for (const Finding &finding : interrupts) {
        const bool isTold = std::any_of(told.begin(), told.end(), [&finding](const Finding &other) {
            return other.key == finding.key;
        });
        if (!isTold)
            findings.append(finding);
    }
    return findings;
}

// Where the device may be too small.
QVector<Finding> sizeFindings(const Estimate &estimate)
{
    QVector<Finding> findings;
    const QStringList sentences = shortages(estimate);
    for (const QString &sentence : sentences)
        findings.append({Finding::Warning, QStringLiteral("target_device"), sentence});
    return findings;
}

int runCheck(Environment &environment, const QString &file, bool json)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty())
        return BadInput;
    IpcDocument document;
    if (!openDocument(environment, file, &document))
        return BadInput;
    const auto interrupts = readInterrupts(environment.dataFolder());
    if (!interrupts) {
        printProblem({interrupts.reason()});
        return BadInput;
    }
    bool isTableSound = true;
    const auto estimated = estimateOf(environment, document, &isTableSound);
    if (!isTableSound)
        return BadInput;
    const QVector<Finding> findings =
        checkFrame(document, ipInfo) +
        withInterrupts(checkOptions(document.options, document.device, document.folder()),
                       interruptFindings(*interrupts, document.options)) +
        (estimated ? sizeFindings(*estimated) : QVector<Finding>());

    bool anyError = false;
    QJsonArray list;
    for (const Finding &finding : findings) {
        const bool isError = finding.severity == Finding::Error;
        anyError |= isError;
        if (isError)
            recordProblem({finding.message, finding.key, file});
        if (json)
            list.append(jsonOf(finding));
        else
            printLine(file + u':' + finding.key + QLatin1String(": ") + severityName(finding) +
                      QLatin1String(": ") + finding.message);
    }
    if (json)
        printJson({{QStringLiteral("file"), file}, {QStringLiteral("findings"), list}});
    return anyError ? Failed : Done;
}

} // namespace

void declareCheck(CommandLine &line)
{
    struct Arguments {
        QString file;
        bool json = false;
    };
    auto arguments = std::make_shared<Arguments>();
    CLI::App *command =
        line.command("check", "List what is wrong or doubtful in a configuration; changes nothing",
                     "orixm1 check tarvo_orix_m1.ipc", [arguments](Environment &environment) {
                         return runCheck(environment, arguments->file, arguments->json);
                     });
    line.file(command, arguments->file);
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
