#pragma once

#include <utils/result.h>

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <memory>

namespace Cli
{

// A terminal without a screen, which a terminal program opens by its name. Bytes pass as they are.
// It goes with this object, or with this process.
class PseudoTerminal : public QObject
{
    Q_OBJECT

public:
    PseudoTerminal() = default;
    ~PseudoTerminal() override;

    // A failure is a sentence.
    Utils::Result<void> open();
    QString name() const { return m_name; } // "/dev/pts/4"
    int file() const { return m_master; }   // what others have typed is read there

    // While nobody reads they wait, up to a limit; the others are lost.
    void send(char byte);
    // Gives a reader a short time to take what is waiting.
    void drain();

private:
    void flush();

    int m_master = -1;
    int m_slave = -1; // so that the terminal stays while nobody has it open
    QString m_name;
    QByteArray m_waiting;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Cli
