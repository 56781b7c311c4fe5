// The checked longjmp() takes another stack for a mistake.
#undef _FORTIFY_SOURCE

#include "coroutine.h"

#include <csetjmp>
#include <ucontext.h>

#include <cstdint>
#include <cstdlib>
#include <vector>

// The address sanitizer keeps book of stacks.
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#else
static void __sanitizer_start_switch_fiber(void **, const void *, std::size_t) {}
static void __sanitizer_finish_switch_fiber(void *, const void **, std::size_t *) {}
#endif

namespace CortexM1
{

namespace
{

// A place to go on at. Going there a second time asks nothing of the system, which swapcontext()
// does; the sanitizer wants to see each change of the stack.
class Place
{
public:
    ucontext_t context{};

    // Goes on at another place, until somebody comes back to this one.
    void leaveFor(Place &other)
    {
#if defined(__SANITIZE_ADDRESS__)
        swapcontext(&context, &other.context);
#else
        if (_setjmp(m_registers) != 0)
            return;
        m_isKnown = true;
        if (other.m_isKnown)
            _longjmp(other.m_registers, 1);
        setcontext(&other.context);
#endif
    }

private:
    std::jmp_buf m_registers;
    bool m_isKnown = false;
};

} // namespace

struct Coroutine::Contexts {
    static constexpr std::size_t stackBytes = 1 << 20; // libunicorn translates on it

    std::function<void()> body;
    std::vector<char> stack = std::vector<char>(stackBytes);
    Place caller;
    Place own;
    const void *callerStack = nullptr;
    std::size_t callerStackBytes = 0;
    void *callerShadow = nullptr;
    void *ownShadow = nullptr;

    // makecontext() hands on integers only.
    static void start(unsigned low, unsigned high)
    {
        const std::uintptr_t address = std::uintptr_t(high) << 32 | low;
        auto *self = reinterpret_cast<Contexts *>(address);
        __sanitizer_finish_switch_fiber(nullptr, &self->callerStack, &self->callerStackBytes);
        self->body();
        std::abort();
    }
};

Coroutine::Coroutine(std::function<void()> body)
    : m_contexts(std::make_unique<Contexts>())
{
    m_contexts->body = std::move(body);
    ucontext_t &own = m_contexts->own.context;
    getcontext(&own);
    own.uc_stack.ss_sp = m_contexts->stack.data();
    own.uc_stack.ss_size = m_contexts->stack.size();
    own.uc_link = nullptr;
    const auto address = reinterpret_cast<std::uintptr_t>(m_contexts.get());
    makecontext(&own, reinterpret_cast<void (*)()>(Contexts::start), 2,
                static_cast<unsigned>(address), static_cast<unsigned>(address >> 32));
}

Coroutine::~Coroutine() = default;

void Coroutine::resume()
{
    Contexts &c = *m_contexts;
    __sanitizer_start_switch_fiber(&c.callerShadow, c.stack.data(), c.stack.size());
    c.caller.leaveFor(c.own);
    __sanitizer_finish_switch_fiber(c.callerShadow, nullptr, nullptr);
}

void Coroutine::yield()
{
    Contexts &c = *m_contexts;
    __sanitizer_start_switch_fiber(&c.ownShadow, c.callerStack, c.callerStackBytes);
    c.own.leaveFor(c.caller);
    __sanitizer_finish_switch_fiber(c.ownShadow, &c.callerStack, &c.callerStackBytes);
}

} // namespace CortexM1
