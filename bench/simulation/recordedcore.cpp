// Stands before the processor's model in a compiled simulation: writes what the pins show in each
// clock cycle to the file that BENCH_RECORD names, or shows what BENCH_REPLAY holds, without the
// model. Behind its end the pins stay as they are.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <vector>

namespace
{

constexpr std::size_t words = 3; // a cycle

using Clock = void (*)(int, const std::uint32_t *, std::uint32_t *);
using Open = int (*)(const char *, int, int, int, int, int, int, int, const char *);

struct Recording {
    const char *toWrite = std::getenv("BENCH_RECORD");
    std::vector<std::uint32_t> pins;
    std::size_t next = 0;
    bool isReplayed = false;
    Clock clock = nullptr;

    Recording()
    {
        clock = reinterpret_cast<Clock>(dlsym(RTLD_NEXT, "cortexm1_clock"));
        const char *name = std::getenv("BENCH_REPLAY");
        std::FILE *file = name ? std::fopen(name, "rb") : nullptr;
        if (!file)
            return;
        isReplayed = true;
        std::fseek(file, 0, SEEK_END);
        pins.resize(static_cast<std::size_t>(std::ftell(file)) / sizeof(std::uint32_t));
        std::rewind(file);
        if (std::fread(pins.data(), sizeof(std::uint32_t), pins.size(), file) != pins.size() ||
            pins.size() < words)
            std::abort();
        std::fclose(file);
    }

    ~Recording()
    {
        std::FILE *file = toWrite ? std::fopen(toWrite, "wb") : nullptr;
        if (!file)
            return;
        std::fwrite(pins.data(), sizeof(std::uint32_t), pins.size(), file);
        std::fclose(file);
    }
};

Recording recording;

} // namespace

extern "C" {

__attribute__((visibility("default"))) int cortexm1_open(const char *firmware, int interrupts,
                                                         int hasOs, int isBigEndian, int hasLower,
                                                         int hasUpper, int itcmSize, int dtcmSize,
                                                         const char *memories)
{
    if (recording.isReplayed)
        return 1;
    const auto open = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "cortexm1_open"));
    return open(firmware, interrupts, hasOs, isBigEndian, hasLower, hasUpper, itcmSize, dtcmSize,
                memories);
}

__attribute__((visibility("default"))) void cortexm1_clock(int handle, const std::uint32_t *inputs,
                                                           std::uint32_t *outputs)
{
    if (recording.isReplayed) {
        std::memcpy(outputs, recording.pins.data() + recording.next, words * sizeof(std::uint32_t));
        if (recording.next + 2 * words <= recording.pins.size())
            recording.next += words;
        return;
    }
    recording.clock(handle, inputs, outputs);
    if (recording.toWrite)
        recording.pins.insert(recording.pins.end(), outputs, outputs + words);
}
}
