#include "commands.h"

#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <config/check.h>
#include <config/optionkeys.h>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

// What is wrong with the file around its options.
QVector<Finding> checkFrame(const IpcDocument &document, const QVariantMap &ipInfo)
{
    QVector<Finding> findings;
    if (document.device.isNull()) {
        const QString message =
            document.deviceText.isEmpty()
                ? QStringLiteral("the file names no device")
                : QString(QLatin1String("unknown device \"") + document.deviceText + u'"');
        findings.append({Finding::Error, QStringLiteral("target_device"), message});
    }
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

} // namespace

int runCheck(Environment &environment, const QString &file, bool json)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty())
        return BadInput;
    IpcDocument document;
    if (!openDocument(environment, file, &document))
        return BadInput;
    const QVector<Finding> findings =
        checkFrame(document, ipInfo) +
        checkOptions(document.options, document.device, document.folder());

    bool anyError = false;
    QJsonArray list;
    for (const Finding &finding : findings) {
        const bool isError = finding.severity == Finding::Error;
        anyError |= isError;
        const QString severity = isError ? QStringLiteral("error") : QStringLiteral("warning");
        if (json) {
            list.append(QJsonObject{{QStringLiteral("severity"), severity},
                                    {QStringLiteral("key"), finding.key},
                                    {QStringLiteral("message"), finding.message}});
        } else {
            printLine(file + u':' + finding.key + QLatin1String(": ") + severity +
                      QLatin1String(": ") + finding.message);
        }
    }
    if (json)
        printJson({{QStringLiteral("file"), file}, {QStringLiteral("findings"), list}});
    return anyError ? Failed : Done;
}

} // namespace Cli
