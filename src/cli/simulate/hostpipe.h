#pragma once

#include <utils/result.h>

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <memory>

namespace Cli
{

// What the world outside tells a simulation that runs: lines in a named pipe, which its board reads
// (+host=FILE).
//   uart N HEX         bytes for UART N to receive
//   gpio MASK LEVELS   hexadecimal: the pins that are driven from outside, and how
// Lines are whole, and wait here while the simulation does not read.
class HostPipe : public QObject
{
    Q_OBJECT

public:
    HostPipe() = default;
    ~HostPipe() override;

    // Makes the pipe; it goes with the folder that it is in. A failure is a sentence.
    Utils::Result<void> open(const QString &path);

    // False if it has no room for them: nothing is sent.
    bool sendUart(int number, const QByteArray &bytes);
    void sendPins(quint32 mask, quint32 levels);

    // Much is waiting: who can wait too better does.
    bool isFull() const;

Q_SIGNALS:
    // isFull() has become false.
    void drained();

private:
    void put(const QByteArray &line);
    void flush();

    int m_pipe = -1;
    QByteArray m_waiting;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Cli
