#pragma once

#include "core.h"
#include "names.h"
#include "scriptplayer.h"
#include "tcplink.h"

#include <cstddef>
#include <memory>
#include <string>

namespace CortexM1
{

class WaveWindow;

// The Verilog simulator, as the model needs it.
class Simulator
{
public:
    virtual ~Simulator() = default;
    // What stands behind +NAME= on its command line, "" for +NAME alone; null without it.
    virtual const char *argument(const std::string &name) const = 0;
    // On standard output, at once.
    virtual void print(const std::string &text) = 0;
};

// The parameters of CortexM1Core, with the codes of the memories' sizes.
struct Parameters {
    int interrupts = 32;
    bool hasOsExtension = true;
    bool isBigEndian = false;
    bool hasLowerAlias = true;
    bool hasUpperAlias = false;
    int itcmSize = 0;
    int dtcmSize = 0;
};

// A core in a simulation: what the command line asks for, what is printed and how it ends. A
// mistake ends the program in its first clock cycle. +script=FILE plays a script instead of a
// program. Its failures are lines "FILE:LINE: TEXT"; with +mark=MARK, for a reader that knows it,
// "\036MARK failure LINE FILE TEXT" with FILE percent-encoded, and before the verdict
// "\036MARK checks CHECKS FAILURES".
class Session
{
public:
    // `firmware`: a path, or empty for the one in the environment; `memories`: of +tcm=.
    // `simulator` outlives the session.
    Session(Simulator &simulator, const Parameters &parameters, const std::string &firmware,
            const std::string &memories);
    // Writes the statistics where +statistics=FILE asks for them (Statistics::text()).
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    // What people see in waves: the instruction, the function that it is in and the register that a
    // transfer accesses, by the names of +names=FILE; empty for none. The texts are the session's.
    struct Shown {
        std::uint32_t programCounter = 0;
        const char *functionName = "";
        const char *registerName = "";
    };
    Shown shown() const;

    // The line that tells the verdict is printed when the program ends.
    const Outputs &clock(const Inputs &inputs);

private:
    void open(const Parameters &parameters, std::string firmware, const std::string &memories);
    void openScript(const Configuration &configuration, const std::string &firmware,
                    const std::string &script);
    void openDebugger();
    void tell(const ScriptFailure &failure);
    std::string verdict() const;
    void print(const std::string &piece);
    void noteEvents(const Outputs &outputs);

    Simulator &m_simulator;
    WaveWindow &m_window;
    Outputs m_mistaken; // instead of what a core shows
    std::unique_ptr<TcpLink> m_debugger;
    std::unique_ptr<Core> m_core; // or
    std::unique_ptr<ScriptPlayer> m_player;
    Names m_names;
    std::uint32_t m_busAddress = 0;
    bool m_isTransferring = false;
    std::string m_statisticsFile; // empty: none
    std::string m_mistake;        // why there is no core
    std::size_t m_printed = 0;
    bool m_isReported = false;
};

} // namespace CortexM1
