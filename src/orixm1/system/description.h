#pragma once

#include "registers/interrupts.h"
#include "registers/registermap.h"

#include <QByteArray>

namespace TARVOORIXM1
{

// A file of the IP's data folder that is handed on to firmware as it is.
struct FirmwareFile {
    QString name;       // below "firmware": "uart.c"
    QString peripheral; // name of the Peripheral that it serves; empty: wanted whenever any is
    QByteArray bytes;
};

// A text of the IP's data folder that is handed on as it is.
struct DataFile {
    QString name; // without a folder
    QByteArray bytes;
};

// What the data folder says of the subsystem, whatever the configuration.
struct SystemDescription {
    QVector<Peripheral> peripherals;          // readRegisterMap()
    QVector<InterruptSource> otherInterrupts; // readOtherInterrupts()
    QVector<FirmwareFile> firmware;           // by name
    // Everything that can be compiled or included, in the order of compilation: for a processor
    // with debug, and for one without.
    QVector<DataFile> debugRtl;
    QVector<DataFile> noDebugRtl;
    // Stand-ins of the processor for simulation, by name.
    QVector<DataFile> processorModels;
};

// Reads all of it. A failure is a sentence that names file, place and reason. A folder without
// "firmware", RTL or models has no such files; a file of firmware serves the peripheral whose name,
// in lower case, is the file's without its extension.
Utils::Result<SystemDescription> readSystemDescription(const QString &dataPath);

} // namespace TARVOORIXM1
