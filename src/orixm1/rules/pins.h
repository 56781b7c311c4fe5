#pragma once

#include "config/blocks.h"
#include "config/optionmap.h"

#include <utils/pinfigure.h>

#include <QList>

namespace TARVOORIXM1
{

// What a block's pins follow from.
struct BlockState {
    unsigned switches = 0; // bit i: the block's switch i is on
    int choice = -1;       // the chosen item of the block's choice; -1: none or an unknown one
    QString device;        // name of the target device
};

// The block's pins in the order in which its figure shows them.
QList<Utils::PinFigure> blockPins(const Block &block, const BlockState &state);

// What generation makes of a stored configuration: an absent key counts as the option table says,
// not as the block's dialog has it. The two differ where a dialog was never accepted only: without
// its key, an interface switch of GPIO or I2C is off here, and on in a dialog that opens.
BlockState blockState(const Block &block, const OptionMap &options, const QString &device);

struct BlockPins {
    const Block *block;
    QList<Utils::PinFigure> pins; // may be empty
};

// The pins of every block, in the order of blocks().
QList<BlockPins> peripheralPins(const OptionMap &options, const QString &device);

} // namespace TARVOORIXM1
