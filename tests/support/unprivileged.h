#pragma once

#include <unistd.h>

namespace TestSupport
{

// File permissions do not bind root. While an object of this class lives, a process that runs as
// root has the rights of nobody; in any other process it changes nothing. holds() tells whether
// permissions bind now.
class Unprivileged
{
public:
    Unprivileged()
        : m_wasRoot(geteuid() == 0)
        , m_changed(m_wasRoot && setresuid(nobody, nobody, 0) == 0)
    {
    }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;
    ~Unprivileged()
    {
        if (m_changed && setresuid(0, 0, 0) != 0)
            _exit(1);
    }

    bool holds() const { return m_changed || !m_wasRoot; }

private:
    static constexpr uid_t nobody = 65534;
    bool m_wasRoot;
    bool m_changed;
};

} // namespace TestSupport
