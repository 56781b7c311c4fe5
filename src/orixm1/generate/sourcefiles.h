#pragma once

#include "config/optionmap.h"

#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// The full paths of the files that synthesis compiles, in order: the RTL of the descriptor's
// "debug" or "no_debug" folder as far as the device needs it (sorted by name without regard to
// case), then the generated include files in `tempDir`. A data folder that is missing or has an
// empty name adds nothing.
QStringList buildSourceFiles(const OptionMap &options, const QVariantMap &ipInfo,
                             const QString &device, const QString &tempDir);

// The full paths of the files beside them that are only included, sorted likewise.
QStringList buildSupportFiles(const OptionMap &options, const QVariantMap &ipInfo);

} // namespace TARVOORIXM1
