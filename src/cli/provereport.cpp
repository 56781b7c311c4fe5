#include "provereport.h"

#include <QJsonArray>

#include <algorithm>

namespace Cli
{

using Synthesis::ProofPart;
using Synthesis::ProofReport;

namespace
{

const QString notBehind =
    QStringLiteral("Nothing was simulated. \"orixm1 simulate FILE --model netlist\" runs a program "
                   "on the netlist.");

// Lines below a part.
QStringList detailsOf(const ProofPart &part)
{
    QStringList lines;
    if (!part.reason.isEmpty())
        lines.append(part.reason);
    for (const QString &difference : part.differences)
        lines.append(QLatin1String("differs: ") + difference);
    if (!part.counterexample.isEmpty())
        lines.append(QLatin1String("the first one with ") +
                     part.counterexample.join(QLatin1String(", ")));
    return lines;
}

QString escaped(QString text)
{
    for (const QChar c : {u'\\', u'|', u'*', u'_', u'`', u'<', u'[', u'#'})
        text.replace(c, QString(u'\\') + c);
    return text;
}

} // namespace

QString verdictOf(const ProofReport &report)
{
    if (report.isProven())
        return proofResultName(ProofPart::Proven);
    const bool isRefuted =
        std::any_of(report.parts.begin(), report.parts.end(),
                    [](const ProofPart &part) { return part.result == ProofPart::Refuted; });
    return proofResultName(isRefuted ? ProofPart::Refuted : ProofPart::NotDecided);
}

QStringList linesOf(const ProofSubject &subject, const ProofReport &report)
{
    QStringList lines = {QLatin1String("Configuration: ") + subject.configuration,
                         QLatin1String("Device: ") + subject.device,
                         QLatin1String("Netlist: ") + subject.netlist};
    if (!subject.vhdlNetlist.isEmpty())
        lines.append(QLatin1String("VHDL netlist: ") + subject.vhdlNetlist);
    lines.append(QLatin1String("Tools: ") + report.tools.join(QLatin1String(", ")));
    lines.append(QString());
    for (const ProofPart &part : report.parts) {
        lines.append(QStringLiteral("%1 %2").arg(proofResultName(part.result), -12).arg(part.name));
        for (const QString &detail : detailsOf(part))
            lines.append(QString(13, u' ') + detail);
    }
    lines += {QString(), QStringLiteral("What this rests on:")};
    for (const QString &assumption : report.assumptions)
        lines.append(QLatin1String("- ") + assumption);
    lines +=
        {QLatin1String("- ") + notBehind, QString(), QLatin1String("Result: ") + verdictOf(report)};
    return lines;
}

QJsonObject jsonOf(const ProofSubject &subject, const ProofReport &report)
{
    QJsonArray parts;
    for (const ProofPart &part : report.parts)
        parts.append(QJsonObject{
            {QStringLiteral("id"), part.id},
            {QStringLiteral("name"), part.name},
            {QStringLiteral("method"), part.method},
            {QStringLiteral("result"), proofResultName(part.result)},
            {QStringLiteral("reason"), part.reason},
            {QStringLiteral("differences"), QJsonArray::fromStringList(part.differences)},
            {QStringLiteral("counterexample"), QJsonArray::fromStringList(part.counterexample)}});
    return {{QStringLiteral("configuration"), subject.configuration},
            {QStringLiteral("device"), subject.device},
            {QStringLiteral("netlist"), subject.netlist},
            {QStringLiteral("vhdlNetlist"), subject.vhdlNetlist},
            {QStringLiteral("tools"), QJsonArray::fromStringList(report.tools)},
            {QStringLiteral("parts"), parts},
            {QStringLiteral("assumptions"),
             QJsonArray::fromStringList(report.assumptions + QStringList{notBehind})},
            {QStringLiteral("result"), verdictOf(report)}};
}

QString markdownOf(const ProofSubject &subject, const ProofReport &report)
{
    QString text = QLatin1String("# Proof of ") + escaped(subject.configuration) +
                   QLatin1String("\n\nResult: **") + verdictOf(report) +
                   QLatin1String("**\n\n- Device: ") + escaped(subject.device) +
                   QLatin1String("\n- Netlist: ") + escaped(subject.netlist) + u'\n';
    if (!subject.vhdlNetlist.isEmpty())
        text += QLatin1String("- VHDL netlist: ") + escaped(subject.vhdlNetlist) + u'\n';
    text += QLatin1String("- Tools: ") + escaped(report.tools.join(QLatin1String(", "))) +
            QLatin1String("\n\n| result | what | how |\n|---|---|---|\n");
    for (const ProofPart &part : report.parts)
        text += QLatin1String("| ") + proofResultName(part.result) + QLatin1String(" | ") +
                escaped(part.name) + QLatin1String(" | ") + escaped(part.method) +
                QLatin1String(" |\n");
    for (const ProofPart &part : report.parts) {
        const QStringList details = detailsOf(part);
        if (details.isEmpty())
            continue;
        text += QLatin1String("\n## ") + escaped(part.name) + QLatin1String("\n\n");
        for (const QString &detail : details)
            text += QLatin1String("- ") + escaped(detail) + u'\n';
    }
    text += QLatin1String("\n## What this rests on\n\n");
    for (const QString &assumption : report.assumptions + QStringList{notBehind})
        text += QLatin1String("- ") + escaped(assumption) + u'\n';
    return text;
}

} // namespace Cli
