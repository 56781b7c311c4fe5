#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace CortexM1
{

// What a simulated board exchanges with the world outside of the simulation. The board calls it
// through tasks of the simulator; one of them serves a simulation.
class BoardHost
{
public:
    // Takes the lines that tell events, without the line end.
    using Tell = std::function<void(const std::string &)>;

    // `mark`: what begins each line, behind the byte 0x1E.
    BoardHost(std::string mark, Tell tell);

    // The subsystem has sent a byte on the line of a UART.
    void sent(int uart, std::uint8_t byte);

    // Whether waves are written of this clock cycle, counted from the end of the power-on reset;
    // asked in each one if the waves have a window (WaveWindow).
    bool waves(std::uint32_t cyclesLow, std::uint32_t cyclesHigh);

private:
    void tell(const std::string &event);

    const std::string m_mark;
    const Tell m_tell;
};

} // namespace CortexM1
