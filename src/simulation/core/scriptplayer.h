#pragma once

#include "boardhost.h"
#include "core.h"
#include "coroutine.h"
#include "script.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace CortexM1
{

// What a script found wrong.
struct ScriptFailure {
    std::string file;
    int line = 0; // from 1; 0: none, the file cannot be read
    std::string text;
};

// In place of a processor: plays a script of transfers, in the same clock cycles as the
// bus-functional model. The memories, unless they are outer ones, are the player's: nothing is
// known of them until it is written.
class ScriptPlayer : private BoardObserver
{
public:
    using Tell = std::function<void(const ScriptFailure &)>;

    // Of the configuration the memories count. `host` outlives the player. `file` is opened in the
    // first clock cycle.
    ScriptPlayer(const Configuration &configuration, BoardHost &host, const std::string &file,
                 Tell tell);
    ~ScriptPlayer() override;

    const Outputs &clock(const Inputs &inputs);

    std::uint64_t checks() const { return m_checks; }
    std::uint64_t failures() const { return m_failures; }

private:
    enum class Kind { Write, Read, Error };

    // Of which files include each other the last one is played.
    struct File {
        std::string name;
        std::vector<ScriptLine> lines;
        std::size_t line = 0; // the current one, from 1
    };
    struct Loop {
        std::size_t depth = 0; // of files
        std::size_t line = 0;
        std::uint32_t left = 0;
    };
    struct Open {
        Kind kind = Kind::Write;
        std::uint32_t address = 0;
        int bytes = 4;
        std::uint32_t expected = 0;
        std::uint32_t mask = 0;
        std::size_t line = 0;
    };
    struct Memory {
        std::vector<std::uint32_t> words;
        std::vector<std::uint32_t> unknown; // bits
    };

    void sent(int uart, std::uint8_t byte) override;
    void pinsChanged(std::uint32_t levels, std::uint32_t driven) override;

    // In the coroutine, as all that follows: what waits holds nothing that has to be freed.
    void run();
    void play();
    void playNext();
    void playLine(const ScriptLine &line);
    void playBurst(const ScriptLine &line, bool isWrite);
    void playPoll(const ScriptLine &line);
    void playReset();
    void playRepeat(const ScriptLine &line);
    void playEnd();
    void playInclude(const std::string &name);
    void expectUart(const ScriptLine &line);
    void expectPins(const ScriptLine &line);
    void leave();
    bool open(const std::string &name);

    void cycle() { m_program.yield(); }
    void waitForReady();
    void dataPhase();
    void addressPhase(bool isSequential, int burst, std::uint32_t address, bool isWrite, int bytes,
                      std::uint32_t value);
    void accessMemory(std::uint32_t address, bool isWrite, int bytes, std::uint32_t value);
    void transfer(Kind kind, const ScriptLine &line);
    void look(std::uint32_t address);
    void close();
    void checkOpen();
    void check(Kind kind, std::uint32_t expected, std::uint32_t mask);
    void checkRead(std::uint32_t expected, std::uint32_t mask);
    bool matches(std::uint32_t expected, std::uint32_t mask) const;
    void checkThat(bool holds, const char *otherwise);
    void fail(const std::string &text);

    bool isInstructionMemory(std::uint32_t address) const;
    bool isMemory(std::uint32_t address) const;

    const Configuration m_configuration;
    BoardHost &m_host;
    const std::string m_name;
    const Tell m_tell;
    Coroutine m_program;
    Inputs m_inputs;
    Outputs m_outputs;

    std::vector<File> m_files;
    std::vector<Loop> m_loops;
    std::size_t m_line = 0;        // that failures are told with
    std::size_t m_skipping = 0;    // repeats around the current line that are not played
    std::size_t m_skippedLine = 0; // of the outermost one
    bool m_isStopped = false;      // by a mistake behind which nothing makes sense
    bool m_isPipelined = false;
    bool m_hasOpen = false; // a transfer whose data phase is open
    Open m_open;
    std::uint32_t m_data = 0; // of the last read
    std::uint32_t m_unknown = 0;
    bool m_hasFailed = false; // the last transfer got an error response
    std::uint64_t m_checks = 0;
    std::uint64_t m_failures = 0;

    Memory m_memories[2];     // of instructions, of data
    std::string m_sent[2];    // by each UART, not yet expected
    std::uint32_t m_pins = 0; // levels; low until the board tells of them
};

} // namespace CortexM1
