#include "reportforms.h"

#include <registers/registerdocs.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamWriter>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

constexpr int mostOutput = 1 << 16; // bytes of a UART in a report, the last ones
constexpr double secondsPerCycle = 20e-9;

QJsonObject jsonOf(const RunPlace &place)
{
    QJsonObject object{{QStringLiteral("address"), hexAddress(place.address)}};
    if (!place.source.function.isEmpty())
        object.insert(QStringLiteral("function"), place.source.function);
    if (!place.source.file.isEmpty()) {
        object.insert(QStringLiteral("file"), place.source.file);
        object.insert(QStringLiteral("line"), place.source.line);
    }
    return object;
}

QJsonObject jsonList(quint64 count, const QJsonArray &first)
{
    return {{QStringLiteral("count"), qint64(count)}, {QStringLiteral("first"), first}};
}

QJsonArray jsonOf(const QVector<RunDetails::Block> &blocks)
{
    QJsonArray array;
    for (const RunDetails::Block &block : blocks) {
        QJsonObject object{{QStringLiteral("name"), block.name},
                           {QStringLiteral("reads"), qint64(block.reads)},
                           {QStringLiteral("writes"), qint64(block.writes)},
                           {QStringLiteral("complete"), block.isComplete}};
        if (block.isComplete)
            object.insert(QStringLiteral("untouchedRegisters"),
                          QJsonArray::fromStringList(block.untouched));
        array.append(object);
    }
    return array;
}

void insert(QJsonObject &object, const RunDetails &details)
{
    object.insert(QStringLiteral("instructions"), qint64(details.instructions));
    object.insert(QStringLiteral("cyclesAsleep"), qint64(details.asleep));
    object.insert(QStringLiteral("starts"), qint64(details.starts));
    object.insert(QStringLiteral("blocks"), jsonOf(details.blocks));
    QJsonArray exceptions;
    for (const RunDetails::Exception &exception : details.exceptions)
        exceptions.append(QJsonObject{{QStringLiteral("name"), exception.name},
                                      {QStringLiteral("number"), exception.number},
                                      {QStringLiteral("count"), qint64(exception.count)}});
    object.insert(QStringLiteral("exceptions"), exceptions);
    object.insert(QStringLiteral("interruptsNeverTaken"),
                  QJsonArray::fromStringList(details.interruptsNeverTaken));
    QJsonArray errors;
    for (const RunDetails::BusError &error : details.errors)
        errors.append(
            QJsonObject{{QStringLiteral("address"), hexAddress(error.address)},
                        {QStringLiteral("access"),
                         error.isWrite ? QStringLiteral("write") : QStringLiteral("read")},
                        {QStringLiteral("bytes"), error.bytes},
                        {QStringLiteral("block"), error.block},
                        {QStringLiteral("place"), jsonOf(error.place)}});
    object.insert(QStringLiteral("busErrors"), jsonList(details.errorCount, errors));
    QJsonArray faults;
    for (const RunDetails::Fault &fault : details.faults)
        faults.append(QJsonObject{{QStringLiteral("cause"), fault.cause},
                                  {QStringLiteral("place"), jsonOf(fault.place)}});
    object.insert(QStringLiteral("hardFaults"), jsonList(details.faultCount, faults));
    QJsonArray unknown;
    for (const RunDetails::UnknownRead &read : details.unknownReads)
        unknown.append(QJsonObject{{QStringLiteral("address"), hexAddress(read.address)},
                                   {QStringLiteral("bits"), hexAddress(read.bits)},
                                   {QStringLiteral("block"), read.block},
                                   {QStringLiteral("place"), jsonOf(read.place)}});
    object.insert(QStringLiteral("unknownReads"), jsonList(details.unknownCount, unknown));
    QJsonArray lockUps;
    for (const RunPlace &place : details.lockUps)
        lockUps.append(jsonOf(place));
    object.insert(QStringLiteral("lockUps"), jsonList(details.lockUpCount, lockUps));
    if (!details.problem.isEmpty())
        object.insert(QStringLiteral("sourcePlaces"), details.problem);
}

void insertScript(QJsonObject &object, const SimulationReport &report)
{
    QJsonArray failed;
    for (const ScriptFailure &failure : report.end.failed)
        failed.append(QJsonObject{{QStringLiteral("file"), failure.file},
                                  {QStringLiteral("line"), failure.line},
                                  {QStringLiteral("text"), failure.text}});
    object.insert(QStringLiteral("script"), report.arguments.script);
    object.insert(QStringLiteral("checks"), report.end.checks);
    object.insert(QStringLiteral("failures"), report.end.failures);
    object.insert(QStringLiteral("failed"), failed);
}

