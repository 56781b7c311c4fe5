#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

#include <functional>

namespace Cli
{

// Reads what comes from an open file that is somebody else's, as it comes; the end of the file ends
// it quietly. A terminal is read only while this process is in its foreground, so that the shell
// does not stop it.
class ByteInput : public QObject
{
    Q_OBJECT

public:
    using Taker = std::function<void(const QByteArray &)>;

    ByteInput(int file, const Taker &take);

    // Bytes stay where they are meanwhile.
    void setPaused(bool isPaused);

private:
    void read();
    bool isInForeground() const;

    const int m_file;
    const Taker m_take;
    QSocketNotifier m_notifier;
    bool m_isPaused = false;
    bool m_isAtEnd = false;
};

} // namespace Cli
