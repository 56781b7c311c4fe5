#include "outside.h"

#include "listener.h"
#include "livecommand.h"
#include "simulation.h"

#include <unistd.h>

namespace Cli
{

namespace
{

constexpr int longestCommand = 1 << 20; // bytes

} // namespace

Outside::Outside(Simulation &simulation, Listener &listener)
    : m_simulation(simulation)
    , m_listener(listener)
{
}

Utils::Result<void> Outside::open(const SimulateArguments &arguments)
{
    const QString uarts[] = {arguments.uart0, arguments.uart1};
    for (int number : {0, 1}) {
        if (uarts[number] != QLatin1String("pty"))
            continue;
        PseudoTerminal &terminal = m_terminals[number];
        if (const auto opened = terminal.open(); !opened)
            return opened;
        m_listener.told(Severity::Note,
                        QStringLiteral("UART%1 is at %2.").arg(number).arg(terminal.name()));
        m_inputs.push_back(std::make_unique<ByteInput>(terminal.file(), uartTaker(number)));
    }
    if (!m_terminals.empty())
        m_simulation.setUartTaker([this](int number, char byte) {
            if (const auto found = m_terminals.find(number); found != m_terminals.end())
                found->second.send(byte);
        });
    if (arguments.live)
        m_inputs.push_back(std::make_unique<ByteInput>(
            STDIN_FILENO, [this](const QByteArray &bytes) { takeCommands(bytes); }));
    else if (arguments.readsStandardInput)
        m_inputs.push_back(std::make_unique<ByteInput>(
            STDIN_FILENO, uartTaker(arguments.uart1 == QLatin1String("-") ? 1 : 0)));
    if (m_inputs.empty())
        return {};
    if (arguments.live)
        m_plusArguments.append(QStringLiteral("progress"));
    connect(&m_host, &HostPipe::drained, this, [this] {
        for (const auto &input : m_inputs)
            input->setPaused(false);
    });
    m_plusArguments.append(QStringLiteral("host=host"));
    return m_host.open(m_simulation.folder() + QLatin1String("/host"));
}

void Outside::close()
{
    m_inputs.clear();
    for (auto &entry : m_terminals)
        entry.second.drain();
}

ByteInput::Taker Outside::uartTaker(int number)
{
    // Its own input, which does not stand in the list yet.
    const size_t index = m_inputs.size();
    return [this, number, index](const QByteArray &bytes) {
        sendUart(number, bytes);
        if (m_host.isFull())
            m_inputs[index]->setPaused(true);
    };
}

void Outside::sendUart(int number, const QByteArray &bytes)
{
    if (m_host.sendUart(number, bytes) || m_isTooMuch)
        return;
    m_isTooMuch = true;
    m_listener.told(Severity::Warning,
                    QStringLiteral("More comes in for UART%1 than it can receive; some of it is "
                                   "left out.")
                        .arg(number));
}

void Outside::takeCommands(const QByteArray &bytes)
{
    m_line += bytes;
    int from = 0;
    for (int end; (end = m_line.indexOf('\n', from)) >= 0; from = end + 1)
        takeCommand(m_line.mid(from, end - from));
    m_line.remove(0, from);
    if (m_line.size() > longestCommand)
        m_line.truncate(longestCommand); // no object any more: it is ignored with its line end
}

void Outside::takeCommand(const QByteArray &line)
{
    const auto command = liveCommand(line);
    if (!command)
        return;
    switch (command->kind) {
    case LiveCommand::Uart:
        sendUart(command->uart, command->bytes);
        break;
    case LiveCommand::Pins:
        m_host.sendPins(command->mask, command->levels);
        break;
    case LiveCommand::Stop:
        m_simulation.cancel();
        break;
    }
}

} // namespace Cli
