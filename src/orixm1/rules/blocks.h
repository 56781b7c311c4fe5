#pragma once

#include "config/rows.h"

#include <QLatin1String>
#include <QString>

namespace TARVOORIXM1
{

struct PinGroup;

// The optional blocks that have a dialog, in the order in which the diagram shows them.
enum class BlockId {
    Gpio,
    Can,
    Ethernet,
    Ddr3,
    Psram,
    SpiFlash,
    AhbMasters,
    Uart,
    Timer,
    WatchDog,
    Rtc,
    Trng,
    DualTimer,
    I2c,
    Spi,
    SdCard,
    ApbMasters,
};

// A bool option that a block's dialog shows as a check box.
struct SwitchRow {
    QLatin1String name; // the option key, or what stands before the port's number in it
    int port = 0;       // of an extension bus; 0: none

    QString key() const;
};

// What there is to say about a block. Its check boxes' texts are in its form.
struct Block {
    BlockId id;
    QLatin1String title;  // window title and label
    QLatin1String module; // the bus it is on
    Rows<SwitchRow> switches;
    Rows<PinGroup> pins; // in the order in which a figure shows them
    QLatin1String summary;
    QLatin1String choiceKey =
        QLatin1String(); // of the option, if any, whose choice the pins follow
};

Rows<Block> blocks();
const Block &block(BlockId id);

} // namespace TARVOORIXM1
