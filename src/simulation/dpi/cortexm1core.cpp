// The core as functions of a compiled simulation; the vectors are those of core/packedpins.h.
#include "cortexm1core.h"

#include "core/boardhost.h"
#include "core/packedpins.h"
#include "loading.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace
{

class Loading : public CortexM1::Simulator
{
public:
    void begin(int count, const char *const *arguments)
    {
        m_count = count;
        m_arguments = arguments;
    }

    const char *argument(const std::string &name) const override
    {
        const std::string start = "+" + name;
        for (int i = 1; i < m_count; ++i) {
            if (std::strncmp(m_arguments[i], start.c_str(), start.size()) != 0)
                continue;
            const char *rest = m_arguments[i] + start.size();
            if (*rest == '=' || *rest == '\0')
                return *rest == '=' ? rest + 1 : rest;
        }
        return nullptr;
    }

    void print(const std::string &text) override
    {
        std::fwrite(text.data(), 1, text.size(), stdout);
        std::fflush(stdout);
    }

private:
    int m_count = 0;
    const char *const *m_arguments = nullptr;
};

Loading &loading()
{
    static Loading made;
    return made;
}

std::vector<std::unique_ptr<CortexM1::Session>> &sessions()
{
    static std::vector<std::unique_ptr<CortexM1::Session>> all;
    return all;
}

CortexM1::Session &session(int handle)
{
    const auto number = static_cast<std::size_t>(handle);
    if (handle <= 0 || number > sessions().size()) {
        std::fputs("cortexm1_clock is called without cortexm1_open\n", stderr);
        std::exit(1);
    }
    return *sessions()[number - 1];
}

CortexM1::Inputs inputsOf(const std::uint32_t *words)
{
    const CortexM1::PackedWord packed[CortexM1::inputWords] = {
        {words[0], 0}, {words[1], 0}, {words[2], 0}};
    return CortexM1::unpackedInputs(packed);
}

constexpr std::size_t nameWords = 10;

// A text as Verilog has it: the last character in the lowest byte. What is too long loses its
// begin.
void packText(const char *text, std::uint32_t *words)
{
    std::fill_n(words, nameWords, 0u);
    const std::size_t length = std::strlen(text);
    for (std::size_t i = 0; i < std::min(length, 4 * nameWords); ++i)
        words[i / 4] |= std::uint32_t(static_cast<unsigned char>(text[length - 1 - i]))
                        << 8 * (i % 4);
}

} // namespace

CortexM1::Simulator &Dpi::simulator()
{
    return loading();
}

#define EXPORTED __attribute__((visibility("default")))

extern "C" {

EXPORTED void cortexm1_begin(int count, const char *const *arguments)
{
    loading().begin(count, arguments);
}

EXPORTED void cortexm1_end(void)
{
    sessions().clear();
    CortexM1::BoardHost::finishShared();
}

EXPORTED int cortexm1_open(const char *firmware, int interrupts, int hasOs, int isBigEndian,
                           int hasLowerAlias, int hasUpperAlias, int itcmSize, int dtcmSize,
                           const char *memories)
{
    CortexM1::Parameters parameters;
    parameters.interrupts = interrupts;
    parameters.hasOsExtension = hasOs != 0;
    parameters.isBigEndian = isBigEndian != 0;
    parameters.hasLowerAlias = hasLowerAlias != 0;
    parameters.hasUpperAlias = hasUpperAlias != 0;
    parameters.itcmSize = itcmSize;
    parameters.dtcmSize = dtcmSize;
    sessions().push_back(
        std::make_unique<CortexM1::Session>(loading(), parameters, firmware, memories));
    return static_cast<int>(sessions().size());
}

EXPORTED void cortexm1_clock(int handle, const std::uint32_t *inputs, std::uint32_t *outputs)
{
    CortexM1::packOutputs(session(handle).clock(inputsOf(inputs)), outputs);
}

EXPORTED void cortexm1_clock_memories(int handle, const std::uint32_t *inputs,
                                      std::uint32_t *outputs, const std::uint32_t *memoryInputs,
                                      std::uint32_t *memoryOutputs)
{
    CortexM1::Inputs pins = inputsOf(inputs);
    const CortexM1::PackedWord memories[CortexM1::memoryWords] = {{memoryInputs[0], 0},
                                                                  {memoryInputs[1], 0}};
    CortexM1::unpackMemories(memories, pins);
    const CortexM1::Outputs &result = session(handle).clock(pins);
    CortexM1::packOutputs(result, outputs);
    CortexM1::packMemories(result.memory, memoryOutputs);
}

EXPORTED void cortexm1_names(int handle, std::uint32_t *programCounter, std::uint32_t *functionName,
                             std::uint32_t *registerName)
{
    const CortexM1::Session::Shown shown = session(handle).shown();
    *programCounter = shown.programCounter;
    packText(shown.functionName, functionName);
    packText(shown.registerName, registerName);
}

EXPORTED int cortexm1_wants_waves(void)
{
    return CortexM1::BoardHost::shared(Dpi::simulator()).hasWaves();
}
}
