#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>

namespace CortexM1
{

class Simulator;

// Hears what a board tells.
class BoardObserver
{
public:
    virtual ~BoardObserver() = default;

    // As of BoardHost.
    virtual void sent(int uart, std::uint8_t byte) = 0;
    virtual void pinsChanged(std::uint32_t levels, std::uint32_t driven) = 0;
};

// What a simulated board exchanges with the world outside of the simulation. The board calls it
// through tasks of the simulator; one of them serves a simulation. From the command line it takes
//
//   +mark=TEXT   what begins the lines that tell events, behind the byte 0x1E; else "board"
class BoardHost
{
public:
    static constexpr int uarts = 2;

    // `simulator` outlives the host.
    explicit BoardHost(Simulator &simulator);
    BoardHost(const BoardHost &) = delete;
    BoardHost &operator=(const BoardHost &) = delete;

    // The one of this process, made with the first call: the command line is known then.
    static BoardHost &shared(Simulator &simulator);

    // The subsystem has sent a byte on the line of a UART.
    void sent(int uart, std::uint8_t byte);
    // The next byte for a UART; -1: none now.
    int input(int uart);

    // The pins of the GPIO have changed: their levels, and which ones the subsystem drives.
    void pins(std::uint32_t levels, std::uint32_t driven);
    // Which pins the outside drives, and how.
    int driveMask() const { return m_driveMask; }
    int driveLevels() const { return m_driveLevels; }

    // From inside the simulator. The observer hears everything from now on, until another one (or
    // null) takes its place, and outlives that time.
    void observe(BoardObserver *observer) { m_observer = observer; }
    void send(int uart, const std::string &bytes);
    void drive(std::uint32_t mask, std::uint32_t levels);

private:
    void tell(const std::string &event);

    Simulator &m_simulator;
    const std::string m_mark;
    BoardObserver *m_observer = nullptr;
    std::array<std::deque<std::uint8_t>, uarts> m_input;
    int m_driveMask = 0;
    int m_driveLevels = 0;
};

} // namespace CortexM1
