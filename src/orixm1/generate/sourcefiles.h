#pragma once

#include "config/optionmap.h"

#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// The names of the files in a folder of RTL, in the order of compilation (by name without regard to
// case). A folder that is missing or has an empty name has none.
QStringList rtlNames(const QString &folder);

// What becomes of a file of such a folder.
enum class RtlUse {
    Compiled,
    Included, // by other files, never compiled by itself
    Left,     // of no use to the configuration
};
RtlUse rtlUse(const QString &name, const OptionMap &options, const QString &device);

// Whether synthesis compiles a generated include file too, behind the RTL.
bool isIncludeCompiled(const QString &name);

// The full paths of the files that synthesis compiles, in order: the RTL of the descriptor's
// "debug" or "no_debug" folder as far as the device needs it (sorted by name without regard to
// case), then the generated include files in `tempDir`. A data folder that is missing or has an
// empty name adds nothing.
QStringList buildSourceFiles(const OptionMap &options, const QVariantMap &ipInfo,
                             const QString &device, const QString &tempDir);

// The full paths of the files beside them that are only included, sorted likewise.
QStringList buildSupportFiles(const OptionMap &options, const QVariantMap &ipInfo);

} // namespace TARVOORIXM1
