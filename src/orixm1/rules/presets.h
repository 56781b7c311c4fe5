#pragma once

#include "config/optionmap.h"

#include <dev/devicearg.h>

#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// The names of the configurations to begin with, the smallest first.
QStringList presetNames();
// What a preset is for, as a phrase; empty for an unknown name.
QString presetText(const QString &name);

// Whether a device can have everything that makes the preset; false for an unknown name.
bool isPresetOffered(const QString &name, const DEV::DeviceArg &device);
// The choices that it makes on a device that it is offered for; the rest is the dialogs'. Debug and
// an inner instruction memory are left out where the device cannot have them.
OptionMap presetChoices(const QString &name, const DEV::DeviceArg &device);

} // namespace TARVOORIXM1
