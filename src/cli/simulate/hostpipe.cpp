#include "hostpipe.h"

#include <utils/systemerror.h>

#include <QFile>

#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Cli
{

namespace
{

constexpr int longestPiece = 512;      // bytes for a UART in one line
constexpr int mostWaiting = 4 << 20;   // characters
constexpr int manyWaiting = 16 * 1024; // characters

static_assert(2 * longestPiece + 16 <= PIPE_BUF, "a line is written whole or not at all");

} // namespace

HostPipe::~HostPipe()
{
    if (m_pipe >= 0)
        ::close(m_pipe);
}

Utils::Result<void> HostPipe::open(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    // With a reader of its own, so that it can be opened and written before the simulation reads.
    if (::mkfifo(name.constData(), 0600) == 0)
        m_pipe = ::open(name.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (m_pipe < 0)
        return Utils::Failure{QLatin1String("The pipe \"") + path +
                              QLatin1String("\" could not be made: ") + Utils::systemError() +
                              u'.'};
    m_notifier = std::make_unique<QSocketNotifier>(m_pipe, QSocketNotifier::Write);
    m_notifier->setEnabled(false);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &HostPipe::flush);
    return {};
}

bool HostPipe::isFull() const
{
    return m_waiting.size() > manyWaiting;
}

bool HostPipe::sendUart(int number, const QByteArray &bytes)
{
    if (m_waiting.size() + 2 * bytes.size() > mostWaiting)
        return false;
    for (int from = 0; from < bytes.size(); from += longestPiece)
        put("uart " + QByteArray::number(number) + ' ' + bytes.mid(from, longestPiece).toHex() +
            '\n');
    return true;
}

void HostPipe::sendPins(quint32 mask, quint32 levels)
{
    if (m_waiting.size() < mostWaiting)
        put("gpio " + QByteArray::number(mask, 16) + ' ' + QByteArray::number(levels, 16) + '\n');
}

void HostPipe::put(const QByteArray &line)
{
    m_waiting += line;
    if (m_pipe >= 0 && !m_notifier->isEnabled())
        flush();
}

void HostPipe::flush()
{
    const bool wasFull = isFull();
    int from = 0;
    while (from < m_waiting.size()) {
        const int size = m_waiting.indexOf('\n', from) + 1 - from;
        const ssize_t written = Utils::uninterrupted(
            [&] { return ::write(m_pipe, m_waiting.constData() + from, size_t(size)); });
        if (written != size)
            break;
        from += size;
    }
    m_waiting.remove(0, from);
    m_notifier->setEnabled(!m_waiting.isEmpty());
    if (wasFull && !isFull())
        Q_EMIT drained();
}

} // namespace Cli
