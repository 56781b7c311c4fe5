#include "tcplink.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <stdexcept>

namespace CortexM1
{

namespace
{

constexpr int sendTimeout = 5000; // milliseconds that a debugger may take to read
constexpr std::size_t pieceBytes = 4096;

// ---- signals: noted, and handed on to whom they belonged to

constexpr std::array<int, 3> watchedSignals = {SIGINT, SIGTERM, SIGHUP};
struct sigaction before[watchedSignals.size()];
volatile std::sig_atomic_t wasSignalled = 0;
int watchers = 0;

void onSignal(int number, siginfo_t *info, void *context)
{
    wasSignalled = 1;
    for (std::size_t i = 0; i < watchedSignals.size(); ++i) {
        if (watchedSignals[i] != number)
            continue;
        if (before[i].sa_flags & SA_SIGINFO)
            before[i].sa_sigaction(number, info, context);
        else
            before[i].sa_handler(number);
    }
}

void watchSignals()
{
    if (watchers++ > 0)
        return;
    for (std::size_t i = 0; i < watchedSignals.size(); ++i) {
        sigaction(watchedSignals[i], nullptr, &before[i]);
        const bool isHandled = (before[i].sa_flags & SA_SIGINFO) ||
                               (before[i].sa_handler != SIG_DFL && before[i].sa_handler != SIG_IGN);
        if (!isHandled)
            continue; // ends the process, or does nothing
        struct sigaction own = before[i];
        own.sa_sigaction = onSignal;
        own.sa_flags |= SA_SIGINFO;
        sigaction(watchedSignals[i], &own, nullptr);
    }
}

void unwatchSignals()
{
    if (--watchers > 0)
        return;
    for (std::size_t i = 0; i < watchedSignals.size(); ++i) {
        struct sigaction now;
        sigaction(watchedSignals[i], nullptr, &now);
        if ((now.sa_flags & SA_SIGINFO) && now.sa_sigaction == onSignal)
            sigaction(watchedSignals[i], &before[i], nullptr);
    }
}

// Waits for one of the descriptors; false if a signal has come instead, however early.
bool waitFor(pollfd *files, nfds_t count)
{
    sigset_t watched;
    sigset_t usual;
    sigemptyset(&watched);
    for (const int number : watchedSignals)
        sigaddset(&watched, number);
    pthread_sigmask(SIG_BLOCK, &watched, &usual);
    const bool isReady = !wasSignalled && ppoll(files, count, nullptr, &usual) > 0;
    wasSignalled = 0;
    pthread_sigmask(SIG_SETMASK, &usual, nullptr);
    return isReady;
}

} // namespace

TcpLink::TcpLink(std::uint16_t port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t bytes = sizeof address;
    auto *place = reinterpret_cast<sockaddr *>(&address);
    const int yes = 1;
    m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const bool isOpen = m_listener >= 0 &&
                        setsockopt(m_listener, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes) == 0 &&
                        bind(m_listener, place, bytes) == 0 && listen(m_listener, 4) == 0 &&
                        getsockname(m_listener, place, &bytes) == 0;
    if (!isOpen) {
        const std::string reason = std::strerror(errno);
        if (m_listener >= 0)
            ::close(m_listener);
        throw std::runtime_error("the port " + std::to_string(port) +
                                 " cannot be opened for a debugger: " + reason);
    }
    m_port = ntohs(address.sin_port);
    watchSignals();
}

TcpLink::~TcpLink()
{
    unwatchSignals();
    if (m_client >= 0)
        ::close(m_client);
    if (m_listener >= 0)
        ::close(m_listener);
}

DebuggerLink::Event TcpLink::receive(std::string &bytes, bool waits)
{
    if (m_listener < 0)
        return Event::Interrupted; // closed
    for (;;) {
        if (m_isBroken) {
            m_isBroken = false;
            ::close(m_client);
            m_client = -1;
            return Event::Disconnected;
        }
        pollfd files[] = {{m_listener, POLLIN, 0}, {m_client, POLLIN, 0}};
        const nfds_t count = m_client < 0 ? 1 : 2;
        if (waits && !waitFor(files, count))
            return Event::Interrupted;
        if (!waits && poll(files, count, 0) <= 0)
            return Event::Nothing;

        // First, so that the next one is not turned away for one that has just gone.
        if (m_client >= 0 && files[1].revents != 0) {
            char piece[pieceBytes];
            const ssize_t got = recv(m_client, piece, sizeof piece, 0);
            if (got > 0) {
                bytes.assign(piece, static_cast<std::size_t>(got));
                return Event::Bytes;
            }
            m_isBroken = got == 0 || (errno != EAGAIN && errno != EINTR);
            continue;
        }
        if (files[0].revents != 0) {
            const int caller = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
            if (caller >= 0 && m_client < 0) {
                const int yes = 1;
                setsockopt(caller, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
                m_client = caller;
                return Event::Connected;
            }
            if (caller >= 0)
                ::close(caller); // one is enough
        }
    }
}

void TcpLink::send(const std::string &bytes)
{
    std::size_t done = 0;
    while (done < bytes.size() && m_client >= 0 && !m_isBroken) {
        const ssize_t sent =
            ::send(m_client, bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
        if (sent > 0) {
            done += static_cast<std::size_t>(sent);
            continue;
        }
        pollfd file = {m_client, POLLOUT, 0};
        const bool canWait = errno == EAGAIN || errno == EINTR;
        const int ready = canWait ? poll(&file, 1, sendTimeout) : 0;
        m_isBroken = ready == 0 || (ready < 0 && errno != EINTR);
    }
}

void TcpLink::close()
{
    // What was sent last still has to be read; the descriptor goes with the object.
    if (m_client >= 0)
        shutdown(m_client, SHUT_WR);
    if (m_listener >= 0)
        ::close(m_listener);
    m_listener = -1;
}

} // namespace CortexM1
