#pragma once

#include "registermap.h"

namespace TARVOORIXM1
{

// The register description as a document, in Markdown.
QString registersMarkdown(const QVector<Peripheral> &peripherals);

// A C header for firmware: addresses of instances and registers, positions and masks of fields,
// interrupt numbers.
QString registersHeader(const QVector<Peripheral> &peripherals);

// "0x50004000"
QString hexAddress(quint32 address);

// The register's value after reset, without the fields whose value depends on pins.
quint32 resetValue(const Register &entry);

} // namespace TARVOORIXM1
