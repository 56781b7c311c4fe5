#pragma once

#include "debugger.h"

#include <cstdint>

namespace CortexM1
{

// A port of the loop-back address, and the one debugger that is connected to it; others are turned
// away. Signals that the process handles (SIGINT, SIGTERM, SIGHUP) end the waiting.
class TcpLink : public DebuggerLink
{
public:
    // 0: any free port. Throws std::runtime_error with the reason if it cannot be opened.
    explicit TcpLink(std::uint16_t port);
    ~TcpLink() override;
    TcpLink(const TcpLink &) = delete;
    TcpLink &operator=(const TcpLink &) = delete;

    std::uint16_t port() const { return m_port; }

    Event receive(std::string &bytes, bool waits) override;
    void send(const std::string &bytes) override;
    void close() override;

private:
    int m_listener = -1;
    int m_client = -1;
    std::uint16_t m_port = 0;
    bool m_isBroken = false; // something could not be sent
};

} // namespace CortexM1
