#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace CortexM1
{

class InputFile;
class InputPipe;
class Simulator;
class Storage;

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
//   +mark=TEXT         what begins the lines that tell events, behind the byte 0x1E; else "board"
//   +host=PIPE         a named pipe with lines "uart N HEXBYTES", "gpio MASK LEVELS" (hexadecimal)
//                      and "stop"; what is no such line counts for nothing
//   +uartN-input=FILE  bytes for a UART, before those of the pipe
//   +eeprom=FILE, +flash=FILE, +sd=FILE                        contents, see StorageKind
//   +eeprom-result=FILE, +flash-result=FILE, +sd-result=FILE   written by finish()
//   +progress          the time is told
class BoardHost
{
public:
    static constexpr int uarts = 2;
    static constexpr int storages = 3;
    static constexpr std::size_t mostInput = 1 << 20; // bytes of a pipe that wait for a UART

    // Mistakes of the command line are told by size(). `simulator` outlives the host.
    explicit BoardHost(Simulator &simulator);
    BoardHost(const BoardHost &) = delete;
    BoardHost &operator=(const BoardHost &) = delete;
    ~BoardHost();

    // The one of this process, made with the first call: the command line is known then.
    static BoardHost &shared(Simulator &simulator);
    // Calls finish() of the one of this process, which goes then; without one nothing happens.
    static void finishShared();

    // The subsystem has sent a byte on the line of a UART.
    void sent(int uart, std::uint8_t byte);
    // The next byte for a UART; -1: none now.
    int input(int uart);

    // The pins of the GPIO have changed: their levels, and which ones the subsystem drives. The
    // last state is told in any case, but not every one of a flood.
    void pins(std::uint32_t levels, std::uint32_t driven);
    // Which pins the outside drives, and how.
    int driveMask() const { return m_driveMask; }
    int driveLevels() const { return m_driveLevels; }

    // Clock cycles since the end of the power-on reset; called now and then. Reads the pipe.
    void time(std::uint64_t cycles);

    // The bytes of a storage, 0 if it is not there. Below 0: the run has to end, whatever the
    // storage; why has been printed, in a line that begins with "FAIL: ".
    int size(int storage);
    int load(int storage, std::uint32_t address);
    void store(int storage, std::uint32_t address, std::uint8_t byte);

    // From inside the simulator. The observer hears everything from now on, until another one (or
    // null) takes its place, and outlives that time.
    void observe(BoardObserver *observer) { m_observer = observer; }
    void send(int uart, const std::string &bytes); // behind those of file and pipe
    void drive(std::uint32_t mask, std::uint32_t levels);

    // Whether waves are written of this clock cycle, counted from the end of the power-on reset;
    // asked in each one if the waves have a window (WaveWindow).
    bool waves(std::uint32_t cyclesLow, std::uint32_t cyclesHigh);
    // The last answer.
    bool hasWaves() const { return m_hasWaves; }

    // The simulation has ended: tells what is still to be told and writes the results, once. What
    // fails is printed.
    void finish();

private:
    struct Line {
        std::unique_ptr<InputFile> file; // null: none, or read to its end
        std::uint64_t place = 0;         // in the file, behind the piece
        std::vector<std::uint8_t> piece;
        std::size_t taken = 0;          // of the piece
        std::deque<std::uint8_t> bytes; // of the pipe
        bool isCutOff = false;
    };
    struct Pins {
        std::uint32_t levels = 0;
        std::uint32_t driven = 0;
    };

    std::string argument(const std::string &name) const;
    void open();
    void tell(const std::string &event);
    void tellPins();
    void readPipe();
    void takeLine(const std::string &line);
    void takeBytes(int uart, const std::string &digits);
    void end(const std::string &reason);
    Storage *storageOf(int number) const;

    static std::unique_ptr<BoardHost> &sharedHost();

    Simulator &m_simulator;
    BoardObserver *m_observer = nullptr;
    const std::string m_mark;
    std::string m_ending; // why the run has to end; empty: it has not
    bool m_isEndingTold = false;
    bool m_isFinished = false;
    std::array<Line, uarts> m_lines;
    std::array<std::unique_ptr<Storage>, storages> m_storages;
    std::unique_ptr<InputPipe> m_pipe;
    std::string m_piece; // of a line that has no end yet
    bool m_isSkipping = false;
    int m_driveMask = 0;
    int m_driveLevels = 0;
    Pins m_pins;
    bool m_hasUntoldPins = false;
    int m_pinCredit = 1000; // changes that may be told; one more each time()
    bool m_tellsTime = false;
    std::chrono::steady_clock::time_point m_nextTime;
    bool m_hasWaves = false;
};

} // namespace CortexM1
