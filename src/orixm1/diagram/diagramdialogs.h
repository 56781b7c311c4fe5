#pragma once

#include "config/optionmap.h"

#include <functional>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace TARVOORIXM1
{

// What a block opens.
enum class BlockDialog {
    CortexM1,
    Gpio,
    Can,
    Ethernet,
    Ddr3,
    Psram,
    SpiFlash,
    SdCard,
    Ahb2Extension,
    Uart,
    Timer,
    WatchDog,
    Rtc,
    I2c,
    Spi,
    Trng,
    DualTimer,
    Apb2Extension,
};

// Runs the dialog on the option map; true if it was accepted.
bool runBlockDialog(BlockDialog block, OptionMap *options, QWidget *parent);

// Asks for a file and has it written; a failure is told in a message box.
void runSavePictureDialog(QWidget *parent,
                          const std::function<bool(const QString &path, QString *error)> &save);

} // namespace TARVOORIXM1
