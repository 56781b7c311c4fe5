#include "pseudoterminal.h"

#include <utils/systemerror.h>

#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace Cli
{

namespace
{

constexpr int mostWaiting = 1 << 20; // bytes
constexpr int drainMs = 1000;
constexpr int drainStepMs = 10;

} // namespace

PseudoTerminal::~PseudoTerminal()
{
    m_notifier.reset();
    for (const int file : {m_slave, m_master}) {
        if (file >= 0)
            ::close(file);
    }
}

Utils::Result<void> PseudoTerminal::open()
{
    m_master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    char name[128];
    termios settings;
    if (m_master >= 0 && ::grantpt(m_master) == 0 && ::unlockpt(m_master) == 0 &&
        ::ptsname_r(m_master, name, sizeof name) == 0)
        m_slave = ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (m_slave < 0 || ::tcgetattr(m_slave, &settings) != 0)
        return Utils::Failure{QLatin1String("A pseudo-terminal could not be made: ") +
                              Utils::systemError() + u'.'};
    ::cfmakeraw(&settings);
    if (::tcsetattr(m_slave, TCSANOW, &settings) != 0)
        return Utils::Failure{QLatin1String("A pseudo-terminal could not be set up: ") +
                              Utils::systemError() + u'.'};
    m_name = QString::fromLocal8Bit(name);
    m_notifier = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Write);
    m_notifier->setEnabled(false);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &PseudoTerminal::flush);
    return {};
}

void PseudoTerminal::send(char byte)
{
    if (m_waiting.size() >= mostWaiting)
        return;
    m_waiting.append(byte);
    if (!m_notifier->isEnabled())
        flush();
}

void PseudoTerminal::flush()
{
    const ssize_t written = Utils::uninterrupted(
        [&] { return ::write(m_master, m_waiting.constData(), size_t(m_waiting.size())); });
    if (written > 0)
        m_waiting.remove(0, int(written));
    else if (errno != EAGAIN)
        m_waiting.clear();
    m_notifier->setEnabled(!m_waiting.isEmpty());
}

void PseudoTerminal::drain()
{
    for (int waited = 0; waited < drainMs; waited += drainStepMs) {
        if (!m_waiting.isEmpty())
            flush();
        int unread = 0;
        if (m_waiting.isEmpty() && (::ioctl(m_slave, FIONREAD, &unread) != 0 || unread == 0))
            return;
        ::poll(nullptr, 0, drainStepMs);
    }
}

} // namespace Cli
