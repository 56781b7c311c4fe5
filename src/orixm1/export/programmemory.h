#pragma once

#include "system/systemmap.h"

#include <QString>
#include <QVector>

namespace TARVOORIXM1
{

// A memory as a linker places programs in it.
struct LinkedMemory {
    QString name;       // of the region: "ITCM"
    QString attributes; // as a linker writes them: "rwx"
    quint32 base = 0;
    quint64 size = 0; // bytes; of a range that the user connects a memory to, all of the range
    // Symbol that tells the true size where the configuration knows the range only: "EXTSRAM_SIZE";
    // empty where the size is known.
    QString sizeSymbol;
    QString text; // a phrase
};

// Which memory of a map holds what of a program: indices in `all`, -1 where nothing can.
struct ProgramMemory {
    QVector<LinkedMemory> all; // by address, the read window of a memory device included
    int text = -1;             // vectors, code, constants and the initial values of the data
    int data = -1;             // data, heap and stack; equal to `text` if nothing else is written
    QVector<int> further;      // can be written, and hold what a program names a section of
    QVector<int> windows;      // can only be read, beside `text`

    bool canStart() const { return text >= 0 && data >= 0; }
    // Why no program can start, a sentence; empty if it can.
    QString obstacle() const;
};

// Text lies where the processor begins to read, at address 0. Data lie in the first memory from
// 0x20000000 upwards, else in what the text leaves free.
ProgramMemory programMemory(const SystemMap &map);

} // namespace TARVOORIXM1
