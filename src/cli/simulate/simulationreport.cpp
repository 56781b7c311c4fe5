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

QString note()
{
    return QStringLiteral("The model executes an instruction a clock cycle: instruction counts "
                          "are no cycle counts of the processor.");
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

} // namespace

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
    QString text = end.reason;
    if (end.result == SimulationEnd::TimeLimit)
        text = QStringLiteral("the program has not ended");
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
    QStringList sent;
    const QVector<int> numbers = uartsOf(report.map);
    for (const int number : numbers)
        sent.append(
            QStringLiteral("UART%1 has sent %2 bytes").arg(number).arg(end.uartBytes[number]));
    if (!sent.isEmpty())
        lines.append(sent.join(QLatin1String(", ")) + u'.');
    if (!end.emptyBlocks.isEmpty())
        lines.append(QLatin1String("Licensed blocks are empty here and answer with bus errors; the "
                                   "program has accessed ") +
                     end.emptyBlocks.join(QLatin1String(", ")) + u'.');
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
    QJsonObject object{{QStringLiteral("result"), nameOf(end.result)},
                       {QStringLiteral("reason"), reasonOf(end)},
                       {QStringLiteral("configuration"), arguments.file},
                       {QStringLiteral("clockCycles"), qint64(end.cycles)},
                       {QStringLiteral("timeout"), qint64(arguments.timeout)},
                       {QStringLiteral("uarts"), lines},
                       {QStringLiteral("emptyBlocks"), QJsonArray::fromStringList(end.emptyBlocks)},
                       {QStringLiteral("note"), note()}};
    if (arguments.sources.isEmpty())
        object.insert(QStringLiteral("firmware"), arguments.firmware);
    else
        object.insert(QStringLiteral("sources"), QJsonArray::fromStringList(arguments.sources));
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

} // namespace Cli
