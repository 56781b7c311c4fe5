#pragma once

#include <functional>
#include <memory>

namespace CortexM1
{

// A function on a stack of its own, which hands over to its caller wherever it wants. Neither a
// thread nor pre-empted; resume() and yield() belong to one thread. The body may resume others and
// yield from their bodies.
class Coroutine
{
public:
    // `body` never returns.
    explicit Coroutine(std::function<void()> body);
    ~Coroutine(); // only where the body holds nothing that has to be freed
    Coroutine(const Coroutine &) = delete;
    Coroutine &operator=(const Coroutine &) = delete;

    void resume(); // until the next yield()
    void yield();  // from within the body

private:
    struct Contexts;
    const std::unique_ptr<Contexts> m_contexts;
};

} // namespace CortexM1
