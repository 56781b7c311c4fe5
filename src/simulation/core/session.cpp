#include "session.h"

#include "elfimage.h"
#include "wavewindow.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <utility>
#include <vector>

namespace CortexM1
{

namespace
{

constexpr std::size_t mostOutput = 1 << 20;  // bytes; a program that floods is cut off
constexpr std::uint64_t mostFailures = 1000; // of a script, that are told

// Without white space, and in ASCII.
std::string percentEncoded(const std::string &bytes)
{
    std::string text;
    for (const char c : bytes) {
        if (c > ' ' && c < 0x7F && c != '%') {
            text += c;
            continue;
        }
        char code[4];
        std::snprintf(code, sizeof code, "%%%02X", static_cast<unsigned char>(c));
        text += code;
    }
    return text;
}

std::uint32_t memoryBytes(int code)
{
    return code == 0 ? 0 : 512u << code;
}

} // namespace

Session::Session(Simulator &simulator, const Parameters &parameters, const std::string &firmware,
                 const std::string &memories)
    : m_simulator(simulator)
    , m_window(WaveWindow::shared())
{
    m_mistaken.isDone = true;
    if (const char *file = simulator.argument("statistics"))
        m_statisticsFile = file;
    if (const char *file = simulator.argument("names")) {
        std::ifstream lines(file, std::ios::binary);
        m_names = Names(lines);
    }
    try {
        WaveWindow::shared() =
            WaveWindow(simulator.argument("waves-from"), simulator.argument("waves-to"),
                       simulator.argument("waves-at"));
        open(parameters, firmware, memories);
    } catch (const std::exception &error) {
        m_mistake = error.what();
    }
}

Session::~Session()
{
    if (m_statisticsFile.empty() || !m_core)
        return;
    std::ofstream(m_statisticsFile, std::ios::binary) << m_core->processor().statisticsText();
}

void Session::open(const Parameters &parameters, std::string firmware, const std::string &memories)
{
    const char *script = m_simulator.argument("script");
    const char *fromEnvironment = std::getenv("CORTEXM1_FIRMWARE");
    if (firmware.empty() && fromEnvironment && !script)
        firmware = fromEnvironment;
    Configuration configuration;
    configuration.hasOuterMemories = memories == "rtl";
    if (!configuration.hasOuterMemories && memories != "model")
        throw std::runtime_error("+tcm=" + memories + " is neither +tcm=model nor +tcm=rtl");
    if (configuration.hasOuterMemories && m_simulator.argument("gdb"))
        throw std::runtime_error("+gdb needs +tcm=model"); // elsewhere each look would take time
    if (firmware.empty() && !configuration.hasOuterMemories && !script)
        throw std::runtime_error("no program is named: +firmware=FILE");
    configuration.interrupts = parameters.interrupts;
    configuration.hasOsExtension = parameters.hasOsExtension;
    configuration.isBigEndian = parameters.isBigEndian;
    configuration.hasLowerAlias = parameters.hasLowerAlias;
    configuration.hasUpperAlias = parameters.hasUpperAlias;
    configuration.itcmBytes = memoryBytes(parameters.itcmSize);
    configuration.dtcmBytes = memoryBytes(parameters.dtcmSize);
    if (script) {
        openScript(configuration, firmware, script);
        return;
    }
    m_core =
        std::make_unique<Core>(configuration, [this](const std::string &piece) { print(piece); });
    if (firmware.empty())
        return; // the memory has it from the start
    std::vector<std::uint8_t> contents(configuration.itcmBytes);
    std::size_t end = 0;
    m_mistake = readElf(firmware, configuration.hasUpperAlias, contents, &end);
    if (configuration.hasOuterMemories)
        contents.resize(end);
    m_core->processor().setInstructionMemory(contents);
    if (m_mistake.empty())
        openDebugger();
}

void Session::openScript(const Configuration &configuration, const std::string &firmware,
                         const std::string &script)
{
    if (!firmware.empty())
        throw std::runtime_error("+script=FILE and +firmware=FILE exclude each other");
    if (m_simulator.argument("gdb"))
        throw std::runtime_error("+gdb needs a program");
    m_player =
        std::make_unique<ScriptPlayer>(configuration, BoardHost::shared(m_simulator), script,
                                       [this](const ScriptFailure &failure) { tell(failure); });
}

void Session::openDebugger()
{
    const char *argument = m_simulator.argument("gdb");
    if (!argument)
        return;
    const std::string digits = argument;
    const bool isNumber = !digits.empty() && digits.size() <= 5 &&
                          digits.find_first_not_of("0123456789") == std::string::npos;
    const int port = isNumber ? std::stoi(digits) : -1;
    if (port < 0 || port > 65535)
        throw std::runtime_error("+gdb takes a port from 0 to 65535, not \"" + digits + "\"");
    m_debugger = std::make_unique<TcpLink>(static_cast<std::uint16_t>(port));
    m_core->attach(*m_debugger);
    m_simulator.print(
        "The program waits for gdb at 127.0.0.1:" + std::to_string(m_debugger->port()) + "\n");
}

void Session::print(const std::string &piece)
{
    if (m_printed <= mostOutput && m_printed + piece.size() > mostOutput)
        m_simulator.print("\n(the rest of the program's output is cut off)\n");
    m_printed += piece.size();
    if (m_printed <= mostOutput)
        m_simulator.print(piece);
    WaveWindow::shared().noteText(0, piece);
}

void Session::noteEvents(const Outputs &outputs)
{
    if (outputs.isTransfer)
        WaveWindow::shared().noteTransfer(outputs.address, 1 << outputs.size);
    if (m_core && m_core->processor().statistics().starts != 0)
        WaveWindow::shared().noteInstruction(m_core->processor().registerValue(15),
                                             m_core->processor().runningException());
}

Session::Shown Session::shown() const
{
    Shown shown;
    if (m_core) {
        shown.programCounter = m_core->processor().registerValue(15);
        shown.functionName = m_names.functionAt(shown.programCounter).c_str();
    }
    if (m_core ? m_core->isOnBus() : m_isTransferring)
        shown.registerName = m_names.registerAt(m_busAddress).c_str();
    return shown;
}

void Session::tell(const ScriptFailure &failure)
{
    if (m_player->failures() > mostFailures)
        return;
    const std::string line = std::to_string(failure.line);
    const char *mark = m_simulator.argument("mark");
    if (mark)
        m_simulator.print('\036' + std::string(mark) + " failure " + line + ' ' +
                          percentEncoded(failure.file) + ' ' + failure.text + '\n');
    else if (failure.line == 0)
        m_simulator.print(failure.text + '\n');
    else
        m_simulator.print(failure.file + ':' + line + ": " + failure.text + '\n');
    if (m_player->failures() == mostFailures && !mark)
        m_simulator.print("(further failures are only counted)\n");
}

// The last line.
std::string Session::verdict() const
{
    if (!m_mistake.empty())
        return "FAIL: " + m_mistake;
    if (!m_player)
        return "FAIL: " + m_core->processor().ending().reason;
    return "FAIL: " + std::to_string(m_player->failures()) + " of " +
           std::to_string(m_player->checks()) + " checks";
}

const Outputs &Session::clock(const Inputs &inputs)
{
    const Outputs &outputs = !m_mistake.empty() ? m_mistaken
                             : m_player         ? m_player->clock(inputs)
                                                : m_core->clock(inputs);
    m_busAddress = outputs.address;
    m_isTransferring = outputs.isTransfer;
    if (m_window.isWaiting())
        noteEvents(outputs);
    if (outputs.isDone && !m_isReported) {
        m_isReported = true;
        const char *mark = m_simulator.argument("mark");
        if (m_player && mark)
            m_simulator.print('\036' + std::string(mark) + " checks " +
                              std::to_string(m_player->checks()) + ' ' +
                              std::to_string(m_player->failures()) + '\n');
        m_simulator.print((outputs.hasPassed ? std::string("PASS") : verdict()) + '\n');
    }
    return outputs;
}

} // namespace CortexM1