QString blockName(const QString &name)
{
    return name.isEmpty() ? QStringLiteral("no block") : name;
}

// What was left out of a list.
void appendRest(QStringList &lines, quint64 count, int told)
{
    if (count > quint64(told))
        lines.append(QStringLiteral("  and %1 more").arg(count - quint64(told)));
}

void appendList(QStringList &lines, const QString &title, const QStringList &entries, quint64 count)
{
    if (count == 0)
        return;
    lines += {QString(), QStringLiteral("%1: %2").arg(title).arg(count)};
    for (const QString &entry : entries)
        lines.append(QLatin1String("  ") + entry);
    appendRest(lines, count, entries.size());
}

void append(QStringList &lines, const RunDetails &details)
{
    lines += {QString(),
              QStringLiteral("Instructions: %1").arg(details.instructions),
              QStringLiteral("Clock cycles asleep: %1").arg(details.asleep),
              QStringLiteral("Starts from the vector table: %1").arg(details.starts),
              QString(),
              QStringLiteral("Accesses of blocks on the bus:")};
    for (const RunDetails::Block &block : details.blocks) {
        QString line = QStringLiteral("  %1: %2 reads, %3 writes")
                           .arg(blockName(block.name))
                           .arg(block.reads)
                           .arg(block.writes);
        if (!block.isComplete)
            line += QLatin1String("; registers were not told apart, of so many addresses");
        if (!block.untouched.isEmpty())
            line += QLatin1String("; never touched: ") + block.untouched.join(QLatin1String(", "));
        lines.append(line);
    }
    lines += {QString(), QStringLiteral("Exceptions taken:")};
    for (const RunDetails::Exception &exception : details.exceptions)
        lines.append(QStringLiteral("  %1: %2").arg(exception.name).arg(exception.count));
    if (!details.interruptsNeverTaken.isEmpty())
        lines.append(QLatin1String("  never: ") +
                     details.interruptsNeverTaken.join(QLatin1String(", ")));

    QStringList entries;
    for (const RunDetails::BusError &error : details.errors)
        entries.append(busErrorText(error) + QLatin1String(", at ") + error.place.text());
    appendList(lines, QStringLiteral("Bus errors"), entries, details.errorCount);
    entries.clear();
    for (const RunDetails::Fault &fault : details.faults)
        entries.append(fault.cause + QLatin1String(", at ") + fault.place.text());
    appendList(lines, QStringLiteral("Hard faults"), entries, details.faultCount);
    entries.clear();
    for (const RunDetails::UnknownRead &read : details.unknownReads)
        entries.append(QStringLiteral("bits %1 of %2, in %3, at %4")
                           .arg(hexAddress(read.bits), hexAddress(read.address),
                                blockName(read.block), read.place.text()));
    appendList(lines, QStringLiteral("Reads with unknown bits"), entries, details.unknownCount);
    entries.clear();
    for (const RunPlace &place : details.lockUps)
        entries.append(QLatin1String("at ") + place.text());
    appendList(lines, QStringLiteral("Lock-ups"), entries, details.lockUpCount);
    if (!details.problem.isEmpty())
        lines += {QString(), details.problem};
}

// Characters that XML does not have, in a form that can be read.
QString inXml(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            result += c;
            result += text.at(++i);
        } else if (c.isSurrogate() || c.unicode() >= 0xFFFE ||
                   (c.unicode() < 0x20 && c != u'\n' && c != u'\t')) {
            result += QLatin1String("\\x") +
                      QString::number(c.unicode(), 16).toUpper().rightJustified(2, u'0');
        } else {
            result += c;
        }
    }
    return result;
}

QString seconds(quint64 cycles)
{
    return QString::number(double(cycles) * secondsPerCycle, 'f', 9);
}

// The report, and what the UARTs have sent.
QString outputOf(const SimulationReport &report)
{
    QString text = QString::fromUtf8(textReport(report));
    for (auto it = report.end.uarts.begin(); it != report.end.uarts.end(); ++it) {
        if (it->isEmpty())
            continue;
        text += QStringLiteral("\nUART%1:\n").arg(it.key());
        if (it->size() > mostOutput)
            text += QLatin1String("(the last of it)\n");
        const QByteArray last = it->right(mostOutput);
        text += QString::fromUtf8(last.constData(), last.size()); // a 0 is no end
        if (!it->endsWith('\n'))
            text += u'\n';
    }
    return text;
}

} // namespace

