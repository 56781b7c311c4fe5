#pragma once

#include <QByteArray>

#include <optional>

namespace Cli
{

// What a program that runs a simulation asks of it.
struct LiveCommand {
    enum Kind { Uart, Pins, Stop };

    Kind kind = Stop;
    int uart = 0;
    QByteArray bytes; // for the UART to receive
    quint32 mask = 0; // the pins of the GPIO that are driven from outside, 16
    quint32 levels = 0;
};

// Reads a line, a JSON object. Nothing for one that is none or unknown.
std::optional<LiveCommand> liveCommand(const QByteArray &line);

} // namespace Cli
