#include "simulationreport.h"

#include "../output.h"
#include "reportforms.h"

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

// "1 bus error, at " or "5 bus errors, the first one at "
QString counted(quint64 count, const char *what)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(
        QLatin1String(what),
        count == 1 ? QLatin1String(", at ") : QLatin1String("s, the first one at "));
}

QString numbered(qint64 number, const char *what)
{
    return QStringLiteral("%1 %2%3").arg(number).arg(QLatin1String(what),
                                                     number == 1 ? QString() : QStringLiteral("s"));
}

// Where things went wrong: a few lines.
QStringList placesOf(const SimulationReport &report)
{
    QStringList lines;
    bool hasLine = true;
    const auto told = [&hasLine](const RunPlace &place) {
        hasLine = hasLine && !place.source.file.isEmpty();
        return place.text();
    };
    if (const RunPlace *place = failurePlaceOf(report))
        lines.append(QLatin1String("The program was at ") + told(*place) + u'.');
    if (!report.details)
        return lines;
    const RunDetails &details = *report.details;
    // A bus error is mostly a fault as well.
    const bool isSame =
        details.errorCount == details.faultCount && !details.errors.isEmpty() &&
        details.errors.first().place.address == details.faults.first().place.address;
    if (!details.faults.isEmpty() && !isSame)
        lines.append(counted(details.faultCount, "hard fault") +
                     told(details.faults.first().place) + QLatin1String(" (") +
                     details.faults.first().cause + QLatin1String(")."));
    if (!details.errors.isEmpty())
        lines.append(counted(details.errorCount, "bus error") + told(details.errors.first().place) +
                     QLatin1String(" (") + busErrorText(details.errors.first()) +
                     QLatin1String(")."));
    if (!hasLine && !details.problem.isEmpty())
        lines.append(details.problem);
    return lines;
}

// Why a script that has ended did not pass; empty: it did.
QString scriptReason(const SimulationEnd &end)
{
    if (end.failures == 0)
        return end.checks == 0 ? QStringLiteral("the script checks nothing") : QString();
    QString text = QStringLiteral("%1 in %2")
                       .arg(numbered(end.failures, "failure"), numbered(end.checks, "check"));
    if (!end.failed.isEmpty())
        text += QLatin1String(end.failures == 1 ? ": " : ", the first one: ") +
                failureText(end.failed.first());
    return text;
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
    if (end.brokenRule)
        return end.reason;
    QString text = end.isScript && end.hasCounts ? scriptReason(end) : end.reason;
    if (end.result == SimulationEnd::TimeLimit)
        text = end.isScript ? QStringLiteral("the script has not ended")
                            : QStringLiteral("the program has not ended");
    if (end.lockedUpAt >= 0)
        text += (text.isEmpty() ? QString() : QStringLiteral("; ")) +
                QStringLiteral("the processor locked up at clock cycle %1").arg(end.lockedUpAt);
    return text;
}

const RunPlace *failurePlaceOf(const SimulationReport &report)
{
    if (!report.details || report.end.result == SimulationEnd::Passed)
        return nullptr;
    const RunPlace *place = &report.details->end;
    if (report.end.lockedUpAt >= 0 && !report.details->lockUps.isEmpty())
        place = &report.details->lockUps.last();
    return place->isMains ? nullptr : place;
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
    lines += placesOf(report);
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
        lines.append(modelNote());
    return lines;
}

QByteArray documentOf(const SimulationReport &report, const QString &file)
{
    struct Form {
        QLatin1String suffix;
        QByteArray (*write)(const SimulationReport &report);
    };
    static const Form forms[] = {{QLatin1String(".txt"), textReport},
                                 {QLatin1String(".xml"), junitReport}};
    for (const Form &form : forms) {
        if (file.endsWith(form.suffix, Qt::CaseInsensitive))
            return form.write(report);
    }
    return jsonReport(report);
}

} // namespace Cli
