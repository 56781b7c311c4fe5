#pragma once

#include "assembled.h"

// The same program in the processor's model and in the emulator that stands for the truth.
namespace TwoMachines
{

struct Outcome {
    QByteArray output;   // what the program wrote to the terminal
    bool passed = false; // it ended by SYS_EXIT, well
    bool lockedUp = false;
    QString trouble; // for messages: how it ended
};

// Memories as the emulated machine has them; nothing on the bus.
inline CortexM1::Configuration machine()
{
    CortexM1::Configuration configuration;
    configuration.interrupts = 32;
    configuration.itcmBytes = 256 * 1024;
    configuration.dtcmBytes = 16 * 1024;
    return configuration;
}

class EmptyBus : public CortexM1::Surroundings
{
public:
    CortexM1::TransferEnd transfer(CortexM1::Transfer &) override
    {
        return CortexM1::TransferEnd::Error;
    }
    void print(const std::string &text) override { said += text; }

    std::string said;
};

inline Outcome runInModel(const QByteArray &elf, int steps = 3'000'000)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("program.elf"));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(elf);
    file.close();
    std::vector<std::uint8_t> contents(machine().itcmBytes);
    const std::string mistake = CortexM1::readElf(path.toStdString(), false, contents);
    if (!mistake.empty())
        return {{}, false, false, QString::fromStdString(mistake)};

    EmptyBus bus;
    CortexM1::Processor processor(machine(), bus);
    processor.setInstructionMemory(contents);
    for (int i = 0; i < steps && !processor.hasEnded() && !processor.isLockedUp(); ++i) {
        processor.tick(0, false);
        processor.step();
        if (processor.requestsReset())
            processor.reset();
    }
    Outcome outcome;
    outcome.output = QByteArray::fromStdString(bus.said);
    outcome.passed = processor.hasEnded() && processor.ending().passed;
    outcome.lockedUp = processor.isLockedUp();
    outcome.trouble =
        processor.hasEnded() ? QString::fromStdString(processor.ending().reason)
        : processor.isLockedUp()
            ? QStringLiteral("locked up")
            : QStringLiteral("has not ended at 0x%1").arg(processor.registerValue(15), 0, 16);
    return outcome;
}

// The emulator ends by abort() when the processor locks up, and says so. It has a minute, whatever
// becomes of the caller.
inline Outcome runInEmulator(const QByteArray &elf)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("program.elf")));
    file.open(QIODevice::WriteOnly);
    file.write(elf);
    file.close();
    QProcess emulator;
    emulator.setWorkingDirectory(folder.path());
    emulator.setStandardInputFile(QProcess::nullDevice());
    emulator.start(
        QStringLiteral("sh"),
        {QStringLiteral("-c"),
         QStringLiteral("ulimit -c 0; exec timeout -s KILL 60 qemu-system-arm -M microbit "
                        "-nographic -monitor none -serial none -semihosting-config "
                        "enable=on,target=native -kernel program.elf")});
    const bool ended = emulator.waitForFinished(90'000);
    if (!ended) {
        emulator.kill();
        emulator.waitForFinished(-1);
    }
    const QByteArray messages = emulator.readAllStandardError();
    Outcome outcome;
    outcome.output = emulator.readAllStandardOutput();
    outcome.passed =
        ended && emulator.exitStatus() == QProcess::NormalExit && emulator.exitCode() == 0;
    outcome.lockedUp = messages.contains("Lockup");
    outcome.trouble = !ended ? QStringLiteral("has not ended")
                             : QStringLiteral("status %1 %2")
                                   .arg(emulator.exitCode())
                                   .arg(QString::fromLocal8Bit(messages.left(300)));
    return outcome;
}

} // namespace TwoMachines
