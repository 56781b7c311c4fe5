#pragma once

#include "export/format.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace TARVOORIXM1
{

// How C files become a program for a simulated subsystem.
struct ProgramBuild {
    QVector<ExportedFile> files;   // to be written below the folder that the compiler runs in
    QStringList softwareArguments; // of the compiler, for all of them: makes "software.o"
    QStringList arguments;         // of the compiler, for the program: takes "software.o"
};

// What the files of a program that are not the user's are said to be in, whatever folder the compiler
// ran in; with "/" at its end.
QString programFolder();

// The program is made of `sources` (full paths), and of what is exported for the configuration:
// header, start-up code, linker script and drivers. When its main() returns, it ends the simulation
// by semihosting with what main() has returned. It is left in "program.elf".
ProgramBuild programBuild(const SystemMap &map, const QStringList &sources);

// The file among them that ends the simulation, a path below that folder.
QString programEnding();

} // namespace TARVOORIXM1
