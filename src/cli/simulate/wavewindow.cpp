#include "wavewindow.h"

#include <simulation/runstatistics.h>

#include <algorithm>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

constexpr int longestText = 1024; // bytes, as in the model

Utils::Failure wrongEvent(const QString &event, const QString &why)
{
    return Utils::Failure{QLatin1String("--waves-at \"") + event + QLatin1String("\": ") + why};
}

// Of a number as C writes it.
bool readAddress(const QString &text, quint32 *address)
{
    bool isNumber = false;
    const bool isHex = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    *address = isHex ? text.mid(2).toUInt(&isNumber, 16) : text.toUInt(&isNumber, 10);
    return isNumber && !text.startsWith(u'+') && !text.mid(2).startsWith(u'+');
}

Utils::Result<QString> addressEvent(const QString &event, const QString &range, const SystemMap &)
{
    const QStringList ends = range.split(u'-');
    quint32 first = 0;
    quint32 last = 0;
    if (ends.size() > 2 || !readAddress(ends.first(), &first) || !readAddress(ends.last(), &last))
        return wrongEvent(event, QStringLiteral("an address is a number of 32 bits such as "
                                                "0x40000000, or two with \"-\" between them."));
    if (first > last)
        return wrongEvent(event, QStringLiteral("the range ends before it begins."));
    return QStringLiteral("address:%1-%2")
        .arg(first, 8, 16, QLatin1Char('0'))
        .arg(last, 8, 16, QLatin1Char('0'));
}

Utils::Result<QString> interruptEvent(const QString &event, const QString &wanted,
                                      const SystemMap &map)
{
    const auto line =
        std::find_if(map.interrupts.begin(), map.interrupts.end(),
                     [&wanted](const InterruptLine &row) { return row.name == wanted; });
    int exception = exceptionNamed(wanted);
    bool isNumber = false;
    const int number = wanted.toInt(&isNumber);
    if (line != map.interrupts.end())
        exception = line->number == InterruptLine::nonMaskable
                        ? nonMaskableException
                        : firstInterruptException + line->number;
    else if (isNumber && number >= 0 && number < map.processor.interruptInputs)
        exception = firstInterruptException + number;
    if (exception == 0) {
        QStringList names;
        for (const InterruptLine &row : map.interrupts)
            names.append(row.name);
        return wrongEvent(event, QStringLiteral("the configuration has no such interrupt; it has "
                                                "%1, and the numbers 0 to %2.")
                                     .arg(names.isEmpty() ? QStringLiteral("none with a name")
                                                          : names.join(QLatin1String(", ")))
                                     .arg(map.processor.interruptInputs - 1));
    }
    return QStringLiteral("exception:%1").arg(exception);
}

Utils::Result<QString> messageEvent(const QString &event, const QString &text, const SystemMap &)
{
    if (text.isEmpty() || text.toUtf8().size() > longestText)
        return wrongEvent(event, QStringLiteral("a message has 1 to %1 bytes.").arg(longestText));
    return QString(QLatin1String("message:") + text);
}

struct EventRow {
    QLatin1String kind;
    Utils::Result<QString> (*read)(const QString &event, const QString &value,
                                   const SystemMap &map);
};

const EventRow eventRows[] = {{QLatin1String("address:"), addressEvent},
                              {QLatin1String("interrupt:"), interruptEvent},
                              {QLatin1String("message:"), messageEvent}};

Utils::Result<QString> eventArgument(const QString &event, const SystemMap &map)
{
    for (const EventRow &row : eventRows) {
        if (event.startsWith(row.kind))
            return row.read(event, event.mid(row.kind.size()), map);
    }
    return wrongEvent(event, QStringLiteral("an event is address:, interrupt: or message: and "
                                            "what is meant."));
}

} // namespace

Utils::Result<QStringList> waveArguments(const SimulateArguments &arguments, const SystemMap &map)
{
    const bool hasWindow = arguments.wavesFrom || arguments.wavesTo || arguments.wavesAt;
    if (hasWindow && arguments.waves.isEmpty())
        return Utils::Failure{QStringLiteral("--waves-from, --waves-to and --waves-at need "
                                             "--waves.")};
    // The others write all of the run.
    if (arguments.wavesTo && arguments.wavesFrom.value_or(0) > *arguments.wavesTo)
        return Utils::Failure{QStringLiteral("--waves-to %1 is before --waves-from %2.")
                                  .arg(*arguments.wavesTo)
                                  .arg(*arguments.wavesFrom)};
    QStringList list;
    if (arguments.wavesFrom)
        list.append(QStringLiteral("waves-from=%1").arg(*arguments.wavesFrom));
    if (arguments.wavesTo)
        list.append(QStringLiteral("waves-to=%1").arg(*arguments.wavesTo));
    if (arguments.wavesAt) {
        const auto event = eventArgument(*arguments.wavesAt, map);
        if (!event)
            return Utils::Failure{event.reason()};
        list.append(QLatin1String("waves-at=") + *event);
    }
    return list;
}

} // namespace Cli
