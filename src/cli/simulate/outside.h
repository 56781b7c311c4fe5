#pragma once

#include "simulatearguments.h"
#include "byteinput.h"
#include "hostpipe.h"
#include "pseudoterminal.h"

#include <utils/result.h>

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <map>
#include <memory>
#include <vector>

namespace Cli
{

class Listener;
class Simulation;

// What comes into a simulation from outside while it runs, and pseudo-terminals, where bytes go out
// too: standard input, as bytes for a UART or as commands (LiveCommand).
class Outside : public QObject
{
    Q_OBJECT

public:
    // The simulation and the listener outlive it.
    Outside(Simulation &simulation, Listener &listener);

    // Opens what the arguments ask for. A failure is a sentence.
    Utils::Result<void> open(const SimulateArguments &arguments);
    // For the simulator; none if nothing can come.
    QStringList plusArguments() const { return m_plusArguments; }
    // After the end of the simulation.
    void close();

private:
    ByteInput::Taker uartTaker(int number);
    void takeCommands(const QByteArray &bytes);
    void takeCommand(const QByteArray &line);
    void sendUart(int number, const QByteArray &bytes);

    Simulation &m_simulation;
    Listener &m_listener;
    HostPipe m_host;
    QStringList m_plusArguments;
    std::map<int, PseudoTerminal> m_terminals; // by UART
    std::vector<std::unique_ptr<ByteInput>> m_inputs;
    QByteArray m_line; // begun
    bool m_isTooMuch = false;
};

} // namespace Cli
