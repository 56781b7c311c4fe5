#pragma once

#include "interrupts.h"

namespace TARVOORIXM1
{

// An interrupt that no register description tells of, as a document shows it.
struct OtherInterrupt {
    InterruptSource source;
    QString masked; // why a configuration does not have it; empty if it does
};

// The others of a configuration; without one (null) all of them.
QVector<OtherInterrupt> otherInterrupts(const QVector<InterruptSource> &sources,
                                        const OptionMap *options);

// The register description as a document, in Markdown.
QString registersMarkdown(const QVector<Peripheral> &peripherals,
                          const QVector<OtherInterrupt> &others);

// A C header for firmware: addresses of instances and registers, positions and masks of fields,
// interrupt numbers. An interrupt that the configuration masks has no number, and a comment says
// why.
QString registersHeader(const QVector<Peripheral> &peripherals,
                        const QVector<OtherInterrupt> &others);

// "0x50004000"
QString hexAddress(quint32 address);

// The register's value after reset, without the fields of which it is not known.
quint32 resetValue(const Register &entry);

} // namespace TARVOORIXM1