QVector<int> uartsOf(const SystemMap &map)
{
    QVector<int> numbers;
    for (const int number : {0, 1}) {
        if (findRegion(map, QStringLiteral("UART%1").arg(number)))
            numbers.append(number);
    }
    return numbers;
}

QString modelNote()
{
    return QStringLiteral("The model executes an instruction a clock cycle: instruction counts "
                          "are no cycle counts of the processor.");
}

QString programName(const SimulateArguments &arguments)
{
    if (!arguments.script.isEmpty())
        return arguments.script;
    return arguments.sources.isEmpty() ? arguments.firmware
                                       : arguments.sources.join(QLatin1String(", "));
}

QString busErrorText(const RunDetails::BusError &error)
{
    return QStringLiteral("%1 %2 %3 at %4, in %5")
        .arg(error.isWrite ? QLatin1String("writing") : QLatin1String("reading"))
        .arg(error.bytes)
        .arg(error.bytes == 1 ? QLatin1String("byte") : QLatin1String("bytes"))
        .arg(hexAddress(error.address), blockName(error.block));
}

QByteArray jsonReport(const SimulationReport &report)
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
        object.insert(QStringLiteral("note"), modelNote());
    if (end.isScript)
        insertScript(object, report);
    else if (arguments.sources.isEmpty())
        object.insert(QStringLiteral("firmware"), arguments.firmware);
    else
        object.insert(QStringLiteral("sources"), QJsonArray::fromStringList(arguments.sources));
    if (const RunPlace *place = failurePlaceOf(report))
        object.insert(QStringLiteral("place"), jsonOf(*place));
    if (report.details)
        insert(object, *report.details);
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

QByteArray textReport(const SimulationReport &report)
{
    QStringList lines = summaryOf(report);
    lines += {QString(), QLatin1String("Configuration: ") + report.arguments.file,
              QLatin1String("Program: ") + programName(report.arguments)};
    for (const ScriptFailure &failure : report.end.failed)
        lines.append(failureText(failure));
    if (report.details)
        append(lines, *report.details);
    return lines.join(u'\n').toUtf8() + '\n';
}

QByteArray junitReport(const SimulationReport &report)
{
    const SimulationEnd &end = report.end;
    const bool isPassed = end.result == SimulationEnd::Passed;
    const auto attribute = [](const char *name, const QString &value) {
        return QXmlStreamAttribute(QLatin1String(name), inXml(value));
    };
    const auto counts = [&](const QString &name) {
        QXmlStreamAttributes attributes;
        attributes.append(attribute("name", name));
        attributes.append(attribute("tests", QStringLiteral("1")));
        attributes.append(
            attribute("failures", isPassed ? QStringLiteral("0") : QStringLiteral("1")));
        attributes.append(attribute("errors", QStringLiteral("0")));
        attributes.append(attribute("time", seconds(end.cycles)));
        return attributes;
    };
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("testsuites"));
    xml.writeAttributes(counts(QStringLiteral("orixm1 simulate")));
    xml.writeStartElement(QStringLiteral("testsuite"));
    xml.writeAttributes(counts(report.arguments.file));
    xml.writeStartElement(QStringLiteral("testcase"));
    QXmlStreamAttributes attributes;
    attributes.append(attribute("classname", QFileInfo(report.arguments.file).completeBaseName()));
    attributes.append(attribute("name", programName(report.arguments)));
    attributes.append(attribute("time", seconds(end.cycles)));
    if (const RunPlace *place = failurePlaceOf(report); place && !place->source.file.isEmpty()) {
        attributes.append(attribute("file", place->source.file));
        attributes.append(attribute("line", QString::number(place->source.line)));
    }
    xml.writeAttributes(attributes);
    if (!isPassed) {
        const QString why = reasonOf(end);
        xml.writeStartElement(QStringLiteral("failure"));
        QXmlStreamAttributes failure;
        failure.append(attribute("message", why.isEmpty() ? nameOf(end.result) : why));
        failure.append(attribute("type", nameOf(end.result)));
        xml.writeAttributes(failure);
        xml.writeCharacters(inXml(summaryOf(report).join(u'\n')));
        xml.writeEndElement();
    }
    xml.writeTextElement(QStringLiteral("system-out"), inXml(outputOf(report)));
    xml.writeEndDocument();
    return bytes;
}

} // namespace Cli
