#pragma once

#include "optionmap.h"

#include <QString>
#include <QVariant>

namespace TARVOORIXM1
{

// What generation reads for a key: the stored value, whatever it is, or the option table's default
// if there is none; invalid for an absent key that has no default there. The defaults of the TCM
// sizes are the device's: see generatedValue().
QVariant valueOf(const OptionMap &options, const QString &key);

// The same by the conversions of QVariant.
bool isOn(const OptionMap &options, const QString &key);
int numberOf(const OptionMap &options, const QString &key);
QString textOf(const OptionMap &options, const QString &key);

} // namespace TARVOORIXM1
