#include "livecommand.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace Cli
{

namespace
{

constexpr quint32 allPins = 0xFFFF;

// -1: it is no number, or out of range.
qint64 numberOf(const QJsonValue &value, quint32 most)
{
    const double number = value.toDouble(-1);
    return number >= 0 && number <= most && number == qint64(number) ? qint64(number) : -1;
}

} // namespace

std::optional<LiveCommand> liveCommand(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    LiveCommand command;
    if (object.value(QLatin1String("stop")).toBool())
        return command;
    const QJsonValue text = object.value(QLatin1String("text"));
    const qint64 uart = numberOf(object.value(QLatin1String("uart")), 1);
    if (uart >= 0 && text.isString()) {
        command.kind = LiveCommand::Uart;
        command.uart = int(uart);
        command.bytes = text.toString().toLatin1();
        return command;
    }
    const QJsonObject pins = object.value(QLatin1String("gpio")).toObject();
    const qint64 mask = numberOf(pins.value(QLatin1String("mask")), allPins);
    const qint64 levels = numberOf(pins.value(QLatin1String("levels")), allPins);
    if (mask < 0 || levels < 0)
        return std::nullopt;
    command.kind = LiveCommand::Pins;
    command.mask = quint32(mask);
    command.levels = quint32(levels);
    return command;
}

} // namespace Cli
