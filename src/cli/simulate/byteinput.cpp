#include "byteinput.h"

#include <utils/systemerror.h>

#include <QTimer>

#include <cerrno>
#include <termios.h>
#include <unistd.h>

namespace Cli
{

namespace
{

constexpr int backgroundMs = 300; // until it is looked again for the foreground

} // namespace

ByteInput::ByteInput(int file, const Taker &take)
    : m_file(file)
    , m_take(take)
    , m_notifier(file, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &ByteInput::read);
}

void ByteInput::setPaused(bool isPaused)
{
    m_isPaused = isPaused;
    m_notifier.setEnabled(!m_isPaused && !m_isAtEnd);
}

bool ByteInput::isInForeground() const
{
    if (::tcgetsid(m_file) != ::getsid(0))
        return true; // not the terminal that this process is controlled by
    const pid_t group = ::tcgetpgrp(m_file);
    return group < 0 || group == ::getpgrp();
}

void ByteInput::read()
{
    if (!isInForeground()) {
        m_notifier.setEnabled(false);
        QTimer::singleShot(backgroundMs, this, [this] { setPaused(m_isPaused); });
        return;
    }
    char buffer[4096];
    const ssize_t size =
        Utils::uninterrupted([&] { return ::read(m_file, buffer, sizeof buffer); });
    if (size > 0) {
        m_take(QByteArray(buffer, int(size)));
    } else if (size == 0 || errno != EAGAIN) {
        m_isAtEnd = true;
        m_notifier.setEnabled(false);
    }
}

} // namespace Cli
