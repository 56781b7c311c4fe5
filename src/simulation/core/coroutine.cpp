#include "coroutine.h"

#include <boost/context/detail/fcontext.hpp>

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

using boost::context::detail::jump_fcontext;
using boost::context::detail::make_fcontext;
using boost::context::detail::transfer_t;
using Context = boost::context::detail::fcontext_t;

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
    // Where to go on: changing over asks nothing of the system, unlike swapcontext().
    Context own = make_fcontext(stack.data() + stack.size(), stack.size(), start);
    Context caller = nullptr;
    Stack callerStack;
    Stack ownStack{stack.data(), stack.size()}; // or that of another, whose body has yielded
    void *callerShadow = nullptr;
    void *ownShadow = nullptr;

    static void start(transfer_t from)
    {
        auto *self = static_cast<Contexts *>(from.data);
        self->caller = from.fctx;
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
}

Coroutine::~Coroutine() = default;

void Coroutine::resume()
{
    Contexts &c = *m_contexts;
    const Stack here = current;
    __sanitizer_start_switch_fiber(&c.callerShadow, c.ownStack.begin, c.ownStack.bytes);
    current = c.ownStack;
    c.own = jump_fcontext(c.own, &c).fctx;
    current = here;
    __sanitizer_finish_switch_fiber(c.callerShadow, nullptr, nullptr);
}

void Coroutine::yield()
{
    Contexts &c = *m_contexts;
    c.ownStack = current;
    __sanitizer_start_switch_fiber(&c.ownShadow, c.callerStack.begin, c.callerStack.bytes);
    c.caller = jump_fcontext(c.caller, nullptr).fctx;
    __sanitizer_finish_switch_fiber(c.ownShadow, &c.callerStack.begin, &c.callerStack.bytes);
}

} // namespace CortexM1
