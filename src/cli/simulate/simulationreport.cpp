#include "simulationreport.h"

#include "../output.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

QString nameOf(SimulationEnd::Result result)
{
    switch (result) {
    case SimulationEnd::Passed:
        return QStringLiteral("passed");
    case SimulationEnd::Failed:
        return QStringLiteral("failed");
    case SimulationEnd::TimeLimit:
        return QStringLiteral("time limit");
    case SimulationEnd::Cancelled:
        break;
    }
    return QStringLiteral("cancelled");
}

QString note()
{
    return QStringLiteral("The model executes an instruction a clock cycle: instruction counts "
                          "are no cycle counts of the processor.");
}

QString counted(qint64 number, const char *what)
{
    return QStringLiteral("%1 %2%3").arg(number).arg(QLatin1String(what),
                                                     number == 1 ? QString() : QStringLiteral("s"));
}

// The UARTs of the configuration.
QVector<int> uartsOf(const SystemMap &map)
{
    QVector<int> numbers;
    for (const int number : {0, 1}) {
        if (findRegion(map, QStringLiteral("UART%1").arg(number)))
            numbers.append(number);
    }
    return numbers;
}

// Why a script that has ended did not pass; empty: it did.
QString scriptReason(const SimulationEnd &end)
{
    if (end.failures == 0)
        return end.checks == 0 ? QStringLiteral("the script checks nothing") : QString();
    QString text = QStringLiteral("%1 in %2")
                       .arg(counted(end.failures, "failure"), counted(end.checks, "check"));
    if (!end.failed.isEmpty())
        text += QLatin1String(end.failures == 1 ? ": " : ", the first one: ") +
                failureText(end.failed.first());
    return text;
}

} // namespace

int statusOf(const SimulationEnd &end)
{
    switch (end.result) {
    case SimulationEnd::Passed:
        return Done;
    case SimulationEnd::Failed:
        return Failed;
    case SimulationEnd::TimeLimit:
        return TimeLimit;
    case SimulationEnd::Cancelled:
        break;
    }
    return Cancelled;
}

QString reasonOf(const SimulationEnd &end)
{
    QString text = end.isScript && end.hasCounts ? scriptReason(end) : end.reason;
    if (end.result == SimulationEnd::TimeLimit)
        text = end.isScript ? QStringLiteral("the script has not ended")
                            : QStringLiteral("the program has not ended");
    if (end.lockedUpAt >= 0)
        text += (text.isEmpty() ? QString() : QStringLiteral("; ")) +
                QStringLiteral("the processor locked up at clock cycle %1").arg(end.lockedUpAt);
    return text;
}

QStringList summaryOf(const SimulationReport &report)
{
    const SimulationEnd &end = report.end;
    if (end.result == SimulationEnd::Cancelled)
        return {QStringLiteral("Cancelled.")};
    QStringList lines;
    QString line =
        QStringLiteral("%1 after %2 clock cycles")
            .arg(end.result == SimulationEnd::Passed   ? QStringLiteral("Passed")
                 : end.result == SimulationEnd::Failed ? QStringLiteral("Failed")
                                                       : QStringLiteral("Time limit reached"))
            .arg(end.cycles);
    if (const QString why = reasonOf(end); !why.isEmpty())
        line += QLatin1String(": ") + why;
    lines.append(line + u'.');
    if (end.failures > end.failed.size())
        lines.append(
            QStringLiteral("Of the failures the first %1 are told.").arg(end.failed.size()));
    QStringList sent;
    const QVector<int> numbers = uartsOf(report.map);
    for (const int number : numbers)
        sent.append(
            QStringLiteral("UART%1 has sent %2 bytes").arg(number).arg(end.uartBytes[number]));
    if (!sent.isEmpty())
        lines.append(sent.join(QLatin1String(", ")) + u'.');
    if (!end.emptyBlocks.isEmpty())
        lines.append(
            QLatin1String("Licensed blocks are empty here and answer with bus errors; the ") +
            QLatin1String(end.isScript ? "script" : "program") + QLatin1String(" has accessed ") +
            end.emptyBlocks.join(QLatin1String(", ")) + u'.');
    if (!end.isScript)
        lines.append(note());
    return lines;
}

QByteArray documentOf(const SimulationReport &report)
{
    const SimulationEnd &end = report.end;
    const SimulateArguments &arguments = report.arguments;
    QJsonArray lines;
    const QVector<int> numbers = uartsOf(report.map);
    for (const int number : numbers)
        lines.append(QJsonObject{{QStringLiteral("name"), QStringLiteral("UART%1").arg(number)},
                                 {QStringLiteral("bytes"), end.uartBytes[number]}});
    QJsonObject object{
        {QStringLiteral("result"), nameOf(end.result)},
        {QStringLiteral("reason"), reasonOf(end)},
        {QStringLiteral("configuration"), arguments.file},
        {QStringLiteral("clockCycles"), qint64(end.cycles)},
        {QStringLiteral("timeout"), qint64(arguments.timeout)},
        {QStringLiteral("uarts"), lines},
        {QStringLiteral("emptyBlocks"), QJsonArray::fromStringList(end.emptyBlocks)}};
    if (!end.isScript)
        object.insert(QStringLiteral("note"), note());
    if (end.isScript) {
        QJsonArray failed;
        for (const ScriptFailure &failure : end.failed)
            failed.append(QJsonObject{{QStringLiteral("file"), failure.file},
                                      {QStringLiteral("line"), failure.line},
                                      {QStringLiteral("text"), failure.text}});
        object.insert(QStringLiteral("script"), arguments.script);
        object.insert(QStringLiteral("checks"), end.checks);
        object.insert(QStringLiteral("failures"), end.failures);
        object.insert(QStringLiteral("failed"), failed);
    } else if (arguments.sources.isEmpty())
        object.insert(QStringLiteral("firmware"), arguments.firmware);
    else
        object.insert(QStringLiteral("sources"), QJsonArray::fromStringList(arguments.sources));
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

} // namespace Cli
