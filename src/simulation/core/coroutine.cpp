#include "coroutine.h"

#include <ucontext.h>

#include <algorithm>
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

// A place to go on at. Going there asks nothing of the system, unlike swapcontext(), which is left
// for other processors, and for the sanitizer, which wants to see each change of the stack.
#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__)

extern "C" void cortexm1_leave(void **from, void *to) __attribute__((visibility("hidden")));
extern "C" void cortexm1_begin_body() __attribute__((visibility("hidden")));

// What a function has to keep lies on its stack, with where it goes on at.
__asm__(".text\n"
        ".p2align 4\n"
        ".hidden cortexm1_leave\n"
        ".globl cortexm1_leave\n"
        ".type cortexm1_leave, @function\n"
        "cortexm1_leave:\n"
        "    pushq %rbp\n"
        "    pushq %rbx\n"
        "    pushq %r12\n"
        "    pushq %r13\n"
        "    pushq %r14\n"
        "    pushq %r15\n"
        "    movq %rsp, (%rdi)\n"
        "    movq %rsi, %rsp\n"
        "    popq %r15\n"
        "    popq %r14\n"
        "    popq %r13\n"
        "    popq %r12\n"
        "    popq %rbx\n"
        "    popq %rbp\n"
        "    popq %rcx\n"
        "    jmp *%rcx\n"
        ".size cortexm1_leave, .-cortexm1_leave\n"
        ".hidden cortexm1_begin_body\n"
        ".globl cortexm1_begin_body\n"
        ".type cortexm1_begin_body, @function\n"
        "cortexm1_begin_body:\n"
        "    movq %rbx, %rdi\n"
        "    call *%r12\n"
        "    ud2\n"
        ".size cortexm1_begin_body, .-cortexm1_begin_body\n");

class Place
{
public:
    // `body` does not return.
    void beginAt(std::vector<char> &stack, void (*body)(void *), void *data)
    {
        auto **top = reinterpret_cast<void **>(
            reinterpret_cast<std::uintptr_t>(stack.data() + stack.size()) & ~std::uintptr_t(15));
        top -= 9; // r15, r14, r13, r12, rbx, rbp and where to go on; the rest stays aligned
        std::fill(top, top + 9, nullptr);
        top[3] = reinterpret_cast<void *>(body);
        top[4] = data;
        top[6] = reinterpret_cast<void *>(cortexm1_begin_body);
        m_top = top;
    }

    // Goes on at another place, until somebody comes back to this one.
    void leaveFor(Place &other) { cortexm1_leave(&m_top, other.m_top); }

private:
    void *m_top = nullptr; // of its stack
};

#else

class Place
{
public:
    void beginAt(std::vector<char> &stack, void (*body)(void *), void *data)
    {
        getcontext(&m_context);
        m_context.uc_stack.ss_sp = stack.data();
        m_context.uc_stack.ss_size = stack.size();
        m_context.uc_link = nullptr;
        const auto toBody = reinterpret_cast<std::uintptr_t>(body);
        const auto toData = reinterpret_cast<std::uintptr_t>(data);
        makecontext(&m_context, reinterpret_cast<void (*)()>(begin), 4, low(toBody), high(toBody),
                    low(toData), high(toData));
    }

    void leaveFor(Place &other) { swapcontext(&m_context, &other.m_context); }

private:
    // makecontext() hands on integers only.
    static unsigned low(std::uint64_t address) { return static_cast<unsigned>(address); }
    static unsigned high(std::uint64_t address) { return static_cast<unsigned>(address >> 32); }
    static void begin(unsigned bodyLow, unsigned bodyHigh, unsigned dataLow, unsigned dataHigh)
    {
        const auto body = static_cast<std::uintptr_t>(std::uint64_t(bodyHigh) << 32 | bodyLow);
        const auto data = static_cast<std::uintptr_t>(std::uint64_t(dataHigh) << 32 | dataLow);
        reinterpret_cast<void (*)(void *)>(body)(reinterpret_cast<void *>(data));
    }

    ucontext_t m_context{};
};

#endif

struct Stack {
    const void *begin = nullptr;
    std::size_t bytes = 0;
};
// Nothing: the thread's own. Only the sanitizer asks.
#if defined(__SANITIZE_ADDRESS__)
thread_local Stack current;
#else
Stack current;
#endif

} // namespace

struct Coroutine::Contexts {
    static constexpr std::size_t stackBytes = 1 << 20; // libunicorn translates on it

    std::function<void()> body;
    std::vector<char> stack = std::vector<char>(stackBytes);
    Place caller;
    Place own;
    Stack callerStack;
    Stack ownStack{stack.data(), stack.size()}; // or that of another, whose body has yielded
    void *callerShadow = nullptr;
    void *ownShadow = nullptr;

    static void start(void *data)
    {
        auto *self = static_cast<Contexts *>(data);
        __sanitizer_finish_switch_fiber(nullptr, &self->callerStack.begin,
                                        &self->callerStack.bytes);
        self->body();
        std::abort();
    }
};

Coroutine::Coroutine(std::function<void()> body)
    : m_contexts(std::make_unique<Contexts>())
{
    m_contexts->body = std::move(body);
    m_contexts->own.beginAt(m_contexts->stack, Contexts::start, m_contexts.get());
}

Coroutine::~Coroutine() = default;

void Coroutine::resume()
{
    Contexts &c = *m_contexts;
    const Stack here = current;
    __sanitizer_start_switch_fiber(&c.callerShadow, c.ownStack.begin, c.ownStack.bytes);
    current = c.ownStack;
    c.caller.leaveFor(c.own);
    current = here;
    __sanitizer_finish_switch_fiber(c.callerShadow, nullptr, nullptr);
}

void Coroutine::yield()
{
    Contexts &c = *m_contexts;
    c.ownStack = current;
    __sanitizer_start_switch_fiber(&c.ownShadow, c.callerStack.begin, c.callerStack.bytes);
    c.own.leaveFor(c.caller);
    __sanitizer_finish_switch_fiber(c.ownShadow, &c.callerStack.begin, &c.callerStack.bytes);
}

} // namespace CortexM1
