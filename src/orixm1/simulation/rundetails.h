#pragma once

#include "firmware/sourceplaces.h"
#include "runstatistics.h"
#include "system/systemmap.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace TARVOORIXM1
{

// An instruction of the program, and where it comes from.
struct RunPlace {
    quint32 address = 0;
    SourcePlace source;
    bool isMains = false; // main() has returned: it is an instruction of the simulation's own

    // "0x00000124, main() in /home/me/main.c:12", as much as is known of it.
    QString text() const;
};

// What happened in a run, by the names of the configuration and of the program.
struct RunDetails {
    struct Block {
        QString name; // of the region; empty: of addresses that are in none
        quint64 reads = 0;
        quint64 writes = 0;
        // Registers that were never read or written, of a block that was.
        QStringList untouched;
        bool isComplete = true; // false: too many addresses were accessed, `untouched` is empty
    };
    struct Exception {
        QString name;
        int number = 0; // as in IPSR: interrupts from 16 on
        quint64 count = 0;
    };
    struct BusError {
        quint32 address = 0;
        int bytes = 0;
        bool isWrite = false;
        QString block; // empty: none
        RunPlace place;
    };
    struct Fault {
        QString cause; // a clause
        RunPlace place;
    };
    struct UnknownRead {
        quint32 address = 0;
        quint32 bits = 0;
        QString block;
        RunPlace place;
    };

    quint64 instructions = 0;
    quint64 asleep = 0; // clock cycles
    quint64 starts = 0;
    RunPlace end;
    QVector<Block> blocks; // every region but the tightly coupled memories, by address
    QVector<Exception> exceptions;
    QStringList interruptsNeverTaken; // of those that can be
    // Of each the first ones, and how many there were.
    QVector<BusError> errors;
    quint64 errorCount = 0;
    QVector<Fault> faults;
    quint64 faultCount = 0;
    QVector<UnknownRead> unknownReads;
    quint64 unknownCount = 0;
    QVector<RunPlace> lockUps;
    quint64 lockUpCount = 0;
    QString problem; // why no line of C is known, a sentence
};

// `folder`: where the program was compiled; names of files in it are given from there.
RunDetails runDetails(const SystemMap &map, const RunStatistics &run, const SourcePlaces &places,
                      const QString &folder);

} // namespace TARVOORIXM1
