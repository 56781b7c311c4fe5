// Preloaded into Icarus Verilog, whose vvp asks for the class of an object at each step that it
// simulates and spends half of its time on the answer: the answers are kept. By the C++ ABI for
// Itanium (2.9.7) an object's pointer to its table of virtual functions tells its class and its
// place in the whole object, so for the same table and classes a cast moves a pointer by the same
// distance, or fails.

#include <cstddef>
#include <cstdint>
#include <dlfcn.h>

namespace
{

using Cast = void *(*)(const void *, const void *, const void *, std::ptrdiff_t);

constexpr std::ptrdiff_t failed = PTRDIFF_MIN;

struct Answer {
    const void *table = nullptr;
    const void *from = nullptr;
    const void *to = nullptr;
    std::ptrdiff_t distance = failed; // bytes
};

constexpr std::size_t answerCount = 1024;
thread_local Answer answers[answerCount];

std::size_t placeOf(const void *table, const void *from, const void *to)
{
    const auto number = [](const void *address) {
        return reinterpret_cast<std::uintptr_t>(address) >> 3; // all are aligned
    };
    return (number(table) * 31 + number(to) * 7 + number(from)) % answerCount;
}

} // namespace

// What the compiler makes of a dynamic_cast; `object` is not null.
extern "C" __attribute__((visibility("default"))) void *
__dynamic_cast(const void *object, const void *from, const void *to, std::ptrdiff_t hint)
{
    static const auto usual = reinterpret_cast<Cast>(::dlsym(RTLD_NEXT, "__dynamic_cast"));
    const auto *start = static_cast<const char *>(object);
    const void *table = *static_cast<const void *const *>(object);
    Answer &answer = answers[placeOf(table, from, to)];
    if (answer.table != table || answer.from != from || answer.to != to) {
        const auto *result = static_cast<const char *>(usual(object, from, to, hint));
        answer = {table, from, to, result ? result - start : failed};
    }
    return answer.distance == failed ? nullptr : const_cast<char *>(start) + answer.distance;
}
