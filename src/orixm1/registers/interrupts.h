#pragma once

#include "registermap.h"
#include "rules/check.h"

namespace TARVOORIXM1
{

// Interrupt inputs of the processor that something in the subsystem drives.
struct InterruptSource {
    QString name;   // "UART0"
    int number = 0; // of the first input
    int count = 1;
    QString option;        // what switches it on: see isSwitch()
    bool isPolled = false; // what it interrupts for can wait
};

// The inputs for external interrupts that the processor has, numbered from 0.
constexpr int interruptInputs = 32;

// Reads "interrupts.json" of a data folder: the sources without register descriptions. A folder
// without that file has none. One that cannot be read or contradicts itself is a failure, a
// sentence that names file and place.
Utils::Result<QVector<InterruptSource>> readOtherInterrupts(const QString &dataPath);

// All sources by number: those of the peripherals and the others. The non-maskable interrupt is
// none of them.
QVector<InterruptSource> interruptSources(const QVector<Peripheral> &peripherals,
                                          const QVector<InterruptSource> &others);

// The sources that a configuration switches on.
QVector<InterruptSource> enabledInterrupts(const QVector<InterruptSource> &sources,
                                           const OptionMap &options);

// Why a source never interrupts in a configuration, and how many inputs would be enough, as a part
// of a sentence ("its interrupt 9 is masked: …"); empty if it does.
QString maskedInterrupt(const InterruptSource &source, const OptionMap &options);

// A warning for each source that is on and whose interrupt the configuration masks, except those
// that can be polled.
QVector<Finding> interruptFindings(const QVector<InterruptSource> &sources,
                                   const OptionMap &options);

} // namespace TARVOORIXM1
