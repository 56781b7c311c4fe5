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

// What the data folder says of the subsystem, whatever the configuration.
struct SystemDescription {
    QVector<Peripheral> peripherals;          // readRegisterMap()
    QVector<InterruptSource> otherInterrupts; // readOtherInterrupts()
    QVector<FirmwareFile> firmware;           // by name
};

// Reads all of it. A failure is a sentence that names file, place and reason. A folder without
// "firmware" has no such files; a file there serves the peripheral whose name, in lower case, is
// the file's without its extension.
Utils::Result<SystemDescription> readSystemDescription(const QString &dataPath);

} // namespace TARVOORIXM1
