#pragma once

#include "config/optionmap.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace TARVOORIXM1
{

// Something in a file of the ITCM's contents.
struct ItcmMistake {
    QString file;
    int line = 0; // from 1; 0: the file as a whole
    QString reason;

    // "file:line: reason"
    QString text() const;
};

// What is wrong with the files "itcm0" to "itcm3" that a generation for a device gives to the
// memory; empty if nothing is, or if the memory is not initialised. Each file gives one byte lane,
// and all of its bytes: one that is left out would be unknown in the netlist. `generationFolder` is
// where a relative folder starts from; one that is not there is left to the tool, which looks in
// other places too. Reads these files only. Of each file no more than a few mistakes are told.
QVector<ItcmMistake> itcmMistakes(const OptionMap &options, const QString &device,
                                  const QString &generationFolder);

// The four files, full paths; empty if the memory is not initialised or the folder is left to the
// tool.
QStringList itcmFiles(const OptionMap &options, const QString &generationFolder);

// Bytes in each lane of a memory of 2^index KB; of 32 KB, as in generation, for an index that is
// none.
int itcmLaneSize(int sizeIndex);

} // namespace TARVOORIXM1
