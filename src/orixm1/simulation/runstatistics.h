#pragma once

#include <utils/result.h>

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVector>

namespace TARVOORIXM1
{

// What the processor's model has counted in a run, whose file the model describes
// (simulation/core/statistics.h there).
struct RunStatistics {
    struct Counts {
        quint64 reads = 0; // transfers of any size
        quint64 writes = 0;
    };
    struct BusError {
        quint32 address = 0;
        int bytes = 0;
        bool isWrite = false;
        quint32 programCounter = 0;
    };
    struct Fault {
        QString cause; // a word
        quint32 programCounter = 0;
    };
    struct UnknownRead {
        quint32 address = 0;
        quint32 bits = 0;
        quint32 programCounter = 0;
    };

    static constexpr quint32 pageBytes = 4096;

    quint64 cycles = 0; // clock cycles out of reset
    quint64 asleep = 0; // those of them in which the processor slept
    quint64 instructions = 0;
    quint64 starts = 0;
    QMap<quint32, Counts> words; // by address
    QMap<quint32, Counts> pages; // by address; transfers to words that are not among `words`
    Counts elsewhere;            // transfers that are in neither
    QMap<int, quint64> exceptions;
    // Of each the first ones, and how many there were.
    QVector<BusError> errors;
    quint64 errorCount = 0;
    QVector<Fault> faults;
    quint64 faultCount = 0;
    QVector<UnknownRead> unknownReads;
    quint64 unknownCount = 0;
    QVector<quint32> lockUps;
    quint64 lockUpCount = 0;
    quint32 end = 0; // where the program was at the end
};

// Reads the model's file. A failure is a clause that names the line.
Utils::Result<RunStatistics> readRunStatistics(const QByteArray &bytes);

// The name of an exception in ARMv6-M: "HardFault", "SysTick"; empty for interrupts and numbers
// that name none.
QString exceptionName(int number);
// The number of the exception with that name; 0 if there is none.
int exceptionNamed(const QString &name);
constexpr int firstInterruptException = 16;
constexpr int nonMaskableException = 2;

} // namespace TARVOORIXM1
