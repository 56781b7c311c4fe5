#include "session.h"

#include "elfimage.h"
#include "wavewindow.h"

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

constexpr std::size_t mostOutput = 1 << 20; // bytes; a program that floods is cut off

std::uint32_t memoryBytes(int code)
{
    return code == 0 ? 0 : 512u << code;
}

} // namespace

Session::Session(Simulator &simulator, const Parameters &parameters, const std::string &firmware,
                 const std::string &memories)
    : m_simulator(simulator)
{
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
    const char *fromEnvironment = std::getenv("CORTEXM1_FIRMWARE");
    if (firmware.empty() && fromEnvironment)
        firmware = fromEnvironment;
    Configuration configuration;
    configuration.hasOuterMemories = memories == "rtl";
    if (!configuration.hasOuterMemories && memories != "model")
        throw std::runtime_error("+tcm=" + memories + " is neither +tcm=model nor +tcm=rtl");
    if (configuration.hasOuterMemories && m_simulator.argument("gdb"))
        throw std::runtime_error("+gdb needs +tcm=model"); // elsewhere each look would take time
    if (firmware.empty() && !configuration.hasOuterMemories)
        throw std::runtime_error("no program is named: +firmware=FILE");
    configuration.interrupts = parameters.interrupts;
    configuration.hasOsExtension = parameters.hasOsExtension;
    configuration.isBigEndian = parameters.isBigEndian;
    configuration.hasLowerAlias = parameters.hasLowerAlias;
    configuration.hasUpperAlias = parameters.hasUpperAlias;
    configuration.itcmBytes = memoryBytes(parameters.itcmSize);
    configuration.dtcmBytes = memoryBytes(parameters.dtcmSize);
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
    const Processor &processor = m_core->processor();
    if (outputs.isTransfer)
        WaveWindow::shared().noteTransfer(outputs.address, 1 << outputs.size);
    if (processor.statistics().starts != 0)
        WaveWindow::shared().noteInstruction(processor.registerValue(15),
                                             processor.runningException());
}

Session::Shown Session::shown() const
{
    if (!m_core)
        return {};
    const std::uint32_t place = m_core->processor().registerValue(15);
    return {place, m_names.functionAt(place).c_str(),
            m_core->isOnBus() ? m_names.registerAt(m_busAddress).c_str() : ""};
}

Outputs Session::clock(const Inputs &inputs)
{
    Outputs outputs;
    if (m_mistake.empty())
        outputs = m_core->clock(inputs);
    else
        outputs.isDone = true;
    m_busAddress = outputs.address;
    if (m_core && WaveWindow::shared().isWaiting())
        noteEvents(outputs);
    if (outputs.isDone && !m_isReported) {
        m_isReported = true;
        m_simulator.print(
            outputs.hasPassed
                ? std::string("PASS\n")
                : "FAIL: " + (m_mistake.empty() ? m_core->processor().ending().reason : m_mistake) +
                      "\n");
    }
    return outputs;
}

} // namespace CortexM1
