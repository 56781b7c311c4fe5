#pragma once

#include "system/systemmap.h"

namespace TARVOORIXM1
{

// What the register descriptions of several standards say alike.

// Whether reading the field gives something.
bool isRead(const RegisterField &field);
// Whether writing the field does something. A register of whole words is written by them, and its
// fields are what is read.
bool isWritten(const Register &entry, const RegisterField &field);

// "read-only", "write-only" or "read-write".
QLatin1String accessText(bool read, bool write);
// Of the whole register.
QLatin1String accessText(const Register &entry);

// "oneToClear" or "oneToSet"; empty where what is written is stored.
QLatin1String writeEffectText(const RegisterField &field);

// Whether what is read may be something else than what was written.
bool readsDifferently(const RegisterField &field);

// Which values a field takes when it is written.
enum class WrittenValues { Any, Named, Range };
WrittenValues writtenValues(const RegisterField &field);
quint32 largestValue(const RegisterField &field);

// What the field's values are names for: "read", "write", or empty for both.
QLatin1String valuesUsage(const RegisterField &field, bool isWritten);

// Texts with all that no element has a place for.
QString registerText(const Register &entry);
QString instanceText(const SystemMap &map, const Peripheral &peripheral,
                     const PeripheralInstance &instance);

} // namespace TARVOORIXM1
